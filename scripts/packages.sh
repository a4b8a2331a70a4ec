#!/bin/sh
# packages.sh LIST...: installs what is missing of the lists named below; calls no apt when nothing is.
set -eu
. "$(dirname "$0")/common.sh"

# libdirectfb-extra holds DirectFB's x11 system, dpkg-dev tells what a package depends on.
packages_of() {
    case $1 in
        build)
            echo cmake make g++ pkg-config libdirectfb-dev libdirectfb-extra libcairo2-dev libpng-dev
            ;;
        test)
            echo libgtest-dev libgmock-dev valgrind xvfb x11-utils python3-cffi mandoc doxygen file abigail-tools dpkg-dev
            # Other users of cairo, and a font.
            echo libpango1.0-dev python3-cairo fonts-dejavu-core
            ;;
        docs) echo doxygen mandoc ;;
        deb) echo lintian file dpkg-dev ;;
        # For scripts/cairo.sh, which unpacks and compiles a source package.
        cairo) echo dpkg-dev libpixman-1-dev zlib1g-dev ;;
        bench) echo libbenchmark-dev gnuplot-nox ;;
        # Libraries that the benchmarks compare with: each is left out where it cannot be had.
        peers) echo qtbase5-dev libagg-dev libimlib2-dev liballegro5-dev libsdl2-gfx-dev libgd-dev ;;
        i386) echo g++-i686-linux-gnu ;;
        armel) echo g++-arm-linux-gnueabi qemu-user-static ;;
        mipsel) echo g++-mipsel-linux-gnu qemu-user-static ;;
        fuzz) echo clang libclang-rt-14-dev llvm-14 ;;
        check) echo clang clang-tidy cppcheck libclang-rt-14-dev ;;
        coverage) echo gcovr ;;
        *) fail "packages.sh: no list is named $1" ;;
    esac
}

log=$cache/packages.log

missing() {
    for package; do
        dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || printf ' %s' "$package"
    done
}

install_packages() {
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends -o DPkg::Lock::Timeout=300 "$@"
}

install_required() {
    say "packages: installing $* ..."
    logged "$log" "apt-get could not install $*: check the network and the package sources, or install them by hand as root" \
        install_packages "$@"
}

install_optional() {
    for package; do
        say "packages: installing $package ..."
        install_packages "$package" >> "$log" 2>&1 || say "packages: $package cannot be installed, it is left out"
    done
}

command -v dpkg-query > /dev/null || fail "this machine has no apt: install $(packages_of build) by hand and use cmake"

required='' optional=''
for list; do
    packages=$(packages_of "$list") || exit
    case $list in
        peers) optional="$optional $packages" ;;
        *) required="$required $packages" ;;
    esac
done

# shellcheck disable=SC2086 # The lists are split into their names.
required=$(missing $required) optional=$(missing $optional)
[ -n "$required$optional" ] || exit 0

: > "$log"
say "packages: updating the package lists ..."
# Lists that cannot be fetched matter only when a package is then not found.
as_root apt-get update -q >> "$log" 2>&1 || :
# shellcheck disable=SC2086
[ -z "$required" ] || install_required $required
# shellcheck disable=SC2086
install_optional $optional
