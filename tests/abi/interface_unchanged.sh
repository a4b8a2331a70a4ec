#!/bin/sh
# interface_unchanged.sh [--renew] LIBRARY HEADER: the library's exported functions, variables and records are those of
# interface.abi, in their types and layout. LIBRARY is one with debug information.
#
# After a change that is wanted, and that keeps old programs working or comes with a new soname, make it anew:
#     tests/abi/interface_unchanged.sh --renew build/asan/libdtkhddvd.so include/dtkhddvd.h
set -eu
here=$(dirname "$0")
command -v abidiff > /dev/null || { echo "there is no abidiff: install abigail-tools"; exit 1; }

renew() {
    abidw --suppressions "$here/interface.suppressions" --header-file "$2" --drop-private-types \
        --exported-interfaces-only --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed --no-write-default-sizes "$1" |
        sed "s, path='[^']*/\(src\|test_dtkhd\)/, path='\1/," > "$here/interface.abi"
}

if [ "$1" = --renew ]; then
    renew "$2" "$3"
    exit
fi
abidiff --suppressions "$here/interface.suppressions" --header-file2 "$2" --drop-private-types \
    "$here/interface.abi" "$1" || {
    echo "the exported interface is another one; the head of tests/abi/interface_unchanged.sh says what to do"
    exit 1
}
