#!/usr/bin/env bash
# Runs qmllint over every QML file of the tree.
set -euo pipefail
qmllint=$1
cd "$2"

mapfile -t files <<<"$(find apps lib qml tests docs -name '*.qml')"
test -e "${files[0]}"
"$qmllint" "${files[@]}"
echo "${#files[@]} QML files"
