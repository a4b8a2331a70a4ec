#!/bin/sh
# cairo.sh: builds cairo with its DirectFB back end into the cache, from Debian 12's source package on this machine's own
# mirrors: no build needs it, but the tests run once more with it where it is. Nothing is done where it is there already.
set -eu
. "$(dirname "$0")/common.sh"
. "$root/scripts/apt.sh"

log=$cache/cairo.log
work=$cache/cairo.work

fetch() {
    # A mirror without sources is no matter as long as one has cairo's.
    private_apt update || :
    (cd "$work" && private_apt source cairo)
}

flags() {
    case $(dpkg --print-architecture) in
        i386) printf '%s' '-O2 -g1 -ffp-contract=off -msse2 -mfpmath=sse' ;;
        *) printf '%s' '-O2 -g1 -ffp-contract=off' ;;
    esac
}

configure() (
    cd "$work/cairo-$cairo_version" || exit
    # Debian's patches are newer than the generated files; with one time for all, make has no wish to run the autotools.
    find . -exec touch -r configure {} +
    ./configure --prefix="$cairo" CFLAGS="$(flags)" --enable-directfb=yes \
        --disable-static --disable-dependency-tracking --disable-xlib --disable-xcb --disable-gtk-doc --disable-ps --disable-pdf \
        --disable-svg --disable-script --disable-interpreter --disable-trace --disable-valgrind --disable-gobject \
        --disable-ft --disable-fc --disable-png
)

# Without its warnings, so that the end of the log shows an error.
compile() {
    make -C "$work/cairo-$cairo_version/src" -s -j "$(nproc)" CFLAGS="$(flags) -w"
}

# The finished tree appears under its name at once and whole, so a try that was cut off is never taken for a good one.
put_in_place() {
    make -C "$work/cairo-$cairo_version/src" -s install DESTDIR="$work/stage" &&
        rm -rf "$work/stage$cairo/lib/libcairo.la" "$cairo" &&
        mv "$work/stage$cairo" "$cairo"
}

lock_cache
"$root/scripts/packages.sh" build cairo
if [ -e "$cairo/lib/libcairo.so.2" ] && [ -e "$cairo/lib/pkgconfig/cairo-directfb.pc" ]; then
    exit 0
fi

trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM
rm -rf "$work"
: > "$log"
private_sources "$work" deb-src "$directfb_release"
use_private_apt "$work"
say "cairo: fetching Debian's source package ..."
logged "$log" "cairo's source package could not be fetched: check the network and the package sources" fetch
[ -d "$work/cairo-$cairo_version" ] ||
    fail "the mirrors of this machine have no cairo $cairo_version, the last release with the DirectFB back end"
say "cairo: configuring $cairo_version with its DirectFB back end ..."
logged "$log" "cairo could not be configured: see the message above, then run again" configure
say "cairo: building (about half a minute) ..."
watch "$log" 30
logged "$log" "cairo did not compile: see the message above, then run again" compile
watch_end
logged "$log" "cairo could not be put into $cache: check the free space, then run again" put_in_place
say "cairo: ready in $cairo"
