#!/usr/bin/env bash
# Runs qmllint over every QML file of the tree, except those that are wrong on purpose.
set -euo pipefail
qmllint=$1
cd "$2"

mapfile -t files <<<"$(find apps lib qml tests docs -name '*.qml' -not -path 'tests/data/check/*')"
test -e "${files[0]}"
"$qmllint" "${files[@]}"
echo "${#files[@]} QML files"
