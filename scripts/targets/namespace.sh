# shellcheck shell=sh
# Sourced after common.sh: another Debian is entered in namespaces of its own. What is mounted there is seen by no other
# process and is gone with the last one inside, however that ends: nothing is left to unmount, and whoever removes the
# folder cannot reach through a mount into this machine's files.

# apart COMMAND...: runs COMMAND in such namespaces, as root there. A user who cannot become root becomes one of a user
# namespace, which needs a range of user ids for this user (package uidmap, /etc/subuid).
apart() {
    if is_root_at_hand; then
        as_root unshare --mount --pid --fork --kill-child "$@"
    else
        unshare --map-root-user --map-auto --mount --pid --fork --kill-child "$@" 9>&-
    fi
}

is_root_at_hand() {
    [ "$(id -u)" -eq 0 ] || command -v sudo > /dev/null
}

# inside FOLDER USER COMMAND...: runs COMMAND in the Debian of FOLDER, in a copy of the project, whose build directory is
# kept in build/NAME. USER is root, or owner for whoever runs this.
inside() {
    owner=0:0
    ! is_root_at_hand || [ "$2" = root ] || owner=$(id -u):$(id -g)
    place=$1
    shift 2
    mkdir -p "$build/$target"
    apart env "DTKHDDVD_WERROR=${DTKHDDVD_WERROR-}" "$root/scripts/targets/enter.sh" "$place" "$root" "$build/$target" "$owner" "$@"
}
