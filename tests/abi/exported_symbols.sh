#!/bin/sh
# exported_symbols.sh LIBRARY MAP HEADER: the library exports what the version script names, and the header declares it.
set -eu
library=$1 map=$2 header=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

exported() {
    nm -D --defined-only --extern-only "$library" | awk '$2 != "A" { sub(/@.*/, "", $3); print $3 }' | sort
}

mapped() {
    sed -n '/global:/,/local:/p' "$map" | tr -d ' \n' | sed 's/global://; s/local:.*//' | tr ';' '\n' |
        sed '/^$/d' | sort
}

# A program's main has no place in a header.
declared() {
    echo main
    without_comments "$header" | sed '/^#/d; s/extern "C" {//' | tr '\n' ' ' | without_braces | tr ';' '\n' | awk '
        /^ *typedef/ || /^ *struct/ { next }
        /\(/ { sub(/ *\(.*/, ""); sub(/.*[ *]/, ""); print; next }
        /extern/ { sub(/ *extern +[A-Za-z_0-9]+ /, ""); gsub(/\[[^]]*\]|[* ]/, ""); gsub(/,/, "\n"); print }'
}

without_comments() {
    sed 's|/\*.*\*/||' "$1" | sed '/\/\*/,/\*\//d'
}

# Members of records stand in braces.
without_braces() {
    awk '{ while (sub(/\{[^{}]*\}/, "")); print }'
}

exported > "$work/exported"
mapped > "$work/mapped"
declared | sort > "$work/declared"
[ "$(wc -l < "$work/exported")" -gt 50 ] || { echo "only $(wc -l < "$work/exported") exported symbols found"; exit 1; }

result=0
diff -u --label "the version script" --label "exported" "$work/mapped" "$work/exported" || result=1
diff -u --label "the header" --label "exported" "$work/declared" "$work/exported" || result=1
exit $result
