# shellcheck shell=sh disable=SC2034
# Sourced after common.sh: describe_target NAME says how a target machine is compiled for and run on.

# What `./run test --all` runs, in this order.
targets='i386 armel armhf arm64 mipsel trixie'

# triplet names Debian's folders, compiler begins the names of the cross tools, emulator is empty where the machine runs
# the programs itself, and flags makes the target's doubles those of every other machine. release names another Debian,
# which has compilers of its own.
describe_target() {
    target=$1 emulator='' flags='' release=''
    case $target in
        i386) triplet=i386-linux-gnu compiler=i686-linux-gnu flags='-msse2 -mfpmath=sse' ;;
        armel) triplet=arm-linux-gnueabi compiler=$triplet emulator=qemu-arm-static ;;
        armhf) triplet=arm-linux-gnueabihf compiler=$triplet emulator=qemu-arm-static ;;
        arm64) triplet=aarch64-linux-gnu compiler=$triplet emulator=qemu-aarch64-static ;;
        mipsel) triplet=mipsel-linux-gnu compiler=$triplet emulator=qemu-mipsel-static ;;
        trixie) release=$target ;;
        *) fail "no target is named \"$target\": there are $targets" ;;
    esac
    sysroot=$cache/$target-$(recipe | cksum | cut -d ' ' -f 1)
}

# The recipe is part of the folder's name, so that one made by an older recipe is never taken for a good one.
recipe() {
    if [ -n "$release" ]; then
        cat "$root/scripts/chroot.sh" "$root/scripts/packages.sh"
    else
        cat "$root/scripts/sysroot.sh" "$root/scripts/targets/target.sh" "$root/scripts/targets/cairo.sh" "$root"/scripts/targets/*.c
    fi
}
