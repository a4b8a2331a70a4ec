#!/bin/sh
# traces.sh DTK_REPLAY [REPETITIONS]: plays the traces of real programs and prints, for each, the median time of a frame's
# drawing in microseconds: in software without and with the graphics driver, and with the engine. Turns are taken, so that
# what else the machine does falls on all of them.
set -eu

replay=$1 turns=${2:-3}
folder=$(dirname "$(readlink -f "$0")")/traces
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# play FILE-OF-TIMES TRACE OPTION...
play() {
    output=$1
    shift
    "$replay" --repeat 10 "$@" > "$work/log" 2> "$work/errors" || { cat "$work/errors" >&2; exit 1; }
    sed -n 's/^.* frames: .* of it drawing \([0-9]*\) us.*/\1/p' "$work/log" >> "$output"
}

median() {
    sort -n "$1" | awk '{ value[NR] = $1 } END { print value[int((NR + 1) / 2)] }'
}

echo 'trace,bytes,software,software with driver,engine'
for trace in "$folder"/*.dtk; do
    name=$(basename "$trace" .dtk)
    turn=0
    while [ "$turn" -lt "$turns" ]; do
        play "$work/$name.plain" --backend software --zuvo:accel=off "$trace"
        play "$work/$name.driver" --backend software --zuvo:accel=on "$trace"
        play "$work/$name.engine" --backend hardware "$trace"
        turn=$((turn + 1))
    done
    echo "$name,$(wc -c < "$trace"),$(median "$work/$name.plain"),$(median "$work/$name.driver"),$(median "$work/$name.engine")"
done
