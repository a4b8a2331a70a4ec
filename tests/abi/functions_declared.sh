#!/bin/sh
# functions_declared.sh PROJECT COMPILER FLAG...: every function that crosses files is declared in a header.
set -eu
project=$1 compiler=$2
shift 2

result=0
for source in "$project"/src/*/*.cpp; do
    "$compiler" -std=c++17 -fno-exceptions -fno-rtti -DDIRECTFBPP_H -Wmissing-declarations -Werror -fsyntax-only \
        "-I$project" "-I$project/src" "-I$project/include" "-I$project/platform/include" "$@" "$source" || result=1
done
exit $result
