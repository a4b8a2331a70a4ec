#!/bin/sh
# setup.sh LIST...: makes the machine ready to build: the packages of the named lists.
set -eu
. "$(dirname "$0")/common.sh"

locked "$cache/lock" ", or set XDG_CACHE_HOME to another one"
"$root/scripts/packages.sh" "$@"
