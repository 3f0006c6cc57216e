#!/bin/sh
# Renders the PNG pictures from the SVG drawings beside them.
# The PNGs are kept in the tree, so that a build needs no SVG renderer.
set -eu
cd "$(dirname "$0")"
command -v rsvg-convert >/dev/null || {
    echo "render.sh: rsvg-convert is missing; install the package librsvg2-bin." >&2
    exit 1
}
for drawing in *.svg; do
    picture="${drawing%.svg}.png"
    trap 'rm -f "$picture.new"' EXIT
    rsvg-convert --output "$picture.new" "$drawing"
    mv "$picture.new" "$picture"
    printf '%s %s bytes\n' "$picture" "$(wc -c <"$picture")"
done
