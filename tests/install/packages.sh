#!/bin/sh
# packages.sh PROJECT VERSION: makes the Debian packages, as ./run deb does with its checks by blhc and lintian, and looks
# into them.
set -eu
project=$1 version=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

wrong() {
    echo "$*"
    exit 1
}

field() {
    dpkg-deb -f "$project/build/deb/$1_$version"_*.deb "$2"
}

"$project/scripts/deb.sh" > "$work/log" 2>&1 || wrong "cannot be made: $(cat "$work/log")"
for package in libdtkhddvd1 libdtkhddvd-dev libzuvo1 libzuvo1-window dtkhddvd-tools dtkhddvd-doc; do
    [ "$(field $package Version)" = "$version" ] || wrong "no package $package"
    dpkg-deb -x "$project/build/deb/${package}_$version"_*.deb "$work/root"
    [ -s "$work/root/usr/share/doc/$package/copyright" ] || wrong "no copyright in $package"
    case $package in
        lib*) [ "$(field $package Multi-Arch)" = same ] || wrong "two architectures of $package cannot be installed" ;;
    esac
done
for library in libdtkhddvd1 libzuvo1; do
    dpkg-deb --ctrl-tarfile "$project/build/deb/${library}_$version"_*.deb | tar -xO ./symbols > "$work/symbols" ||
        wrong "no list of symbols in $library"
done
field libdtkhddvd1 Depends | grep -q 'libcairo2 .*libdirectfb-1\.7-7 .*libzuvo1' || wrong "the library depends on something else"
! field libzuvo1 Depends | grep -q libsdl2 || wrong "a machine without a display needs SDL"
field libzuvo1 Recommends | grep -qx libzuvo1-window || wrong "the window is not recommended"
field libzuvo1-window Depends | grep -q libsdl2 || wrong "the window does not need SDL"
for file in dtkhddvd/html/index.html dtkhddvd/examples/df_paint.c dtkhddvd/CHANGELOG.md; do
    [ -s "$work/root/usr/share/doc/$file" ] || wrong "not in a package: $file"
done
[ -x "$work/root/usr/share/doc/dtkhddvd/examples/df_rosette.py" ] || wrong "the Python example cannot be run"
for program in "$work/root"/usr/bin/*; do
    ! readelf -d "$program" | grep -E 'R(UN)?PATH' || wrong "a search path in $program"
done
libraries=$(dirname "$(find "$work/root/usr/lib" -name libdtkhddvd.so.1)")
LD_LIBRARY_PATH=$libraries DISPLAY='' WAYLAND_DISPLAY='' "$work/root/usr/bin/dtk_demo" --frames 2 --size 640x480 \
    > "$work/log" 2>&1 || wrong "dtk_demo: $(cat "$work/log")"
