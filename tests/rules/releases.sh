#!/usr/bin/env bash
# Which systems the commands let through, which they install packages on, and what they say to the others.
# Usage: releases.sh SETUP-SCRIPT
set -euo pipefail
# shellcheck source=tools/setup.sh
. "$1"

apt=''
release_name() { printf '%s' "$system"; }
missing_packages() { tr -s " " "\n" <<<"$lacking" | sed "/^$/d"; }
install_packages() { echo "installs $*"; }
# shellcheck disable=SC2317 # called by the functions under test
command() { [[ $* == '-v apt-get' && $apt ]]; }

faults=0
while IFS='|' read -r system apt lacking status words; do
    said=$( (require_packages a b) 2>&1) && outcome=0 || outcome=$?
    if [[ $outcome != "$status" || ${said#*: } != "$words" ]]; then
        echo "$system, apt: ${apt:-no}, lacking: ${lacking:-nothing}: $outcome, $said"
        faults=1
    fi
done <<'CASES'
debian 12|apt||0|
debian 13|||0|
debian 12|apt|a|0|installs a
debian 13|apt|a b|0|installs a b
debian 13||b|1|there is no apt-get here (debian 13) to install the missing packages: b
debian 14|apt||0|warning: made for Debian 12 and 13, this is debian 14; going on
debian 1|apt|a b|1|this is debian 1, neither Debian 12 nor 13, and these packages are missing: a b
ubuntu 12|apt|a|1|this is ubuntu 12, neither Debian 12 nor 13, and these packages are missing: a
debian (no version)||a|1|there is no apt-get here (debian (no version)) to install the missing packages: a
CASES
exit "$faults"
