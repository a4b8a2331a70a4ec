#!/bin/sh
# coverage.sh: how much of src/ and geometry/ the unit tests, those on real DirectFB and the one of the debug domain run
# through, in lines and branches. A summary goes to standard output, the pages to build/coverage/report. Anything less than
# all is a failure.
set -eu
. "$(dirname "$0")/common.sh"

[ $# -eq 0 ] || fail "coverage takes no options"
"$root/scripts/setup.sh" build test coverage
directory=$build/coverage
locked "$build/lock"

say "configuring (coverage) ..."
: > "$build/configure-coverage.log"
logged "$build/configure-coverage.log" "CMake could not configure: see the message above" \
    cmake -S "$root" -B "$directory" -DDTKHDDVD_TESTS=ON -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_C_FLAGS="--coverage -fprofile-abs-path" -DCMAKE_CXX_FLAGS="--coverage -fprofile-abs-path"
say "building (coverage) ..."
cmake --build "$directory" -j "$(nproc)" || fail "the build failed: see the first error above"

say "testing (coverage) ..."
find "$directory" -name '*.gcda' -delete
: > "$directory/tests.log"
for choice in "-L ^(unit|real)$" "-R ^Trace"; do
    # shellcheck disable=SC2086 # An option and its value.
    logged "$directory/tests.log" "a test failed: ./run test tells more" \
        ctest --test-dir "$directory" -j "$(nproc)" --output-on-failure --no-tests=error -E memcheck $choice
done

# The library, and its sources that the unit tests compile in.
mkdir -p "$directory/report"
gcovr --root "$root" --filter "$root/src/" --filter "$root/geometry/" --object-directory "$directory" \
    --exclude-unreachable-branches --exclude-throw-branches --txt --print-summary --html-details "$directory/report/index.html" \
    --fail-under-line 100 --fail-under-branch 100 "$directory/src" "$directory/tests/unit" ||
    fail "not everything is run through: open $directory/report/index.html"
