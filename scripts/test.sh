#!/bin/sh
# test.sh [--asan | --directfb-cairo | --target NAME | --all] [CTEST-OPTION...]: the tests as users build the library, then
# under the address and undefined behaviour sanitizers; or those that draw, with a cairo that has its DirectFB back end; or
# on another machine; or all of it.
set -eu
. "$(dirname "$0")/common.sh"

# test_preset PRESET [CTEST-OPTION...]
test_preset() {
    preset=$1
    shift
    "$root/scripts/build.sh" "$preset" test -DDTKHDDVD_TESTS=ON
    say "testing ($preset) ..."
    cd "$root"
    ctest --preset "$preset" -j "$(nproc)" "$@"
}

# The same build, with another cairo for the loader to find first.
test_with_directfb_cairo() {
    "$root/scripts/build.sh" default test -DDTKHDDVD_TESTS=ON
    "$root/scripts/cairo.sh"
    say "testing (default, with cairo's DirectFB back end) ..."
    cd "$root"
    export LD_LIBRARY_PATH="$cairo/lib${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}"
    ctest --preset default -j "$(nproc)" -L real "$@"
    [ $# -gt 0 ] || ctest --preset default -j "$(nproc)" -R '^(Documentation/Pictures|Gallery)'
}

mode=${1-}
case $mode in
    --target | --asan | --directfb-cairo | --all) shift ;;
esac
case $mode in
    --target) exec "$root/scripts/targets.sh" "$@" ;;
    --all) exec "$root/scripts/all.sh" "$@" ;;
    --asan) test_preset asan "$@" ;;
    --directfb-cairo) test_with_directfb_cairo "$@" ;;
    *)
        test_preset default "$@"
        test_preset asan "$@"
        ;;
esac
