#!/bin/sh
# packages.sh LIST...: installs what is missing of the lists named below; calls no apt when nothing is.
set -eu
. "$(dirname "$0")/common.sh"
. "$root/scripts/apt.sh"

# SDL 2 shows windows, whose frames on Wayland libdecor draws; dpkg-dev tells what a package depends on.
packages_of() {
    case $1 in
        build)
            echo cmake make g++ pkg-config libdirectfb-dev libcairo2-dev libpng-dev libsdl2-dev libdecor-0-plugin-1-cairo
            # The programs' options and JSON files.
            echo libcli11-dev nlohmann-json3-dev
            ;;
        test)
            echo libgtest-dev libgmock-dev valgrind python3-cffi mandoc doxygen doxygen-awesome-css linkchecker file abigail-tools dpkg-dev git bats
            # Other users of cairo, and a font.
            echo libpango1.0-dev python3-cairo fonts-dejavu-core
            # Displays, and what acts for the person in front of them.
            echo xvfb x11-utils xdotool openbox wmctrl weston libgl1-mesa-dri
            ;;
        docs) echo doxygen doxygen-awesome-css linkchecker mandoc ;;
        deb) echo build-essential debhelper lintian blhc ;;
        release) echo git ;;
        # For scripts/cairo.sh, which unpacks and compiles a source package.
        cairo) echo dpkg-dev libpixman-1-dev zlib1g-dev ;;
        bench) echo libbenchmark-dev gnuplot-nox ;;
        guard) echo libbenchmark-dev valgrind ;;
        # Libraries that the benchmarks compare with: each is left out where it cannot be had.
        peers) echo qtbase5-dev libagg-dev libimlib2-dev liballegro5-dev libsdl2-gfx-dev libgd-dev ;;
        i386) echo g++-i686-linux-gnu ;;
        armel) echo g++-arm-linux-gnueabi qemu-user-static ;;
        armhf) echo g++-arm-linux-gnueabihf qemu-user-static ;;
        arm64) echo g++-aarch64-linux-gnu qemu-user-static ;;
        mipsel) echo g++-mipsel-linux-gnu qemu-user-static ;;
        trixie) echo mmdebstrap ;;
        fuzz) echo clang libclang-rt-dev llvm ;;
        check) echo clang clang-tidy cppcheck libclang-rt-dev ;;
        coverage) echo gcovr ;;
        mutants) echo ninja-build python3 ;;
        *) fail "packages.sh: no list is named $1" ;;
    esac
}

log=$cache/packages.log
work=$cache/packages.work
private=''

missing() {
    for package; do
        dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || printf ' %s' "$package"
    done
}

without_candidate() {
    for package; do
        apt-cache policy "$package" | grep -q '^  Candidate: [^(]' || printf ' %s' "$package"
    done
}

# The lists of both releases, in a folder of their own. What this system has itself is never taken from the older one.
add_directfb_release() {
    say "packages: this system's lists have no$*, taking those of Debian 12 ..."
    private_sources "$work" deb
    private_sources "$work" deb "$directfb_release"
    printf 'Package: *\nPin: release n=%s\nPin-Priority: 100\n' "$directfb_release" > "$work/preferences"
    use_private_apt "$work" "Dir::Etc::preferences \"$work/preferences\";"
    private_apt update >> "$log" 2>&1 || :
}

install_packages() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get ${private:+-c "$private/apt.conf"} \
        install -y -q --no-install-recommends -o DPkg::Lock::Timeout=300 "$@"
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
gone=$(without_candidate $required)
if [ -n "$gone" ] && [ "$(release_here)" != "$directfb_release" ]; then
    trap 'rm -rf "$work"' EXIT
    trap 'exit 1' HUP INT TERM
    rm -rf "$work"
    add_directfb_release "$gone"
fi
# shellcheck disable=SC2086
[ -z "$required" ] || install_required $required
# shellcheck disable=SC2086
install_optional $optional
