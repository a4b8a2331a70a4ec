#!/bin/sh
# chroot.sh NAME: makes a Debian of another release in the cache, from this machine's own mirrors, with the packages that a
# build and its tests need. Nothing is done where it is there already. The caller holds the cache's lock.
set -eu
. "$(dirname "$0")/common.sh"
. "$root/scripts/apt.sh"
. "$root/scripts/targets/target.sh"
. "$root/scripts/targets/namespace.sh"
describe_target "$1"

log=$cache/$target.log
work=$cache/$target.work
stage=$work/root

# What apt is told about the way to the mirrors, a proxy for one, holds inside as well.
bootstrap() {
    apt-config dump | grep '^Acquire::https*::' > "$work/acquire.conf" || :
    apart mmdebstrap --mode=root --variant=minbase --aptopt="$work/acquire.conf" "$release" "$stage" "$work"/sources/*
}

# The folders are the chroot's root's own.
remove() {
    [ ! -e "$1" ] || apart rm -rf --one-file-system "$1"
}

remove_older() {
    for folder in "$cache/$target"-*; do remove "$folder"; done
}

[ ! -e "$sysroot/etc/os-release" ] || exit 0

apart true 2>/dev/null ||
    fail "$target cannot be tested here: it needs root, or user namespaces (package uidmap and a range in /etc/subuid), and\
 neither is allowed"
trap 'remove "$work"' EXIT
trap 'exit 1' HUP INT TERM
remove "$work"
remove_older
: > "$log"
mkdir -p "$work"
private_sources "$work" deb "$release"
say "$target: fetching and unpacking Debian's packages ..."
logged "$log" "$target could not be made: check the network and the package sources" bootstrap
say "$target: installing what the tests need (some minutes) ..."
logged "$log" "the packages for the tests could not be installed in $target: see the message above" \
    inside "$stage" root scripts/setup.sh build test

# The finished tree appears under its name at once and whole.
apart mv "$stage" "$sysroot"
say "$target: ready in $sysroot"
