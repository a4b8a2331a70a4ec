#!/bin/sh
# demo.sh [OPTION...]: frames of the benchmark program and the gallery, by each back end, then a window where there is a
# display. The options go to dtk_demo, where they replace the usual ones.
set -eu
. "$(dirname "$0")/common.sh"

picture=$build/demo.png back_ends='software hardware' wants_help=no option=''
for word; do
    case $option in
        --png) picture=$word ;;
        --backend) back_ends=$word ;;
    esac
    case $word in
        --png=*) picture=${word#--png=} ;;
        --backend=*) back_ends=${word#--backend=} ;;
        --help) wants_help=yes ;;
    esac
    option=$word
done

# picture_of FILE BACK-END: software keeps the plain name.
picture_of() {
    if [ "$2" = software ]; then
        printf '%s' "$1"
    else
        printf '%s' "${1%.png}-$2.png"
    fi
}

# On a terminal the lines of a build would push everything else off the screen.
if [ -t 1 ]; then
    mkdir -p "$build"
    : > "$build/build.log"
    watch "$build/build.log"
    logged "$build/build.log" "the build failed: see the message above; ./run clean starts afresh" "$root/scripts/build.sh" default
    watch_end
else
    "$root/scripts/build.sh" default
fi
[ $wants_help = no ] || exec "$build/dtk_demo" --help

pictures=''
for back_end in $back_ends; do
    frames=$(picture_of "$picture" "$back_end") gallery=$(picture_of "$build/gallery.png" "$back_end")
    say "drawing ($back_end) ..."
    env -u DISPLAY -u WAYLAND_DISPLAY "$build/dtk_demo" --frames 100 --size 1280x720 "$@" --backend "$back_end" --png "$frames" ||
        fail "the demo program failed: see its message above"
    env -u DISPLAY -u WAYLAND_DISPLAY "$build/gallery" "$gallery" --backend "$back_end" || fail "the gallery program failed: see its message above"
    pictures="$pictures
  $frames
  $gallery"
done
if [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
    say "A window shows the frames; Escape, Ctrl-C or closing it ends it."
    "$build/dtk_demo" --seconds 20 --rate 60 --size 1280x720 "$@" ||
        fail "the window failed: see the message above; --zuvo:window=off leaves it out"
fi
say "The pictures:$pictures"
[ ! -t 1 ] || say "Next: $build/df_paint paints, $build/dtk_bench measures, docs/guide shows how to use the library,
and ./run help lists what else there is."
