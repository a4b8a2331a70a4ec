#!/bin/sh
# sysroot.sh NAME: makes a target's sysroot in the cache: C library, DirectFB with its dummy system, cairo, libpng and
# GoogleTest; NAME/directfb-cairo, a cairo with its DirectFB back end; NAME/run, which runs a program built for it;
# NAME/toolchain.cmake. Nothing is done where it is there already. The caller holds the cache's lock.
set -eu
. "$(dirname "$0")/common.sh"
. "$root/scripts/apt.sh"
. "$root/scripts/targets/target.sh"
describe_target "$1"

log=$cache/$target.log
work=$cache/$target.work
stage=$work/sysroot

# The last two lines are what Debian's libcairo2 is linked with.
packages="libc6 libc6-dev linux-libc-dev libgcc-s1 libstdc++6 zlib1g zlib1g-dev libpng16-16 libpng-dev libpixman-1-0
    libpixman-1-dev libdirectfb-1.7-7 libdirectfb-dev libcairo2 libcairo2-dev libgtest-dev libgmock-dev
    libcli11-dev nlohmann-json3-dev
    libfontconfig1 libfreetype6 libexpat1 libbrotli1 libx11-6 libxcb1 libxcb-render0 libxcb-shm0 libxext6 libxrender1
    libxau6 libxdmcp6 libbsd0 libmd0"

fetch() (
    # A mirror that lacks the architecture is no matter as long as one has the packages.
    private_apt update || :
    cd "$work"
    # shellcheck disable=SC2086 # The list is split into its names.
    private_apt download $packages && private_apt source cairo
)

# Debian's merged /usr, which the packages expect, and links that stay inside the sysroot.
unpack() {
    for folder in bin sbin lib; do
        mkdir -p "$stage/usr/$folder"
        ln -s "usr/$folder" "$stage/$folder"
    done
    for package in "$work"/*.deb; do
        dpkg-deb --fsys-tarfile "$package" | tar -x -C "$stage" --keep-directory-symlink --no-same-owner || return
    done
    find "$stage" -type l -lname '/*' | while read -r link; do
        ln -snfr "$stage$(readlink "$link")" "$link"
    done
}

# The headers of the libraries that cairo itself uses are not there, and nobody asks for them.
forget_private_requirements() {
    sed -i '/^Requires.private:/d' "$stage/usr/lib/$triplet/pkgconfig/cairo.pc"
}

# Drivers for real hardware: armel's omap driver crashes without it, others would want all of Mesa.
remove_drivers() {
    modules=$stage/usr/lib/$triplet/directfb-1.7-7
    rm -rf "$modules/gfxdrivers" "$modules/inputdrivers" "$modules/interfaces" "$stage/usr/share/doc"
}

# compile_preload NAME: makes the library NAME.c that programs of the target are run with.
compile_preload() {
    # shellcheck disable=SC2086 # The flags are split.
    "$compiler-gcc" $flags --sysroot="$stage" -O2 -shared -fPIC -o "$stage/usr/lib/$triplet/lib$1.so" \
        "$root/scripts/targets/$1.c" -ldl
}

emulated_run() {
    cat <<RUN
#!/bin/sh
exec $emulator -L "\$(dirname "\$(readlink -f "\$0")")" "\$@"
RUN
}

native_run() {
    cat <<RUN
#!/bin/sh
libraries=\$(dirname "\$(readlink -f "\$0")")/usr/lib/$triplet
export LD_LIBRARY_PATH="\${LD_LIBRARY_PATH:+\$LD_LIBRARY_PATH:}\$libraries"
export LD_PRELOAD="\$libraries/libmodules.so\${LD_PRELOAD:+:\$LD_PRELOAD}"
exec "\$@"
RUN
}

# The flags are part of the compiler's command, so that nobody's CMAKE_CXX_FLAGS loses them.
toolchain() {
    options=$flags
    [ -n "$emulator" ] || options="$options -Wl,--dynamic-linker=\${CMAKE_CURRENT_LIST_DIR}/lib/ld-linux.so.2"
    cat <<CMAKE
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR $target)
set(CMAKE_LIBRARY_ARCHITECTURE $triplet)
set(CMAKE_C_COMPILER $compiler-gcc $options)
set(CMAKE_CXX_COMPILER $compiler-g++ $options)
set(CMAKE_SYSROOT \${CMAKE_CURRENT_LIST_DIR})
set(CMAKE_CROSSCOMPILING_EMULATOR \${CMAKE_CURRENT_LIST_DIR}/run)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_PATH} "")
set(ENV{PKG_CONFIG_LIBDIR} \${CMAKE_SYSROOT}/usr/lib/$triplet/pkgconfig:\${CMAKE_SYSROOT}/usr/share/pkgconfig)
set(ENV{PKG_CONFIG_SYSROOT_DIR} \${CMAKE_SYSROOT})
CMAKE
}

add_tools() {
    if [ -n "$emulator" ]; then
        compile_preload readdir32 || return
        echo "/usr/lib/$triplet/libreaddir32.so" > "$stage/etc/ld.so.preload"
        emulated_run > "$stage/run"
    else
        compile_preload modules || return
        native_run > "$stage/run"
    fi
    chmod +x "$stage/run"
    toolchain > "$stage/toolchain.cmake"
}

[ ! -e "$sysroot/toolchain.cmake" ] || exit 0

trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM
rm -rf "$work" "$cache/$target"-*
: > "$log"
private_sources "$work" "deb deb-src"
: > "$work/status"
use_private_apt "$work" "Dir::State::status \"$work/status\";" \
    "#clear APT::Architectures;" "APT::Architecture \"$target\";" "APT::Architectures { \"$target\"; };"
say "$target: fetching Debian's packages ..."
logged "$log" "the packages for $target could not be fetched: check the network and the package sources" fetch
say "$target: unpacking ..."
logged "$log" "the packages for $target could not be unpacked: check the free space in $cache" unpack
forget_private_requirements
remove_drivers
logged "$log" "the tools for $target could not be made: see the message above" add_tools
say "$target: building cairo (about a minute) ..."
logged "$log" "cairo could not be built for $target: see the message above" \
    "$root/scripts/targets/cairo.sh" "$work/cairo-$cairo_version" "$stage" "$compiler" "$triplet" "$flags"

# The finished tree appears under its name at once and whole.
mv "$stage" "$sysroot"
say "$target: ready in $sysroot"
