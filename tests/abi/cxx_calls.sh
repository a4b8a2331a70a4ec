#!/bin/sh
# cxx_calls.sh COMPILER FLAG...: a call by the C++ interface is the same instructions as the call in C.
set -eu
compiler=$1
shift
here=$(dirname "$0")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$compiler" -std=c++17 -O2 -DDIRECTFBPP_H "$@" -c "$here/cxx_calls.cpp" -o "$work/calls.o"

# instructions FUNCTION: without addresses, and without what pads the function's end.
instructions() {
    objdump -d --no-show-raw-insn --disassemble="$1" "$work/calls.o" | sed -n 's/^ *[0-9a-f]*:\t//p' |
        sed 's/[0-9a-f]* <[^>]*>//' | grep -Ev '^(data16 |cs |xchg +%ax,%ax|nop)'
}

compared=0
for call in color pattern line rectangle polygon ellipse; do
    instructions c_$call > "$work/c"
    instructions cxx_$call > "$work/cxx"
    [ -s "$work/c" ] || { echo "$call was not compiled"; exit 1; }
    diff "$work/c" "$work/cxx" || { echo "$call is something else in C++"; exit 1; }
    compared=$((compared + 1))
done
echo "$compared calls are the same instructions"
