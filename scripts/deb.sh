#!/bin/sh
# deb.sh: makes the Debian packages in build/deb and lets lintian look at them.
set -eu
. "$(dirname "$0")/common.sh"

"$root/scripts/setup.sh" build docs deb
locked "$build/lock"
directory=$build/deb
log=$build/deb.log

# Every file goes where a package of Debian has it, which CMake tells from the prefix.
configure() {
    cmake --fresh -S "$root" -B "$directory" -DCMAKE_INSTALL_PREFIX=/usr -DDTKHDDVD_TESTS=OFF \
        "-DDTKHDDVD_HTML=$directory/docs/html" "-DDTKHDDVD_WERROR=${DTKHDDVD_WERROR:-OFF}"
}

: > "$log"
"$root/scripts/docs.sh" "$directory/docs" > /dev/null
say "configuring (deb) ..."
logged "$log" "CMake could not configure: see the message above" configure
say "building (deb) ..."
cmake --build "$directory" -j "$(nproc)" || fail "the build failed: see the first error above"
rm -f "$directory"/*.deb
say "packing ..."
logged "$log" "the packages could not be made: see the message above" cmake --build "$directory" --target package
say "looking through the packages ..."
lintian --allow-root --no-cfg --suppress-tags-from-file "$root/scripts/deb.lintian" --fail-on error,warning "$directory"/*.deb ||
    fail "lintian found something: see above"
say "The packages:"
for package in "$directory"/*.deb; do say "  $package"; done
