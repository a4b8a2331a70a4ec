#!/bin/sh
# targets.sh NAME [CTEST-OPTION...]: builds everything for another machine or another Debian and runs the tests there.
set -eu
. "$(dirname "$0")/common.sh"
. "$root/scripts/apt.sh"
. "$root/scripts/targets/target.sh"

[ $# -ge 1 ] || fail "--target needs a name: $targets"
describe_target "$1"
shift
if [ -n "$release" ]; then kind=chroot; else kind=sysroot; fi

# What a later release's cross compilers link wants a later C++ library than the sysroot's.
if [ $kind = sysroot ] && [ "$(release_here)" != "$directfb_release" ]; then
    fail "$target can only be tested on Debian 12, whose cross compilers fit the libraries that it runs with"
fi

# A process of its own, so that the cache's lock is given back.
prepare() (
    lock_cache
    "$root/scripts/packages.sh" build "$target"
    "$root/scripts/$kind.sh" "$target"
)

prepare
# shellcheck source=/dev/null
. "$root/scripts/targets/test_$kind.sh"
build_and_test "$@"
