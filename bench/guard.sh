#!/bin/sh
# guard.sh DTK_GUARD FILE [--keep]: counts the instructions that the project's own libraries take for each item of the table,
# and compares them with those in FILE. Fails where an item takes 2 % more. --keep writes FILE instead.
set -eu

program=$1 file=$2 keep=${3-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

valgrind --quiet --tool=callgrind --instr-atstart=no --compress-strings=no --compress-pos=no \
    --callgrind-out-file="$work/out" "$program" 2> "$work/log" > /dev/null || {
    cat "$work/log" >&2
    exit 1
}

# In each output the lines of a function follow the name of its library. A line after "calls=" is the callee's cost.
awk '
    /^desc: Trigger: Client Request: / { sub("^desc: Trigger: Client Request: ", ""); name = $0 }
    /^ob=/ { is_own = /\/lib(dtkhddvd|zuvo)\.so/ }
    /^calls=/ { getline; next }
    is_own && /^[0-9+*-]/ { sum[name] += $2 }
    END {
        for (name in sum)
            print name "," sum[name]
    }' "$work"/out.* | sort > "$work/counts"
[ -s "$work/counts" ] || { echo "guard: callgrind counted nothing" >&2; exit 1; }

if [ "$keep" = --keep ]; then
    mkdir -p "$(dirname "$file")"
    cp "$work/counts" "$file"
    echo "guard: $(wc -l < "$file") items are kept in $file"
    exit 0
fi

awk -F, '
    FNR == NR { kept[$1 "," $2] = $3; next }
    !(($1 "," $2) in kept) { print "guard: not kept: " $1 ", " $2; failed = 1; next }
    {
        before = kept[$1 "," $2]
        delete kept[$1 "," $2]
        ratio = $3 / before
        if (ratio > 1.02 || ratio < 0.98)
            printf "guard: %s, %s: %d instructions, %+.1f %%, kept are %d\n", $1, $2, $3, 100 * ratio - 100, before
        if (ratio > 1.02)
            failed = 1
    }
    END {
        for (name in kept) {
            print "guard: not counted: " name
            failed = 1
        }
        print failed ? "guard: slower, or other items: ./run bench --guard --keep, where that is meant" \
                     : "guard: nothing takes 2 % more instructions"
        exit failed
    }' "$file" "$work/counts"
