#!/bin/sh
# linked_libraries.sh LIBRARY SONAME: the library carries this soname and no C++ runtime.
set -eu
library=$1 soname=$2
dynamic=$(readelf -d "$library")

printf '%s\n' "$dynamic" | grep -qF "soname: [$soname]" || { echo "the soname is not $soname"; exit 1; }
printf '%s\n' "$dynamic" | grep -qF NEEDED || { echo "no NEEDED entries were found"; exit 1; }
if printf '%s\n' "$dynamic" | grep -E 'NEEDED.*\[(libstdc\+\+|libc\+\+|libsupc\+\+|libgcc_s)'; then
    echo "a user of the library would need this runtime"
    exit 1
fi
