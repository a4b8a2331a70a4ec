#!/bin/sh
# fuzz.sh [--seconds N]: lets libFuzzer look for inputs that break the toolkit, the engine and the player of traces, N seconds in all. What it
# finds worth trying stays in the cache, where the next run goes on; an input that breaks something is left in build/fuzz.
set -eu
. "$(dirname "$0")/common.sh"

seconds=60
case ${1-} in
    '') ;;
    --seconds)
        [ $# -eq 2 ] || fail "--seconds needs a number: ./run fuzz --seconds N"
        seconds=$2
        ;;
    *) fail "fuzz knows no option $1: ./run fuzz --seconds N" ;;
esac
case $seconds in
    '' | *[!0-9]*) fail "\"$seconds\" is no number of seconds" ;;
esac

"$root/scripts/setup.sh" build test fuzz
directory=$build/fuzz
locked "$build/lock"
say "configuring (fuzz) ..."
: > "$build/configure-fuzz.log"
logged "$build/configure-fuzz.log" "CMake could not configure: see the message above" \
    cmake -S "$root" -B "$directory" -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ -DDTKHDDVD_TESTS=ON -DDTKHDDVD_FUZZ=ON
say "building (fuzz) ..."
cmake --build "$directory" -j "$(nproc)" --target fuzz_toolkit fuzz_engine fuzz_trace || fail "the build failed: see the first error above"

# Reattaching leaks by contract, which is why leaks are left to the other tests.
export ASAN_OPTIONS=detect_leaks=0:quarantine_size_mb=32
for name in toolkit engine trace; do
    corpus=$cache/corpus-$name
    mkdir -p "$corpus"
    say "fuzzing ($name, $((seconds / 3 + 1)) s) ..."
    log=$directory/$name.log
    watch "$log" $((seconds / 3 + 1))
    "$directory/fuzz_$name" -close_fd_mask=3 -max_total_time=$((seconds / 3 + 1)) -timeout=10 -max_len=400 -rss_limit_mb=4096 \
        -print_final_stats=1 -artifact_prefix="$directory/" "$corpus" "$root/tests/fuzz/corpus/$name" > "$log" 2>&1 || {
        tail -n 40 "$log" >&2
        fail "an input breaks the $name: it is in $directory, keep it in tests/fuzz/corpus/$name when it is mended"
    }
    watch_end
    sed -n 's/^stat::number_of_executed_units: */  inputs tried: /p' "$log"
done
