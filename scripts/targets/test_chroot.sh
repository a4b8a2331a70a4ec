# shellcheck shell=sh
# Sourced by targets.sh: built and run in the chroot of another Debian, whose pictures are compared with this machine's.

. "$root/scripts/targets/namespace.sh"

pictures='demo.png demo-hardware.png gallery.png gallery-hardware.png'

draw_here() {
    env -u DISPLAY -u WAYLAND_DISPLAY "$root/scripts/demo.sh"
}

compare_pictures() {
    for picture in $pictures; do
        cmp "$build/$picture" "$build/$target/$picture" || fail "$picture looks different in $target"
    done
    say "$target draws the pictures of this machine, byte for byte"
}

build_and_test() {
    mkdir -p "$build/$target"
    log=$build/pictures-here.log
    : > "$log"
    say "drawing here, to compare with $target ..."
    logged "$log" "the pictures could not be drawn here: see the message above" draw_here
    for picture in $pictures; do rm -f "$build/$target/$picture"; done
    inside "$sysroot" owner scripts/targets/draw_and_test.sh "$target" "$@" || exit
    compare_pictures
}
