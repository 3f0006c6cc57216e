#!/bin/sh
# What a build removes of the modules that it made before: those of services that are gone, and nothing else.
# Usage: removal.sh CMAKE UiUtilsServices.cmake
set -eu
cmake=$1
script=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
folder="$work/a & b/Instrument"
mkdir -p "$folder/Optical" "$folder/Supply" "$folder/Mine"

# Describes the modules that are named.
describes() {
    {
        echo '<RCC>'
        for name; do
            echo made >"$folder/$name/qmldir"
            echo "        <file alias=\"Instrument/$name/qmldir\">$work/a &amp; b/Instrument/$name/qmldir</file>"
        done
        echo '</RCC>'
    } >"$work/app.qrc"
    "$cmake" "-DCOLLECTION=$work/app.qrc" -P "$script"
}
is() {
    found=$(cd "$folder" && find . -type f | sort | tr '\n' ' ')
    [ "$found" = "$1" ] || { echo "there is $found, not $1"; exit 1; }
}

echo 'of somebody else' >"$folder/Mine/qmldir"
describes Optical Supply
is './Mine/qmldir ./Optical/qmldir ./Supply/qmldir '
describes Optical
is './Mine/qmldir ./Optical/qmldir '
describes Optical Supply
is './Mine/qmldir ./Optical/qmldir ./Supply/qmldir '
