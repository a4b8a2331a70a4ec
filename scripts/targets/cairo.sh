#!/bin/sh
# cairo.sh SOURCE SYSROOT COMPILER TRIPLET FLAGS: builds cairo with its DirectFB back end for another machine, into
# SYSROOT/directfb-cairo, beside Debian's own cairo.
set -eu
source=$1 sysroot=$2 compiler=$3 triplet=$4 flags=$5

unset PKG_CONFIG_PATH
export PKG_CONFIG_LIBDIR="$sysroot/usr/lib/$triplet/pkgconfig" PKG_CONFIG_SYSROOT_DIR="$sysroot"

cd "$source"
# Debian's patches are newer than the generated files; with one time for all, make has no wish to run the autotools.
find . -exec touch -r configure {} +
./configure --host="$compiler" --build="$(gcc -dumpmachine)" --prefix=/directfb-cairo \
    CC="$compiler-gcc --sysroot=$sysroot" CFLAGS="-O2 -g1 -ffp-contract=off $flags -w" --enable-directfb=yes \
    --disable-static --disable-dependency-tracking --disable-xlib --disable-xcb --disable-gtk-doc --disable-ps --disable-pdf \
    --disable-svg --disable-script --disable-interpreter --disable-trace --disable-valgrind --disable-gobject \
    --disable-ft --disable-fc --disable-png
make -C src -s -j "$(nproc)"
make -C src -s install DESTDIR="$sysroot"
rm -f "$sysroot"/directfb-cairo/lib/libcairo*.la
