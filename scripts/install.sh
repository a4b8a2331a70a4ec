#!/bin/sh
# install.sh [--prefix DIR] [OPTION...]: installs what was built; the other options go to cmake --install.
set -eu
. "$(dirname "$0")/common.sh"

prefix=/usr/local
case ${1-} in
    --prefix)
        [ $# -ge 2 ] || fail "--prefix needs a folder: ./run install --prefix DIR"
        prefix=$2
        shift 2
        ;;
    --prefix=*)
        prefix=${1#--prefix=}
        shift
        ;;
esac

# Only a folder that this user may not write to needs root.
is_writable() {
    folder=$1
    until [ -e "$folder" ]; do folder=$(dirname "$folder"); done
    [ -w "$folder" ]
}

"$root/scripts/build.sh" default
# An earlier install as root may have left a list that this user cannot replace.
rm -f "$build"/install_manifest*.txt
set -- cmake --install "$build" --prefix "$prefix" "$@"
if is_writable "${DESTDIR-}$prefix"; then
    "$@" || fail "could not install below $prefix: see the message above"
else
    as_root env ${DESTDIR:+"DESTDIR=$DESTDIR"} "$@" || fail "could not install below $prefix as root: see the message above, or choose another --prefix"
fi
# CMake ends its list, or that of a component, without a newline.
find "$build" -maxdepth 1 -name 'install_manifest*.txt' -exec sed -e '$a\' {} + | sed "s|^|${DESTDIR-}|" >> "$installed"
case ${DESTDIR-}$prefix in
    /usr | /usr/local) as_root ldconfig || say "run ldconfig as root, so that programs find the library" ;;
esac
say "installed below ${DESTDIR-}$prefix"
