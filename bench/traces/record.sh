#!/bin/sh
# record.sh BUILD-DIRECTORY: records the traces in this folder anew, from programs that draw on an X server without a monitor.
set -eu

build=$(readlink -f "$1")
folder=$(dirname "$(readlink -f "$0")")
work=$(mktemp -d)
cleanup() {
    [ -z "${server-}" ] || kill "$server"
    rm -rf "$work"
}
trap cleanup EXIT
trap 'exit 1' HUP INT TERM
export HOME="$work"
unset DFBARGS ZUVOARGS WAYLAND_DISPLAY

Xvfb -displayfd 3 -screen 0 1920x1080x24 3> "$work/display" 2> "$work/log" &
server=$!
until [ -s "$work/display" ]; do
    kill -0 "$server" || { cat "$work/log" >&2; exit 1; }
    sleep 0.1
done
DISPLAY=:$(cat "$work/display")
export DISPLAY

# record FRAMES SECONDS PROGRAM: ends the program when it has drawn these frames for certain.
record() {
    "$build/dtk_trace" -o "$folder/$3.dtk" --frames "$1" timeout "$2" "$build/$3" > "$work/log" 2>&1 || [ $? -eq 124 ] || {
        cat "$work/log" >&2
        exit 1
    }
}

record 30 10 test_dtkhd
record 60 10 df_menu
record 6 10 df_clock

# It draws once and then waits.
"$build/dtk_trace" -o "$folder/df_chart.dtk" "$build/df_chart" --png "$work/chart.png"

# A whole picture has 29000 calls; its beginning has figures and strokes of each pen.
"$build/dtk_trace" -o "$work/paint.dtk" "$build/df_paint" --png "$work/paint.png"
"$build/dtk_replay" --text - "$work/paint.dtk" | sed 6000q > "$work/paint.txt"
printf 'Flip s2 - 0x00000000\nend\n' >> "$work/paint.txt"
"$build/dtk_replay" --binary "$folder/df_paint.dtk" "$work/paint.txt"
ls -l "$folder"/*.dtk
