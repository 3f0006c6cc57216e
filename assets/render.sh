#!/bin/sh
# Renders the PNG pictures of reports from the SVG drawings, beside these. The PNGs are kept in the tree, so that a build
# needs no SVG renderer. The icons of UiUtils.Controls are drawn by the kit itself.
set -eu
cd "$(dirname "$0")"
command -v rsvg-convert >/dev/null || {
    echo "render.sh: rsvg-convert is missing; install the package librsvg2-bin." >&2
    exit 1
}

# Arguments: the drawing, the picture, and options of the renderer.
render() {
    drawing="$1" picture="$2"
    shift 2
    trap 'rm -f "$picture.new"' EXIT
    rsvg-convert "$@" --output "$picture.new" "$drawing"
    mv "$picture.new" "$picture"
    printf '%s %s bytes\n' "$picture" "$(wc -c <"$picture")"
}

for drawing in *.svg; do
    render "$drawing" "${drawing%.svg}.png"
done
