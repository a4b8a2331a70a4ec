#!/bin/sh
# uninstall.sh: removes the files that ./run install has put in place, and those of the project's own folders that are empty
# then.
set -eu
. "$(dirname "$0")/common.sh"

there() {
    while read -r path; do
        [ ! -e "$path" ] && [ ! -L "$path" ] || printf '%s\n' "$path"
    done
}

# The folders named after the project, and those inside them, from the inside out.
own_folders() {
    while read -r path; do
        path=$(dirname "$path")
        while [ "${path%/dtkhddvd*}" != "$path" ]; do
            printf '%s\n' "$path"
            path=$(dirname "$path")
        done
    done | sort -ru
}

may_change() {
    while read -r path; do [ -w "$(dirname "$path")" ] || return; done
}

# with_paths FILE COMMAND...: the paths in FILE become further arguments. Only a folder that this user may not write to needs
# root.
with_paths() {
    paths=$1
    shift
    set -- xargs -r -d '\n' "$@"
    may_change < "$paths" || set -- as_root "$@"
    "$@" < "$paths" || fail "could not remove everything: see the message above"
}

[ -s "$installed" ] || fail "$installed, the list of installed files, is not there: ./run install with the same --prefix makes it"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM
there < "$installed" > "$work/files"
with_paths "$work/files" rm -f --
own_folders < "$installed" | there > "$work/folders"
with_paths "$work/folders" rmdir --ignore-fail-on-non-empty --
rm -f "$installed"
! grep -qE '^/usr/(local/)?lib' "$work/files" || as_root ldconfig || say "run ldconfig as root, so that the loader forgets the library"
say "removed $(wc -l < "$work/files") files"
