#!/bin/sh
# bench.sh: builds the benchmarks with the libraries they compare with, and runs them.
# bench.sh --guard [--keep]: compares instruction counts with those in the tree, or keeps them there.
set -eu
. "$(dirname "$0")/common.sh"

# Another compiler makes other code, so each has a file of its own. clang does not know this option.
compiler() {
    version=$("${CXX:-c++}" -dumpfullversion 2>/dev/null) || version=unknown
    echo "gcc-$version-$(uname -m)"
}

guard() {
    kept=$root/bench/guard/$(compiler).csv
    [ -e "$kept" ] || [ "${1-}" = --keep ] || {
        say "guard: not compared, there are no counts of this compiler: $kept"
        exit 0
    }
    "$root/scripts/setup.sh" build guard
    locked "$build/lock"
    logged "$build/configure-guard.log" "CMake could not configure: see the message above; ./run clean starts afresh" \
        cmake -S "$root" --preset guard -DDTKHDDVD_TESTS=OFF -DDTKHDDVD_BENCH=ON
    cmake --build "$build/guard" -j "$(nproc)" --target dtk_guard || fail "the build failed: see the first error above"
    exec "$root/bench/guard.sh" "$build/guard/dtk_guard" "$kept" "$@"
}

case ${1-} in
    --guard) shift; guard "$@" ;;
    ?*) fail "bench knows no option \"$1\": --guard, and --keep after it" ;;
esac

[ -e "$root/bench/CMakeLists.txt" ] || fail "the benchmarks are not there yet: the other words are"
"$root/scripts/build.sh" default "bench peers" -DDTKHDDVD_BENCH=ON
cmake --build "$build" --target bench_run || fail "the benchmarks failed: see the message above"
if [ -e "$cairo/lib/libcairo.so.2" ]; then
    "$root/bench/cairo_ways.sh" "$build/bench_contest" "$cairo/lib"
else
    say "No cairo with its DirectFB back end is measured: ./run test --directfb-cairo builds one."
fi
