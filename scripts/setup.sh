#!/bin/sh
# setup.sh LIST...: makes the machine ready to build: the packages of the named lists, then cairo.
set -eu
. "$(dirname "$0")/common.sh"

lock_cache
"$root/scripts/packages.sh" "$@"
"$root/scripts/cairo.sh"
