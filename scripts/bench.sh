#!/bin/sh
# bench.sh: builds the benchmarks with the libraries they compare with, and runs them.
set -eu
. "$(dirname "$0")/common.sh"

[ -e "$root/bench/CMakeLists.txt" ] || fail "the benchmarks are not there yet: the other words are"
"$root/scripts/build.sh" default "bench peers" -DDTKHDDVD_BENCH=ON
cmake --build "$build" --target bench_run || fail "the benchmarks failed: see the message above"
if [ -e "$cairo/lib/libcairo.so.2" ]; then
    "$root/bench/cairo_ways.sh" "$build/bench_contest" "$cairo/lib"
else
    say "No cairo with its DirectFB back end is measured: ./run test --directfb-cairo builds one."
fi
