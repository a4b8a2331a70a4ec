#!/bin/sh
# version.sh: prints the version, which the public header has, and fails where the latest entry of a changelog has another.
set -eu
. "$(dirname "$0")/common.sh"

version=$(sed -n 's/^#define DTKHDDVD_VERSION_[A-Z]* //p' "$root/include/dtkhddvd.h" | paste -s -d .)

# expect FILE VERSION
expect() {
    [ "$2" = "$version" ] || fail "the latest version in $1 is ${2:-missing}, and that of include/dtkhddvd.h is $version"
}

expect CHANGELOG.md "$(sed -n 's/^## \([0-9].*\)/\1/p' "$root/CHANGELOG.md" | head -n 1)"
expect debian/changelog "$(sed -n '1s/.*(\(.*\)).*/\1/p' "$root/debian/changelog")"
printf '%s\n' "$version"
