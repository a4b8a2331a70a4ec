#!/bin/sh
# headers_compile.sh COMPILER LANGUAGE FLAG...: the headers compile without a warning in every standard of the language.
set -eu
compiler=$1 language=$2
shift 2
here=$(dirname "$0")

compile() {
    standard=$1 program=$2
    shift 2
    "$compiler" -x "$language" "-std=$standard" -Wall -Wextra -Wpedantic -Werror -fsyntax-only "$@" \
        "$here/$program" || {
        echo "$program does not compile with $compiler -std=$standard"
        exit 1
    }
}

case $language in
    c)
        # DirectFB's own headers say inline, which the oldest C does not know.
        compile c89 public_header.c -Wno-long-long -Dinline=__inline "$@"
        for standard in c99 c11; do
            compile $standard public_header.c "$@"
            compile $standard platform_header.c "$@"
        done
        ;;
    c++)
        for standard in c++11 c++17; do
            for program in public_header.c platform_header.c; do
                compile $standard $program "$@"
                compile $standard $program -DDIRECTFBPP_H "$@"
            done
        done
        for exceptions in -fexceptions -fno-exceptions; do
            compile c++17 cxx_header.cpp $exceptions "$@"
            compile c++17 cxx_header.cpp $exceptions -DDIRECTFBPP_H "$@"
        done
        ;;
    *)
        echo "no language is named $language"
        exit 1
        ;;
esac
