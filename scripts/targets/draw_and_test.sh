#!/bin/sh
# draw_and_test.sh NAME [CTEST-OPTION...]: draws demo's pictures and runs the tests of the usual build, in another Debian.
set -eu
target=$1
shift

./run demo > build/demo.log 2>&1 || {
    tail -n 20 build/demo.log >&2
    exit 1
}
scripts/build.sh default test -DDTKHDDVD_TESTS=ON
echo "testing ($target) ..."
exec ctest --preset default -j "$(nproc)" "$@"
