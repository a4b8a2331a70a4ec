#!/bin/sh
# check.sh: looks through the sources with clang-tidy and cppcheck; any finding is a failure. The checks are chosen in
# scripts/check.clang-tidy and scripts/check.cppcheck.
set -eu
. "$(dirname "$0")/common.sh"

"$root/scripts/setup.sh" build check
directory=$build/check
locked "$build/lock"
: > "$build/configure-check.log"
logged "$build/configure-check.log" "CMake could not configure: see the message above" \
    cmake -S "$root" -B "$directory" -DCMAKE_EXPORT_COMPILE_COMMANDS=ON -DDTKHDDVD_TESTS=OFF

sources() {
    find "$root/src" "$root/platform/hosted" "$root/test_dtkhd" -name '*.c' -o -name '*.cpp' | sort
}

say "clang-tidy ..."
# It counts what it leaves out as warnings, on standard error.
sources | xargs -P "$(nproc)" -n 4 clang-tidy -p "$directory" --quiet --config-file="$root/scripts/check.clang-tidy" \
    2> "$directory/clang-tidy.log" || {
    grep -v 'warnings* generated' "$directory/clang-tidy.log" >&2 || :
    fail "clang-tidy found something: see above"
}
say "the headers, by clang ..."
for language in c c++; do
    compiler=clang
    [ $language = c ] || compiler=clang++
    # shellcheck disable=SC2046 # The flags are split.
    "$root/tests/abi/headers_compile.sh" $compiler $language "-I$root/include" "-I$root/platform/include" \
        $(pkg-config --cflags directfb | sed 's/-I/-isystem /g') || fail "a header does not compile: see above"
done
say "cppcheck ..."
cppcheck --project="$directory/compile_commands.json" --quiet --inline-suppr -j "$(nproc)" --error-exitcode=1 \
    --enable=warning,performance,portability --suppressions-list="$root/scripts/check.cppcheck" ||
    fail "cppcheck found something: see above"
