#!/bin/sh
# clean.sh: removes what was built; cairo stays in the cache.
set -eu
. "$(dirname "$0")/common.sh"

rm -rf "$build" || fail "could not remove $build: remove it by hand"
say "removed $build; cairo stays in $cache"
