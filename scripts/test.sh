#!/bin/sh
# test.sh [--asan | --target NAME] [CTEST-OPTION...]: the tests as users build the library, then under the address and
# undefined behaviour sanitizers; or on another machine.
set -eu
. "$(dirname "$0")/common.sh"

if [ "${1-}" = --target ]; then
    shift
    exec "$root/scripts/targets.sh" "$@"
fi
presets='default asan'
if [ "${1-}" = --asan ]; then
    presets=asan
    shift
fi
for preset in $presets; do
    "$root/scripts/build.sh" "$preset" test -DDTKHDDVD_TESTS=ON
    say "testing ($preset) ..."
    cd "$root"
    ctest --preset "$preset" -j "$(nproc)" "$@"
done
