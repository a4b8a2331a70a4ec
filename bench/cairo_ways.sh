#!/bin/sh
# cairo_ways.sh BENCH_CONTEST FOLDER [ROUNDS]: measures what cairo fills in both ways to a surface's pixels, as an image and
# through the DirectFB back end of the libcairo.so.2 in FOLDER, in turn. Prints the medians of software / floor.
set -eu

program=$1 back_end=$2 rounds=${3-7}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# measure WAY: appends lines of "WAY,ITEM,RATIO".
measure() {
    "$program" --items 'polygon|textured' --columns 'floor|toolkit' --repetitions 5 --csv "$work/run.csv" > /dev/null 2>&1
    awk -F, -v way="$1" '$3 == "toolkit software" { print way "," $2 "," $8 }' "$work/run.csv" >> "$work/ratios"
}

round=0
while [ "$round" -lt "$rounds" ]; do
    measure image
    LD_LIBRARY_PATH="$back_end${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" measure back_end
    round=$((round + 1))
done

sort -t, -k2,2 -k1,1 -k3,3n "$work/ratios" | awk -F, -v rounds="$rounds" '
    BEGIN { printf "%-28s %8s %9s %7s\n", "cairo, software / floor", "image", "back end", "ratio" }
    { value[++n] = $3 }
    n == rounds { median[$1] = value[int((n + 1) / 2)]; n = 0 }
    n == 0 && $1 == "image" { printf "%-28s %8.2f %9.2f %7.2f\n", $2, median["image"], median["back_end"], median["image"] / median["back_end"] }'
