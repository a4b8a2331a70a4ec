#!/bin/sh
# enter.sh FOLDER PROJECT BUILD USER:GROUP COMMAND...: runs COMMAND in the Debian of FOLDER, in a copy of PROJECT with BUILD
# as its build directory. Called in namespaces of its own, see namespace.sh; it mounts and never unmounts.
set -eu
folder=$1 project=$2 build=$3 user=$4
shift 4

mount -t proc proc "$folder/proc"
mount --rbind /dev "$folder/dev"
mount -t tmpfs -o mode=1777 tmpfs "$folder/tmp"
mkdir "$folder/tmp/project"
tar -C "$project" -c --exclude ./build --exclude ./.git . | tar -C "$folder/tmp/project" -x
mkdir "$folder/tmp/project/build"
mount --bind "$build" "$folder/tmp/project/build"

# A child, so that this process, the namespace's first, takes the orphans' results.
chroot --userspec="$user" "$folder" env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin HOME=/tmp \
    LANG=C.UTF-8 "DTKHDDVD_WERROR=${DTKHDDVD_WERROR-}" sh -c 'cd /tmp/project && "$@"' sh "$@"
