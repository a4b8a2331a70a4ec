#!/bin/sh
# board_build.sh: the project built for a board in each way that it can be named, and nothing hosted in it. The board is a
# copy of the skeleton; PROJECT, WORK, CMAKE, CC and CXX come by the environment.
set -eu
jobs=$(nproc)
rm -rf "$WORK"
mkdir -p "$WORK"

wrong() {
    echo "board_build: $*"
    exit 1
}

# configure NAME PLATFORM [OPTION...]
configure() {
    name=$1 platform=$2
    shift 2
    "$CMAKE" -G 'Unix Makefiles' -S "$PROJECT" -B "$WORK/$name" "-DDTKHDDVD_PLATFORM=$platform" -DDTKHDDVD_TESTS=OFF -DCMAKE_BUILD_TYPE=Debug \
        "-DCMAKE_C_COMPILER=$CC" "-DCMAKE_CXX_COMPILER=$CXX" "$@" > "$WORK/$name.log" 2>&1
}

build() {
    name=$1
    shift
    "$CMAKE" --build "$WORK/$name" -j "$jobs" --target "$@" >> "$WORK/$name.log" 2>&1 ||
        wrong "$name does not build: $(cat "$WORK/$name.log")"
}

# A maker's folder, whose sources become the target zuvo.
cp -R "$PROJECT/platform/skeleton" "$WORK/my board"
configure sources "$WORK/my board" || wrong "sources: $(cat "$WORK/sources.log")"
build sources zuvo
grep -q ' \.\./libzuvo\.so' "$WORK/sources/src/CMakeFiles/dtkhddvd.dir/link.txt" || wrong "the board is not linked"
[ ! -e "$WORK/sources/platform/hosted" ] || wrong "the hosted platform is part of it"

# A development kit, a header and a library, from which all is built.
mkdir -p "$WORK/kit/include" "$WORK/kit/lib"
cp "$PROJECT/platform/include/zuvo.h" "$WORK/kit/include"
cp -P "$WORK"/sources/libzuvo.so* "$WORK/kit/lib"
configure files "$WORK/kit" || wrong "files: $(cat "$WORK/files.log")"
grep -q "platform: $WORK/kit/lib/libzuvo.so with $WORK/kit/include/zuvo.h" "$WORK/files.log" || wrong "another kit was found"
build files zuvo_check
readelf -d "$WORK/files/libdtkhddvd.so" | grep -q 'NEEDED.*libzuvo\.so' || wrong "the kit's library is not linked"
[ -z "$(find "$WORK/files" -name 'libzuvo*' -o -path '*/platform/hosted/*' -name '*.o')" ] || wrong "a platform was compiled"
! grep -q "$PROJECT/platform/include" "$WORK/files/src/CMakeFiles/dtkhddvd.dir/flags.make" || wrong "another zuvo.h is used"
LD_LIBRARY_PATH=$WORK/kit/lib "$WORK/files/zuvo_check" --level required --scenes 20 --dfb:system=dummy,quiet \
    > "$WORK/check.log" || wrong "$(cat "$WORK/check.log")"

# A package.
mkdir "$WORK/packages"
printf 'Name: zuvo\nDescription: a board\nVersion: 1\nLibs: -L%s -lzuvo\nCflags: -I%s\n' \
    "$WORK/kit/lib" "$WORK/kit/include" > "$WORK/packages/zuvo.pc"
PKG_CONFIG_PATH=$WORK/packages configure package package || wrong "package: $(cat "$WORK/package.log")"
grep -rq "$WORK/kit/lib/libzuvo.so" "$WORK/package/src/CMakeFiles/dtkhddvd.dir/link.txt" || wrong "the package is not linked"

# What is none.
if configure none "$WORK/packages"; then wrong "a folder without a platform is taken"; fi
grep -q 'has neither a CMakeLists.txt nor' "$WORK/none.log" || wrong "$(cat "$WORK/none.log")"
if PKG_CONFIG_PATH=/nowhere configure none package; then wrong "a package that is not there is taken"; fi
