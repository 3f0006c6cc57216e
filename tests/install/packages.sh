#!/usr/bin/env bash
# Makes the packages, installs them in a bare system without development packages, tries every program there, upgrades
# them and purges them. Usage: packages.sh TREE WORK [PACKAGES]: with PACKAGES none are made. Exit status 77: skipped.
# shellcheck disable=SC2016,SC2046 # field names of dpkg-query; names of packages hold no blanks
set -euo pipefail
tree=$1 work=$2 packages=${3-}
# shellcheck source=tools/setup.sh
. "$tree/tools/setup.sh"
# shellcheck source=tools/chroot.sh
. "$tree/tools/chroot.sh"
bare=$work/bare
trap 'say "line $LINENO failed"' ERR

skip() {
    echo "skipped: $1"
    exit 77
}

make_bare_system() {
    remove_chroot "$bare"
    if make_chroot "$1" "$bare" apt "$work/bare.log" && in_chroot "$bare" apt-get -q update >"$work/apt.log" 2>&1; then
        return
    fi
    ! grep -q 'Failed to fetch\|Temporary failure\|Could not connect' "$work/bare.log" || skip 'no packages can be fetched'
    fail "no bare system could be made: $(tail -n 3 "$work/bare.log")"
}

# The same packages as of a later version, for which they ask among each other.
make_later() {
    local package named content=$work/content
    mkdir "$bare/later"
    for package in "$bare"/first/*.deb; do
        rm -rf "$content"
        dpkg-deb -R "$package" "$content"
        # zgrep fails for each batch of files without a find.
        named=$(find "$content" -type f -exec zgrep -lF /build/uiutils {} + || true)
        [[ -z $named ]] || fail "the folder in which the packages were made is named in $named"
        sed -i 's/^\(Version: .*\)/\1+later/; s/(= \([^)]*\))/(= \1+later)/g' "$content/DEBIAN/control"
        dpkg-deb --root-owner-group -Zgzip -b "$content" "$bare/later" >/dev/null
    done
}

# Each of our packages, with its version, that is installed or has left something.
ours() {
    in_chroot "$bare" dpkg-query -W -f '${source:Package} ${db:Status-Status} ${Version} ${Package}\n' |
        sed -n 's/^uiutils //p'
}

apt_in_bare() {
    in_chroot "$bare" apt-get -q -y --no-install-recommends "$@" >>"$work/apt.log" 2>&1 ||
        fail "apt-get $1: $(tail -n 5 "$work/apt.log")"
}

# Removes what the demo does not need: a dependency that is not declared is then missing.
keep_demo_alone() {
    in_chroot "$bare" apt-mark auto $(ours | cut -d ' ' -f 3) >>"$work/apt.log"
    in_chroot "$bare" apt-mark manual uiutils-demo dbus >>"$work/apt.log"
    apt_in_bare -o APT::AutoRemove::RecommendsImportant=false -o APT::AutoRemove::SuggestsImportant=false autoremove
}

files() {
    (cd "$bare" && find etc usr var -path var/cache -prune -o -path var/log -prune -o -path var/lib/apt -prune -o \
        -path var/lib/dpkg -prune -o -print) | grep -e uiutils -e '/\(lib\)\?kiv' || true
}

mkdir -p "$work"
((EUID == 0)) || skip 'only root can make a bare system'
command -v mmdebstrap >/dev/null || skip 'there is no mmdebstrap'
unshare --mount --pid --fork true 2>/dev/null || skip 'this system gives no name spaces of their own'
release=$(. /etc/os-release && echo "${VERSION_CODENAME-}")
[[ $release == bookworm || $release == trixie ]] || skip "there are no packages for $(release_name)"
trap 'remove_chroot "$bare"; rm -rf "$work/content"' EXIT
make_bare_system "$release"
if [[ -z $packages ]]; then
    packages=$work/packages
    "$tree/tools/package" --release "$release" --output "$packages"
fi
mkdir "$bare/first"
find "$packages" -name '*.deb' ! -name '*-dev_*' ! -name '*-dbgsym_*' -exec cp -t "$bare/first" {} +
make_later
version=$(dpkg-parsechangelog -l "$tree/debian/changelog" -S Version)
count=$(find "$bare/first" -type f | wc -l)
cp "$tree/debian/tests/programs" "$bare/tmp/programs"
in_chroot "$bare" useradd --create-home somebody

for folder in first later; do
    apt_in_bare install dbus $(cd "$bare" && find "$folder" -name '*.deb' -printf '/%p\n')
    suffix=$([[ $folder == first ]] || echo '+later')
    test "$(ours | grep -cF "installed $version$suffix ")" = "$count"
    keep_demo_alone
    in_chroot "$bare" runuser -u somebody -- /tmp/programs || fail "the $folder version: a program fails"
done
if in_chroot "$bare" dpkg-query -W -f '${Package}\n' | grep -e '-dev$'; then
    fail 'the programs need development packages'
fi

apt_in_bare purge $(ours | cut -d ' ' -f 3)
test -z "$(ours)"
test -z "$(files)"
