#!/bin/sh
# setup.sh LIST...: makes the machine ready to build: the packages of the named lists.
set -eu
. "$(dirname "$0")/common.sh"

lock_cache
"$root/scripts/packages.sh" "$@"
