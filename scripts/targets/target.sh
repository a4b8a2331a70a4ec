# shellcheck shell=sh disable=SC2034
# Sourced after common.sh: describe_target NAME says how a target machine is compiled for and run on.

# triplet names Debian's folders, compiler begins the names of the cross tools, emulator is empty where the machine runs
# the programs itself, and flags makes the target's doubles those of every other machine.
describe_target() {
    target=$1 emulator='' flags=''
    case $target in
        i386) triplet=i386-linux-gnu compiler=i686-linux-gnu flags='-msse2 -mfpmath=sse' ;;
        armel) triplet=arm-linux-gnueabi compiler=$triplet emulator=qemu-arm-static ;;
        mipsel) triplet=mipsel-linux-gnu compiler=$triplet emulator=qemu-mipsel-static ;;
        *) fail "no target is named \"$target\": there are i386, armel and mipsel" ;;
    esac

    # The recipe is part of the name, so that a sysroot made by an older one is never taken for a good one.
    sysroot=$cache/$target-$(cat "$root/scripts/sysroot.sh" "$root"/scripts/targets/* | cksum | cut -d ' ' -f 1)
}
