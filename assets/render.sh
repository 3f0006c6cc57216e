#!/bin/sh
# Renders the PNG pictures from the SVG drawings: those of reports beside the drawings, the icons of UiUtils.Controls
# into its folder. The PNGs are kept in the tree, so that a build needs no SVG renderer.
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
# Icons are shown smaller than this: the largest have 12 mm. Most fit into the half, which is decoded in a quarter of the
# time.
for drawing in icons/*.svg; do
    icons="../qml/UiUtils/Controls/icons"
    name="$(basename "$drawing" .svg).png"
    render "$drawing" "$icons/$name" --width 96 --height 96
    render "$drawing" "$icons/small/$name" --width 48 --height 48
done
