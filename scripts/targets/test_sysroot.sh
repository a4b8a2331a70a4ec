# shellcheck shell=sh
# Sourced by targets.sh: cross-compiled here, run natively or under an emulator.

directory=$build/$target

configure() {
    cmake -S "$root" -B "$directory" --toolchain "$sysroot/toolchain.cmake" -DDTKHDDVD_TESTS=ON \
        "-DDTKHDDVD_WERROR=${DTKHDDVD_WERROR:-OFF}" "$@"
}

# A configuration made with another sysroot would go on using it.
is_stale() {
    [ -e "$directory/CMakeCache.txt" ] && ! grep -qF "$sysroot/toolchain.cmake" "$directory/CMakeCache.txt"
}

build_and_test() {
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
    test_here --no-tests=error -LE programs "$@"
    # Options may choose tests that have nothing to do with cairo.
    say "testing ($target, with cairo's DirectFB back end) ..."
    LD_LIBRARY_PATH="$sysroot/directfb-cairo/lib" test_here --no-tests=ignore -L 'real|targets' "$@"
}

test_here() {
    ctest --test-dir "$directory" -j "$(nproc)" --output-on-failure "$@"
}
