#!/usr/bin/env bash
# Holds the includes of the library against its rooms: an include never runs back up.
#
#   module -> report -> writers, templ2xmlwriter, files, local -> service, instrument, document -> platform/contract
#   everything may use core and base, which use Qt only; the library never uses platform/reference
set -euo pipefail
# The last part of a pipe counts faults here, not in a shell of its own.
shopt -s lastpipe
cd "$1"

# Every room on a line, followed by the rooms that it may include beside itself and core.
rooms='
core
document kiv
service kiv
instrument kiv
local service kiv
files instrument document kiv
writers instrument document kiv
templ2xmlwriter instrument document kiv
report writers templ2xmlwriter files local instrument service document kiv
module report writers templ2xmlwriter files local instrument service document kiv
'

faults=0
complain() {
    echo "$1"
    faults=$((faults + 1))
}

# That it finds nothing is no failure.
found() {
    grep -rHE "$@" || true
}

check_room() {
    local room=$1 allowed=" $* core base " line file target
    [ "$room" = core ] && allowed=" core base "
    [ -d "lib/ui_utils/$room" ] || return 0
    found '#include ([<"](kiv|embedded)/|"[a-z0-9_]+/)' "lib/ui_utils/$room" --include='*.h' --include='*.cpp' |
        while IFS= read -r line; do
            file=${line%%:*}
            target=$(sed -E 's/.*#include [<"]([a-z0-9_]+)\/.*/\1/' <<<"$line")
            [[ $allowed == *" $target "* ]] || complain "$file: room $room must not include $target/"
        done
}

while read -r -a words; do
    [ ${#words[@]} -gt 0 ] && check_room "${words[@]}"
done <<<"$rooms"

find lib/ui_utils -mindepth 1 -maxdepth 1 -type d | while IFS= read -r folder; do
    grep -qE "^$(basename "$folder")( |\$)" <<<"$rooms" || complain "$folder: a room that the rule does not know"
done

found '#include ([<"](kiv|embedded)/|"[a-z0-9_]+/)' base | while IFS= read -r line; do
    [[ $line == *'"base/'* ]] || complain "${line%%:*}: base must not include what stands above it"
done

found '#include [<"](embedded|core|document|service|writers|module)/' platform/contract | while IFS= read -r line; do
    complain "${line%%:*}: the contract must not include what stands above it"
done

found -l '#include "[a-z0-9_]+/[a-z0-9_]+_p\.h"' lib/ui_utils --include='*.h' | while IFS= read -r header; do
    [[ $header == *_p.h ]] || complain "$header: a public header includes a private one"
done

[ "$faults" -eq 0 ] && echo "The include rule holds."
exit $((faults > 0))
