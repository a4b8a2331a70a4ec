#!/bin/sh
# build.sh PRESET [LISTS [CMAKE-OPTION...]]: sets the machine up, configures the preset and builds it. LISTS names further
# lists of packages.
set -eu
. "$(dirname "$0")/common.sh"

preset=$1 lists=${2-}
shift "$(($# < 2 ? $# : 2))"
directory=$build
[ "$preset" = default ] || directory=$build/$preset

# A configuration made for another place of the project or of cairo would quietly go on using the old one.
is_stale() {
    [ -e "$directory/CMakeCache.txt" ] || return 1
    ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$directory/CMakeCache.txt" ||
        ! grep -qxF "CAIRO_LIBDIR:INTERNAL=$(pkg-config --variable=libdir cairo)" "$directory/CMakeCache.txt"
}

configure() {
    cmake -S "$root" --preset "$preset" -DDTKHDDVD_TESTS=OFF -DDTKHDDVD_BENCH=OFF \
        "-DDTKHDDVD_WERROR=${DTKHDDVD_WERROR:-OFF}" "$@"
}

# shellcheck disable=SC2086 # The lists are split into their names.
"$root/scripts/setup.sh" build $lists
locked "$build/lock"
if is_stale; then set -- --fresh "$@"; fi

say "configuring ($preset) ..."
: > "$build/configure-$preset.log"
logged "$build/configure-$preset.log" "CMake could not configure: see the message above; ./run clean starts afresh" \
    configure "$@"
say "building ($preset) ..."
cmake --build "$directory" -j "$(nproc)" || fail "the build failed: see the first error above; ./run clean starts afresh"
