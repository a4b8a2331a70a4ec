#!/bin/sh
# all.sh [CTEST-OPTION...]: every test, here and on each target, with either cairo, and at the end a table of what passed and
# of the minutes that it took, set-up and build included. A failure does not keep the others from being tested.
set -eu
. "$(dirname "$0")/common.sh"
. "$root/scripts/targets/target.sh"

table=$build/all.txt
failed=$build/all.failed

# add_row NAME RESULT: with the time since the row before.
add_row() {
    now=$(date +%s)
    tenths=$(((now - since + 3) / 6)) since=$now
    printf '%-48s %-16s %5d.%d\n' "$1" "$2" $((tenths / 10)) $((tenths % 10)) >> "$table"
}

# Passes a run's output on. CTest ends with "99% tests passed, 1 tests failed out of 812".
note_results() {
    since=$(date +%s) name=''
    while IFS= read -r line; do
        printf '%s\n' "$line"
        case $line in
            "testing ("*") ...") name=${line#testing (} ;;
            *"% tests passed, "*)
                # shellcheck disable=SC2086 # Into its words.
                set -- $line
                add_row "${name%) ...}" "$(($9 - $4)) of $9"
                ;;
        esac
    done
}

# step NAME COMMAND...
step() {
    name=$1
    shift
    { "$@" 2>&1 || printf ' %s' "$name" >> "$failed"; } | note_results
}

mkdir -p "$build"
: > "$failed"
printf '%-48s %-16s %7s\n' 'where' 'tests passed' 'minutes' > "$table"
step here "$root/scripts/test.sh" "$@"
step cairo "$root/scripts/test.sh" --directfb-cairo "$@"
for target in $targets; do step "$target" "$root/scripts/test.sh" --target "$target" "$@"; done
cat "$table"
[ ! -s "$failed" ] || fail "not all is well:$(cat "$failed")"
