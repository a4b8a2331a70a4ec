#!/bin/sh
# clean.sh: removes what was built; the cache stays.
set -eu
. "$(dirname "$0")/common.sh"

rm -rf "$build" || fail "could not remove $build: remove it by hand"
say "removed $build; what is kept between builds stays in $cache"
