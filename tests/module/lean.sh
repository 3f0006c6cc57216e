#!/usr/bin/env bash
# What a page's import loads. A library that comes along costs every page its start and its memory, so this list is
# changed only after tools/target has said what the change costs. libz costs nothing, because Qt's core loads it.
# Usage: lean.sh READELF PLUGIN LIBRARY...
set -euo pipefail
allowed='libuiutils|libkiv|libQt5(Core|Gui|Qml|QmlModels|Network)|libstdc\+\+|libm|libgcc_s|libc|libz|ld-linux[-a-z0-9]*|lib[a-z]*san'

needed=$("$1" -dW "${@:2}" | sed -n 's/.*(NEEDED).*\[\(.*\)\]$/\1/p' | sort -u)
grep -q '^libQt5Qml[.]so' <<<"$needed" && grep -q '^libuiutils[.]so' <<<"$needed"
if grep -vxE "($allowed)[.]so([.0-9]*)" <<<"$needed"; then
    echo "an import must not load these" >&2
    exit 1
fi
