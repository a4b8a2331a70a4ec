#!/bin/sh
# docs.sh [DIRECTORY]: makes pages of the guide and of the public header's reference, in build/docs unless said otherwise. A
# warning of Doxygen or mandoc is a failure.
set -eu
. "$(dirname "$0")/common.sh"

directory=${1:-$build/docs}
"$root/scripts/packages.sh" docs
mkdir -p "$directory"
cd "$root"
DTKHDDVD_DOCS=$directory doxygen docs/Doxyfile ||
    fail "the documentation has faults: see above"

# mandoc does not know pages that are not installed.
faults=$(mandoc -T lint docs/man/* | grep -v 'referenced manual not found' || :)
[ -z "$faults" ] || fail "the manual pages have faults:
$faults"
say "The guide: $directory/html/index.html"
