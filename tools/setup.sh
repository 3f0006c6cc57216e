#!/usr/bin/env bash
# What ./demo and ./check share: installing the Debian packages they need, and running their
# build stages quietly. Run by itself it prepares a machine for both, without building.

set -euo pipefail

tree_root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
build_root=$tree_root/build
log_dir=$build_root/log
lock_patience_s=120

# The compiler and libraries, and what the demo loads while it runs: QML modules, and fonts
# that cover the scripts its pages and reports are shown in.
build_packages=(
    g++ cmake ninja-build pkg-config
    qtbase5-dev qtbase5-private-dev
    qtdeclarative5-dev qtdeclarative5-private-dev qtdeclarative5-dev-tools
    libvalijson-dev libharfbuzz-dev libpodofo-dev libssl-dev libxml2-dev libpoppler-qt5-dev zlib1g-dev
    libsystemd-dev qttools5-dev-tools
    qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-controls2
    qml-module-qtquick-layouts qml-module-qttest qml-module-qtqml-models2
    qml-module-qtqml-workerscript2
    qtvirtualkeyboard-plugin qml-module-qtquick-virtualkeyboard qml-module-qt-labs-folderlistmodel
    fontconfig fonts-dejavu-core fonts-droid-fallback fonts-tlwg-loma-ttf fonts-lohit-deva
    fonts-naver-d2coding fonts-noto-color-emoji
)

# What the tests start beside the programs of the tree: a bus, and readers that know nothing
# of this library and so can judge the files it writes; help2man makes the manual pages that
# are tested with the tools, doxygen the reference pages, and lupdate collects the texts for
# translators. A display and a registry of accessible programs show what a screen reader finds.
test_packages=(
    dbus poppler-utils mupdf-tools qpdf libxml2-utils tidy strace help2man doxygen python3 tzdata
    qttools5-dev python3-dbus python3-gi xvfb at-spi2-core
)

# What only "./check --long" needs: a browser that shows the pages. The checker of accessibility that
# judges them there comes through npm, if that is here.
# shellcheck disable=SC2034 # ./check reads it
long_packages=(
    chromium
)

# Standard output stays free for the program and for the test results.
say() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
}

fail() {
    say "$*"
    exit 1
}

# --- The clone -------------------------------------------------------------------------------

# Makes a folder below build/ and writes a little into it, because the permission bits alone
# tell neither of a read-only mount nor of a full disk.
require_writable() {
    local folder=$1 probe=$1/.write-probe problem
    if ! problem=$(export LC_ALL=C
        { mkdir -p -- "$folder" && dd if=/dev/zero of="$probe" bs=1M count=1 status=none; } 2>&1); then
        rm -f -- "$probe" 2>/dev/null || true
        case $problem in
            *'No space left'* | *'quota exceeded'*) fail "the disk is full: nothing more can be written in $folder" ;;
            *) fail "the clone is not writable, and the build goes there: $problem" ;;
        esac
    fi
    rm -f -- "$probe"
}

# A build that ran out of space may have lost the very message in its log.
ran_out_of_space() {
    local log=$1 free_kib
    grep -qs -e 'No space left on device' -e 'enough free space' "$log" && return 0
    free_kib=$(df -k --output=avail -- "$build_root" | tail -n 1)
    ((free_kib < 10 * 1024))
}

# --- Packages --------------------------------------------------------------------------------

missing_packages() {
    local installed package
    # dpkg-query fails when it has never heard of one of the names, and still lists the others.
    # shellcheck disable=SC2016 # the field names are dpkg-query's, not the shell's
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
    for package in "$@"; do
        if [[ $'\n'$installed$'\n' != *$'\n'"installed $package"$'\n'* ]]; then
            printf '%s\n' "$package"
        fi
    done
}

# Prints the release as "debian 12"; a system that does not say which one it is counts as another.
release_name() {
    # shellcheck source=/dev/null
    (. /etc/os-release && printf '%s %s' "${ID:-unknown}" "${VERSION_ID:-(no version)}") 2>/dev/null || printf 'unknown'
}

apt_as_root() {
    local log=$1 as_root=()
    shift
    ((EUID == 0)) || as_root=(sudo)
    # In English, for the messages are searched below; with the system folders in PATH, which
    # a plain "su" leaves out and dpkg insists on.
    "${as_root[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive PATH="$PATH:/usr/sbin:/sbin" \
        apt-get -q -o DPkg::Lock::Timeout="$lock_patience_s" -o Dpkg::Use-Pty=0 "$@" \
        >"$log" 2>&1 </dev/null
}

# apt waits for dpkg's lock only; its own two, held by a package refresh in the background,
# make it give up at once.
patient_apt_as_root() {
    local log=$1 give_up_at=$((SECONDS + lock_patience_s))
    until apt_as_root "$@"; do
        grep -qs '^E: Could not get lock' "$log" || return 1
        ((SECONDS < give_up_at)) || return 1
        sleep 2
    done
}

explain_apt_failure() {
    local update_log=$1 install_log=$2 log=$2 reason='apt-get could not install the missing packages'
    if ran_out_of_space "$install_log"; then
        reason='the disk is full: no room for the missing packages'
    elif grep -qs -e '^E: Could not get lock' -e '^E: Unable to acquire the dpkg' "$install_log"; then
        reason="another package installation holds the lock and did not finish within ${lock_patience_s} s"
    elif grep -qs -e 'dpkg was interrupted' -e 'fix-broken install' "$install_log"; then
        reason='an earlier installation was cut short; an administrator has to run: dpkg --configure -a; apt-get install -f -y'
    elif grep -qs -e 'Failed to fetch' -e 'Unable to fetch' "$install_log"; then
        reason='the packages cannot be fetched from the package server: is there a network?'
    elif grep -qs 'Failed to fetch' "$update_log"; then
        log=$update_log
        reason='the packages cannot be fetched from the package server: is there a network?'
    fi
    say "$reason"
    say "the last lines of $log:"
    tail -n 8 -- "$log" >&2
    exit 1
}

fail_without_root() {
    local reason=$1
    shift
    say "packages are missing; $reason. An administrator has to run:"
    printf '  apt-get update && apt-get install -y --no-install-recommends %s\n' "$*" >&2
    exit 1
}

require_root_access() {
    ((EUID != 0)) || return 0
    command -v sudo >/dev/null || fail_without_root 'this is not root, and there is no sudo' "$@"
    say "packages are missing ($#); sudo is asked to install them"
    sudo true || fail_without_root 'sudo does not allow it' "$@"
}

install_packages() {
    local update_log=$log_dir/apt-update.log install_log=$log_dir/apt-install.log
    require_root_access "$@"
    say "installing missing packages ($#, log: $install_log): $*"
    patient_apt_as_root "$update_log" update ||
        say "apt-get update failed (log: $update_log); trying with the package lists at hand"
    patient_apt_as_root "$install_log" install -y --no-install-recommends "$@" ||
        explain_apt_failure "$update_log" "$install_log"
}

# The releases whose package names are known to be these.
is_known_release() {
    [[ $1 == 'debian 12' || $1 == 'debian 13' ]]
}

require_packages() {
    local release names missing
    release=$(release_name)
    names=$(missing_packages "$@")
    if [[ -z $names ]]; then
        is_known_release "$release" || say "warning: made for Debian 12 and 13, this is $release; going on"
        return 0
    fi
    mapfile -t missing <<<"$names"
    command -v apt-get >/dev/null ||
        fail "there is no apt-get here ($release) to install the missing packages: ${missing[*]}"
    is_known_release "$release" ||
        fail "this is $release, neither Debian 12 nor 13, and these packages are missing: ${missing[*]}"
    install_packages "${missing[@]}"
}

# --- Building --------------------------------------------------------------------------------

run_stage() {
    local title=$1 log=$log_dir/$2.log
    shift 2
    say "$title"
    if (cd "$tree_root" && "$@") >"$log" 2>&1 </dev/null; then
        return 0
    fi
    tail -n 40 -- "$log" >&2 || true
    if ran_out_of_space "$log"; then
        say 'the disk is full'
    fi
    say "$title failed, the whole log is $log"
    return 1
}

# CMake refuses a build folder that was configured under another path.
tree_was_moved() {
    local cache=$build_root/$1/CMakeCache.txt
    [[ -e $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$tree_root" "$cache"
}

build_preset() {
    local preset=$1 fresh=()
    shift
    if tree_was_moved "$preset"; then
        fresh=(--fresh)
    fi
    run_stage "configuring $preset" "$preset-configure" cmake "${fresh[@]}" --preset "$preset" || return 1
    run_stage "building $preset" "$preset-build" cmake --build --preset "$preset" "$@"
}

if [[ ${BASH_SOURCE[0]} == "$0" ]]; then
    require_writable "$log_dir"
    require_packages "${build_packages[@]}" "${test_packages[@]}"
fi
