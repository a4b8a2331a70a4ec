#!/bin/sh
# recorded_functions.sh LIBRARY RECORDER: dtk_trace's recorder stands before every function that the library exports, but for
# the benchmark program, whose own calls are recorded.
set -eu

functions_of() {
    nm -D --defined-only "$1" | awk '$2 == "T" { print $3 }' | grep -vxE 'main|test_dtkhd|_init|_fini' | sort
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
functions_of "$1" > "$work/exported"
functions_of "$2" > "$work/recorded"
[ -s "$work/exported" ] || { echo "$1 exports no function"; exit 1; }
diff "$work/exported" "$work/recorded"
