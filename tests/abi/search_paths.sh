#!/bin/sh
# search_paths.sh DIRECTORY: no program or library of a build looks for libraries in the current folder, as it would by
# an empty entry in its search path.
set -eu

status=0 count=0
for file in "$1"/*; do
    [ -f "$file" ] || continue
    paths=$(readelf -d "$file" 2>/dev/null | sed -n 's/.*(R[UN]*PATH).*\[\(.*\)\]/\1/p')
    [ -n "$paths" ] || continue
    count=$((count + 1))
    case :$paths: in
        *::*)
            echo "$file has an empty entry in its search path: $paths"
            status=1
            ;;
    esac
done
[ "$count" -gt 0 ] || { echo "no program in $1 has a search path"; status=1; }
exit "$status"
