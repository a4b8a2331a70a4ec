#!/bin/sh
# targets.sh NAME [CTEST-OPTION...]: builds everything for another machine and runs the tests there: i386 natively, armel and
# mipsel under an emulator.
set -eu
. "$(dirname "$0")/common.sh"
. "$root/scripts/targets/target.sh"

[ $# -ge 1 ] || fail "targets.sh needs a name: i386, armel or mipsel"
describe_target "$1"
shift
directory=$build/$target

# A process of its own, so that the cache's lock is given back.
prepare() (
    lock_cache
    "$root/scripts/packages.sh" build "$target"
    "$root/scripts/sysroot.sh" "$target"
)

configure() {
    cmake -S "$root" -B "$directory" --toolchain "$sysroot/toolchain.cmake" -DDTKHDDVD_TESTS=ON \
        "-DDTKHDDVD_WERROR=${DTKHDDVD_WERROR:-OFF}" "$@"
}

# A configuration made with another sysroot would go on using it.
is_stale() {
    [ -e "$directory/CMakeCache.txt" ] && ! grep -qF "$sysroot/toolchain.cmake" "$directory/CMakeCache.txt"
}

prepare
locked "$build/lock"
fresh=''
if is_stale; then fresh=--fresh; fi
say "configuring ($target) ..."
: > "$build/configure-$target.log"
# shellcheck disable=SC2086 # No option at all when it is empty.
logged "$build/configure-$target.log" "CMake could not configure for $target: see the message above" configure $fresh
say "building ($target) ..."
cmake --build "$directory" -j "$(nproc)" || fail "the build for $target failed: see the first error above"
say "testing ($target) ..."
# The programs start one another by name, which an emulator does not see.
ctest --test-dir "$directory" -j "$(nproc)" --output-on-failure --no-tests=error -LE programs "$@"
