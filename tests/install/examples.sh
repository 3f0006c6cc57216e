#!/usr/bin/env bash
# Builds and runs every example against the build, which is installed into a folder of its own.
# Usage: examples.sh CMAKE BUILD WORK FLAGS
set -euo pipefail
cmake=$1 build=$2 work=$3
here=$(cd "$(dirname "$0")" && pwd)
prefix="$work/installed for examples"
export CXXFLAGS=$4 CMAKE_GENERATOR=Ninja

rm -rf "$prefix"
"$cmake" --install "$build" --prefix "$prefix" >/dev/null
for example in "$here"/../../examples/*/; do
    "$here/../../examples/run" "$(basename "$example")" "$prefix" "$work/examples/$(basename "$example")"
done
