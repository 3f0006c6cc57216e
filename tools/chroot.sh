#!/usr/bin/env bash
# Clean Debian systems in folders, for what must not depend on this machine. To be sourced after tools/setup.sh.

# make_chroot RELEASE FOLDER VARIANT LOG [MIRROR]
make_chroot() {
    local release=$1 folder=$2 variant=$3 log=$4 mirror=${5-}
    # Nothing in there has to survive a power cut.
    mmdebstrap --mode=root --variant="$variant" --skip=check/empty --dpkgopt=force-unsafe-io \
        --aptopt='Acquire::Languages "none"' "$release" "$folder" ${mirror:+"$mirror"} >"$log" 2>&1 </dev/null
}

# in_chroot FOLDER COMMAND...: with processes and mounts of its own, which end with the command.
in_chroot() {
    local folder=$1
    shift
    # shellcheck disable=SC2016 # the words are the inner shell's
    unshare --mount --propagation private --pid --fork --kill-child -- bash -c '
        mount -t proc proc "$1/proc" && mount -t tmpfs -o mode=1777 tmpfs "$1/dev/shm" || exit
        exec chroot "$1" env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin HOME=/root \
            LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "${@:2}"' bash "$folder" "$@" </dev/null
}

# Whatever was made in the folder is gone; a mount would have ended with its command.
remove_chroot() {
    [[ ! -e $1 ]] || rm -rf --one-file-system -- "$1"
}
