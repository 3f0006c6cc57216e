#!/usr/bin/env bash
# Installs the build into a folder of its own and builds and runs a consumer against it, both ways. Given a folder for
# libraries, it installs a build of its own, made for that folder, which is kept so that the next run is quick.
set -euo pipefail
cmake=$1 compiler=$2 build=$3 work=$4 flags=$5 libdir=${6:-}
here=$(cd "$(dirname "$0")" && pwd)
consumer="$here/consumer"
prefix="$work/prefix with a blank"

if [ -n "$libdir" ]; then
    build="$work/build"
    "$cmake" -G Ninja -S "$here/../.." -B "$build" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags" \
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DCMAKE_INSTALL_LIBDIR="$libdir" \
        -DUIUTILS_BUILD_TESTS=OFF -DUIUTILS_BUILD_APPS=OFF >/dev/null
    "$cmake" --build "$build" >/dev/null
fi

rm -rf "$prefix" "$work/consumer"
"$cmake" --install "$build" --prefix "$prefix" >/dev/null

"$cmake" -G Ninja -S "$consumer" -B "$work/consumer" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_CXX_FLAGS="$flags" >/dev/null
"$cmake" --build "$work/consumer" >/dev/null
"$work/consumer/consumer" "$prefix/share/uiutils/services"
names=$("$work/consumer/onbus" "$prefix/share/uiutils/services" | sort)
if [ -e "$work/consumer/onpaper" ]; then
    "$work/consumer/onpaper" "$work/paper.pdf"
    test -s "$work/paper.pdf"
fi

# pkg-config quotes no blanks, so this way gets a prefix without one.
plain=$(mktemp -d)
trap 'rm -rf "$plain" "$plain-moved" "$plain-sample"' EXIT
"$cmake" --install "$build" --prefix "$plain" >/dev/null
export PKG_CONFIG_PATH
PKG_CONFIG_PATH=$(dirname "$(find "$plain" -name uiutils.pc)")
# shellcheck disable=SC2046,SC2086
"$compiler" -std=c++17 -fPIC $flags "$consumer/pkgconfig.cpp" -o "$plain/consumer" $(pkg-config --cflags --libs uiutils)
said=$(LD_LIBRARY_PATH=$(pkg-config --variable=libdir uiutils) "$plain/consumer" 2>&1)
# The library finds its helper in a tree that was installed elsewhere than it was configured for.
if ! grep -q 'Unable to write PDF report' <<<"$said" || grep -q 'without being tried out' <<<"$said"; then
    echo "PDF files are not tried out: $said" >&2
    exit 1
fi
# The reason is a text of the parser's library, which is found in the same way.
if grep -q 'Unknown error\|Cannot load\|is not installed' <<<"$said"; then
    echo "PDF files cannot be read: $said" >&2
    exit 1
fi

# The application of the README as it stands there, built both ways. It needs no variable of the environment.
block() { awk -v begin="\`\`\`$1" '$0 == begin { on = 1; next } on && /^```$/ { exit } on' "$here/../../README.md"; }
sample=$plain-sample
mkdir "$sample"
block cmake >"$sample/CMakeLists.txt"
block cpp >"$sample/main.cpp"
block qml >"$sample/page.qml"
run_sample() {
    local said
    said=$(cd "$sample" && env -u KIV_SERVICES -u UIUTILS_ROOT -u QML2_IMPORT_PATH -u LD_LIBRARY_PATH \
        XDG_STATE_HOME="$sample/state" "$@" 2>&1) || true
    # A report and nothing else, such as a warning.
    if [ "$(sed -n '1p;/"Fiber 7"/p;$p' <<<"$said")" != $'qml: Internal {\n    "title": "Fiber 7"\n}' ]; then
        echo "the README's application says: $said" >&2
        exit 1
    fi
}
# Only this package is named, and an older standard is the default.
"$cmake" -G Ninja -S "$sample" -B "$sample/build" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags" \
    -DCMAKE_CXX_STANDARD=14 -DUiUtils_DIR="$(dirname "$(find "$prefix" -name UiUtilsConfig.cmake)")" >/dev/null
"$cmake" --build "$sample/build" >/dev/null
run_sample "$sample/build/app"
# shellcheck disable=SC2086
c++() { "$compiler" $flags "$@"; }
(cd "$sample" && eval "$(grep '^c++ ' "$here/../../README.md")")
run_sample ./app
# A prefix that was moved: its application needs the new place of the libraries, and nothing else.
mv "$plain" "$plain-moved"
run_sample LD_LIBRARY_PATH="$(dirname "$(find "$plain-moved" -name 'libuiutils.so.1')")" ./app
mv "$plain-moved" "$plain"

library=$(find "$plain" -name 'libuiutils.so.1')
test -n "$library"
if [ -n "$libdir" ]; then
    test "$library" = "$plain/$libdir/libuiutils.so.1"
fi
# What reports show, under the names by which the writers look for it.
for name in $(grep -o 'images/[A-Za-z_-]*[.]png' "$here/../../base/paths_p.h"); do
    cmp "$plain/share/uiutils/$name" "$here/../../assets/$(basename "$name")"
done
# The QML module finds the library where it was installed, and an installed program its services.
plugin=$(find "$plain" -path '*/qt5/qml/UiUtils/libuiutilsplugin.so')
for file in qmldir plugins.qmltypes; do
    test -s "$(dirname "$plugin")/$file"
done
# Every file that the entries' qmldir names is there.
controls="$(dirname "$plugin")/Controls"
sed -n 's/.* \([A-Za-z]*\.qml\)$/\1/p' "$controls/qmldir" | while read -r file; do
    test -s "$controls/$file"
done
test -s "$controls/ItemEntry.qml"
test -s "$controls/libuiutilscontrolsplugin.so"
if LD_LIBRARY_PATH='' ldd "$plugin" | grep 'libuiutils\|libkiv' | grep -v " => $plain/"; then
    echo "the QML module does not find its library" >&2
    exit 1
fi
if [ -x "$plain/bin/uiutils-qml" ]; then
    "$plain/bin/uiutils-qml" --root "$plain/root" --list | grep '^basemgr_cfg_saveLocation' >/dev/null
    # ... and its translations.
    "$plain/bin/uiutils-qml" --root "$plain/root" --language de --list | grep '^basemgr_cfg_saveLocation.*Intern$' >/dev/null
    # ... and what it loads for services on a bus, though there is no bus.
    if KIV_PLATFORM=bus "$plain/bin/uiutils-qml" --root "$plain/root" --list 2>&1 | grep libuiutilsbus; then
        exit 1
    fi
fi
for schema in report-document service-file; do
    cmp "$here/../../docs/$schema.schema.json" "$plain/share/uiutils/schemas/$schema.schema.json"
done
# What describes the services on a bus, for strangers and for the bus itself.
bus="$plain/share/dbus-1"
xmllint --noout --nonet --nodefdtd "$bus/interfaces/org.uiutils.kiv.Service.xml"
if [ -x "$plain/bin/kivd" ]; then
    xmllint --noout --nonet --nodefdtd "$bus/system.d/org.uiutils.kiv.conf"
    grep -q '^ExecStart=.*/bin/kivd$' "$plain/lib/systemd/user/kivd.service"
    "$plain/bin/kivd" --root "$plain/state" --activation-files "$plain/own"
    for folder in "$bus/services" "$plain/own"; do
        test "$(find "$folder" -type f -printf '%f\n' | sed 's/[.]service$//' | sort)" = "$names"
        test "$(sed -n 's/^Name=//p' "$folder"/*.service | sort)" = "$names"
    done
    test "$("$here/activation.sh" "$plain" "$work/consumer/onbus")" = 'absent, rejected
read, rejected
org.uiutils.kiv.basemgr'
fi
# A viewer that is no command, which the programs beside it find.
if [ -x "$build/bin/pdf_viewer" ]; then
    test ! -e "$plain/bin/pdf_viewer"
    "$plain/libexec/uiutils/pdf_viewer" --version >/dev/null
    "$plain/bin/uiutils-demo" --tour --root "$plain/root" >/dev/null
    test "$(readlink "$plain/root/base/bin/pdf_viewer")" = "$plain/libexec/uiutils/pdf_viewer"
fi
# No text that the build makes names where it was made.
if grep -rIlF --exclude-dir=root -e "$build" -e "$(dirname "$(dirname "$here")")" "$plain"; then
    exit 1
fi
# Hidden visibility: what is private must not be reachable from outside.
if nm -DC --defined-only "$library" | grep -E ' [A-Z] uiutils::(OpenNode|onDisk|writeFileDurably|NodeReader|PdfProbe|pdf::)'; then
    echo "private symbols are exported" >&2
    exit 1
fi
# Nor may an export depend on which functions of other libraries a compiler has inlined.
find "$plain" -name 'lib*.so.1' | while read -r file; do
    if ! nm -D --defined-only "$file" | grep '@@[A-Z]*_1$' >/dev/null ||
        nm -DCg --defined-only "$file" | grep -E '^[0-9a-f]+ . ([^(]* )?(guard variable for |typeinfo (name )?for )?(std|__gnu_cxx|Q[A-LN-Z][A-Za-z]*|QM[a-z][A-Za-z]*)::'; then
        echo "$file exports what is not ours, or without a version" >&2
        exit 1
    fi
done
