#!/bin/sh
# shares.sh DTK_FRAMES WxH software|hardware [WORD...]: counts the instructions of the benchmark program's frames under
# valgrind, and prints the share of each library. The instructions of start-up are left out.
set -eu

program=$1 size=$2 back_end=$3
shift 3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

valgrind --quiet --tool=callgrind --callgrind-out-file="$work/out" --toggle-collect='dtk::draw_frame*' \
    "$program" "$size" "$back_end" 40 --dfb:no-sighandler "$@" > /dev/null 2>&1

callgrind_annotate --auto=no --threshold=100 --show-percs=no "$work/out" | awk '
    # A line is "COUNT FILE:FUNCTION [OBJECT]"; a function of several files names its object only once.
    /^ *[0-9,]+ +[^ ]*:/ {
        count = $1
        gsub(",", "", count)
        object = "program"
        if (match($0, /\[[^]]*\]$/)) {
            object = substr($0, RSTART + 1, RLENGTH - 2)
            sub(".*/", "", object)
            function_object[$2] = object
        } else if ($2 in function_object) {
            object = function_object[$2]
        }
        sub("[-.0-9]*[.]so.*", "", object)
        sum[object] += count
        total += count
    }
    END {
        for (object in sum)
            printf "%6.2f %% %14d  %s\n", 100 * sum[object] / total, sum[object], object
    }' | sort -rn
