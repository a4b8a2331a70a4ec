#!/bin/sh
# include_order.sh PROJECT: each folder includes only what stands below it, and nothing that needs a C++ runtime.
set -eu
cd "$1"
failures=0

# Prints what each #include line of the given files has between its quotes or brackets, after the file's name.
included() {
    quote=$1
    shift
    case $quote in
        quotes) grep -H '^ *# *include *"' "$@" | sed 's/:[^"]*"/ /; s/".*//' ;;
        brackets) grep -H '^ *# *include *<' "$@" | sed 's/:[^<]*</ /; s/>.*//' ;;
    esac
}

# check FILES-PATTERN ALLOWED-PATTERN: the quoted includes of these files.
check() {
    # shellcheck disable=SC2086 # The pattern names the files.
    set -- "$2" $1
    allowed=$1
    shift
    [ -e "$1" ] || { echo "no file matches $1"; failures=1; return; }
    if included quotes "$@" | grep -Ev "^[^ ]+ ($allowed)$"; then
        echo "... may include only: $allowed"
        failures=1
    fi
}

check 'geometry/*' 'geometry/.*'
check 'src/toolkit/*' '(toolkit|geometry)/.*|dtkhddvd\.h|zuvo\.h'
check 'src/pen/*' '(pen|toolkit|geometry)/.*|dtkhddvd\.h|zuvo\.h'
check 'src/raster/*' '(raster|pen|toolkit|geometry)/.*|dtkhddvd\.h'
check 'src/software/[!b]*' '(software|raster|pen|toolkit|geometry)/.*|dtkhddvd\.h'
check 'src/software/b*' '(software|raster|pen|toolkit|geometry)/.*|dtkhddvd\.h|zuvo\.h'
check 'src/hardware/*' '(hardware|pen|toolkit|geometry)/.*|dtkhddvd\.h|zuvo\.h'
own='[a-z0-9_]+\.h'
hosted=platform/hosted
check "$hosted/pixels/*" "$own"
check "$hosted/driver/*" "$own|(pixels|geometry)/.*|start/directfb_system\.h|directfb_variant\.h"
check "$hosted/window/*" "$own|\.\./start/options\.h"
check "$hosted/engine/surface/*" "$own|engine/(buffer\.h|paint/pixels\.h)|geometry/.*"
check "$hosted/engine/paint/*" "$own|engine/span\.h|pixels/.*"
check "$hosted/engine/fill/*" "$own|engine/(buffer|span)\.h|geometry/.*"
check "$hosted/engine/outline/*" "$own|engine/((buffer|span)\.h|(fill|paint)/.*|surface/directfb_core\.h)|(geometry|pixels)/.*"
check "$hosted/engine/*.*" "$own|engine/.*|geometry/.*|pixels/rows\.h|start/.*"
check "$hosted/start/*" "$own|driver/accel\.h|engine/surface/.*|window/window\.h"
check 'platform/skeleton/*' "$own"
check 'platform/virtual/*' "$own"
check 'tools/*.*' "$own"
check 'tools/check/*' "(\.\./)?$own"
check 'bench/*.*' "$own|geometry/.*|driver/accel\.h"
check 'bench/peers/*' "$own"
check 'test_dtkhd/*.[ch]*' '(test_dtkhd/)?[a-z_]+\.h|toolkit/report\.h|dtkhddvd\.h|zuvo\.h'

# What needs no runtime, and what the library draws with.
headers='algorithm|atomic|cassert|cmath|cstddef|cstdint|cstdio|cstdlib|cstring|initializer_list|limits|type_traits|utility'
foreign='cairo\.h|direct/debug\.h|directfb\.h|stdint\.h|sys/time\.h|time\.h'
if included brackets src/*/*.cpp src/*/*.h geometry/*.h | grep -Ev "^[^ ]+ ($headers|$foreign)$"; then
    echo "... needs a C++ runtime, or is nothing that the library builds on"
    failures=1
fi

if grep -nE '^ *# *define +[A-Za-z_0-9]+\(' include/*.h platform/include/*.h src/*/* geometry/*.h; then
    echo "... is a macro that takes arguments"
    failures=1
fi
exit $failures
