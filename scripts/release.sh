#!/bin/sh
# release.sh: makes build/dtkhddvd-VERSION.tar.gz of what is committed. The same commit gives the same bytes, whoever makes
# it and wherever: names, order, modes and times come from git alone.
set -eu
. "$(dirname "$0")/common.sh"

"$root/scripts/packages.sh" release
version=$("$root/scripts/version.sh")
name=dtkhddvd-$version
archive=$build/$name.tar.gz

git_here() {
    git -C "$root" "$@"
}

pack() {
    git_here -c core.autocrlf=false -c tar.umask=0022 archive --format=tar --prefix="$name/" HEAD > "$archive.tar" &&
        gzip -9n < "$archive.tar" > "$archive" && rm "$archive.tar"
}

[ "$(git_here rev-parse --show-toplevel 2> /dev/null)" = "$root" ] || fail "$root is no git repository: a release is made of a commit"
[ -z "$(git_here status --porcelain)" ] || fail "there are uncommitted changes: commit them, a release is made of a commit"
mkdir -p "$build"
pack || fail "could not write $archive: check the free space"
sha256sum "$archive"
[ -n "$(git_here tag --points-at HEAD "v$version")" ] || say "This commit has no tag v$version yet: see CONTRIBUTING.md."
