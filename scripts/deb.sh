#!/bin/sh
# deb.sh: makes the Debian packages in build/deb by dpkg-buildpackage, from a copy of the sources, and lets blhc look for
# compilations without hardening and lintian at everything. Once the needed packages are installed it needs no network.
set -eu
. "$(dirname "$0")/common.sh"

"$root/scripts/setup.sh" build docs deb
locked "$build/lock"
directory=$build/deb
log=$build/deb.log

copy_sources() {
    rm -rf "$directory" && mkdir -p "$directory/dtkhddvd" &&
        tar -C "$root" --exclude-vcs --exclude=./build --exclude='./build-*' -c . | tar -C "$directory/dtkhddvd" -x
}

# The tests have ./run test, and symbols for a debugger the build directory.
pack() {
    cd "$directory/dtkhddvd" &&
        DEB_BUILD_OPTIONS="nocheck noautodbgsym parallel=$(nproc)" dpkg-buildpackage -us -uc -Pnocheck
}

copy_sources || fail "the sources could not be copied to $directory: check the free space"
: > "$log"
say "building and packing (its output goes to $log) ..."
logged "$log" "the packages could not be made: see the message above" pack
say "looking through the compilation ..."
blhc --all "$log" || fail "blhc found a compilation without hardening: see above"
say "looking through the packages ..."
lintian --allow-root --no-cfg --display-info --pedantic --fail-on error,warning,info,pedantic "$directory"/*.changes ||
    fail "lintian found something: see above"
say "The packages:"
for package in "$directory"/*.deb; do say "  $package"; done
