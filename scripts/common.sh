# shellcheck shell=sh
# Sourced by the scripts beside it.

say() {
    printf '%s\n' "$*"
}

fail() {
    printf 'run: %s\n' "$*" >&2
    exit 1
}

# The project's folder, its build directory, and what is kept for this user from one build to the next.
root=$(dirname "$(dirname "$(readlink -f "$0")")")
build=$root/build
cache=${XDG_CACHE_HOME:-${HOME:-$build}/.cache}/dtkhddvd

# What ./run install has put in place, one path a line.
# shellcheck disable=SC2034
installed=$build/installed.txt

# pkg-config and the autotools take no such character in a folder's name.
case $cache in
    *[[:space:]\"\'\\\`\$\&\#\;\|]*)
        cache=/var/tmp/dtkhddvd-$(id -u)
        mkdir -m 700 "$cache" 2>/dev/null || :
        ;;
esac

# A cairo with the DirectFB back end. Its version is part of the name, so that another version or architecture never meets
# the wrong library.
cairo_version=1.16.0
cairo=$cache/cairo-$cairo_version-$(dpkg --print-architecture 2>/dev/null || uname -m)

# logged LOG ADVICE COMMAND...: keeps the command's output in LOG; a failure shows the end of it and the advice.
logged() {
    log=$1 advice=$2
    shift 2
    "$@" >> "$log" 2>&1 || {
        tail -n 20 "$log" >&2
        fail "$advice (whole log: $log)"
    }
}

# watch LOG [SECONDS]: shows on a terminal, until watch_end, how far long work is: how many of SECONDS have gone, or where
# there are none the last line of LOG. The watcher ends with this script, however that ends.
watcher=''
watch() {
    [ -t 1 ] || return 0
    watched_log=$1 watched_seconds=${2-} watch_start=$(date +%s)
    while kill -0 $$ 2> /dev/null; do
        printf '\r\033[K%s' "$(watch_line)"
        sleep 0.5
    done &
    watcher=$!
}

watch_line() {
    if [ -n "$watched_seconds" ]; then
        printf '%s of %s s' "$(($(date +%s) - watch_start))" "$watched_seconds"
    else
        tail -n 1 "$watched_log" | cut -c 1-78
    fi
}

watch_end() {
    [ -n "$watcher" ] || return 0
    kill "$watcher"
    watcher=''
    printf '\r\033[K'
}

# locked FILE: waits until no other run holds FILE; this script and its children then hold it on descriptor 9 to their end.
locked() {
    { mkdir -p "$(dirname "$1")" && touch "$1"; } 2>/dev/null || fail "cannot write $1: make its folder writable${2:-}"
    exec 9>> "$1"
    flock -n 9 || {
        say "waiting for another run to finish ..."
        flock 9
    }
}

# What lies in the cache is run later on, so neither the folder nor a link that leads to it may be somebody else's.
lock_cache() {
    mkdir -p "$cache" 2>/dev/null || fail "cannot write $cache: make its folder writable, or set XDG_CACHE_HOME to another one"
    { [ -O "$cache" ] && [ "$(stat -c %u "$cache")" = "$(stat -L -c %u "$cache")" ]; } ||
        fail "$cache belongs to somebody else: set XDG_CACHE_HOME to a folder of your own, without blanks in its name"
    locked "$cache/lock" ", or set XDG_CACHE_HOME to another one"
}

# A service that a package starts would keep the lock for ever, hence the closed descriptor.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@" 9>&-
    elif command -v sudo > /dev/null; then
        sudo "$@" 9>&-
    else
        printf 'not root, and there is no sudo: %s\n' "$*" >&2
        return 1
    fi
}
