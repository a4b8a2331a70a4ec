#!/bin/sh
# docs.sh [DIRECTORY]: makes pages of the guide and of the public headers' reference, in build/docs unless said otherwise. A
# warning of Doxygen or mandoc, a dead link and a table that Doxygen could not read are failures.
set -eu
. "$(dirname "$0")/common.sh"

directory=${1:-$build/docs}
"$root/scripts/packages.sh" docs
mkdir -p "$directory"
cd "$root"
rm -rf "$directory/html"
DTKHDDVD_DOCS=$directory DTKHDDVD_THEME=/usr/share/doxygen-awesome-css doxygen docs/Doxyfile ||
    fail "the documentation has faults: see above"

# Where Doxygen loses its way in a table or a link it leaves tags, brackets, or the page's own file in the text.
! grep -lE -e 'ilinebr|&lt;t[dr]|\]\([a-z]|@ref' -e "$root/" "$directory"/html/*.html || fail "these pages have a broken table or link: see above"
# linkchecker gives up root's rights, with which alone it might be able to read the build directory.
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
trap 'exit 1' HUP INT TERM
cp -R "$directory/html" "$copy"
chmod -R a+rX "$copy"
# Doxygen's style sheet names pictures of the search that these pages do not have.
links=$(cd "$copy/html" && linkchecker --no-status --no-warnings -r -1 --ignore-url='/mag[a-z_]*[.]svg$' index.html 2> /dev/null) ||
    fail "a page has a dead link:
$links"

# mandoc does not know pages that are not installed.
faults=$(mandoc -T lint docs/man/* | grep -v 'referenced manual not found' || :)
[ -z "$faults" ] || fail "the manual pages have faults:
$faults"
say "The guide: $directory/html/index.html"
