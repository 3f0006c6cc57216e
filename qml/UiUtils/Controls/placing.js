.pragma library

// Where what opens for a field is placed, so that it covers no part of the field. All rectangles are in one system of
// coordinates; `within` is what can be seen.

function meets(one, other) {
    return one.x < other.x + other.width && other.x < one.x + one.width
            && one.y < other.y + other.height && other.y < one.y + one.height
}

function inBounds(value, least, most) {
    return Math.max(least, Math.min(value, most))
}

// The places beside the field, the usual one first; each as near to the field as `within` permits.
function places(field, size, within, gap, mirrored) {
    const right = within.x + within.width - size.width
    const bottom = within.y + within.height - size.height
    const x = inBounds(mirrored ? field.x + field.width - size.width : field.x, within.x, right)
    const y = inBounds(field.y, within.y, bottom)
    const below = { x: x, y: field.y + field.height + gap }
    const above = { x: x, y: field.y - gap - size.height }
    const after = { x: field.x + field.width + gap, y: y }
    const before = { x: field.x - gap - size.width, y: y }
    return [below, above].concat(mirrored ? [before, after] : [after, before])
            .filter(place => place.x >= within.x && place.x <= right && place.y >= within.y && place.y <= bottom)
}

// The first of the sizes that has a place, as { x, y, form }; `form` is its index. Where there is none, the last one at
// the edge that is farther from the field.
function place(field, sizes, within, gap, mirrored) {
    for (let form = 0; form < sizes.length; ++form) {
        const free = places(field, sizes[form], within, gap, mirrored)
        if (free.length > 0)
            return { x: Math.round(free[0].x), y: Math.round(free[0].y), form: form }
    }
    const size = sizes[sizes.length - 1]
    const isHigh = field.y + field.height / 2 < within.y + within.height / 2
    return { x: within.x, y: isHigh ? within.y + within.height - size.height : within.y, form: sizes.length - 1 }
}

// A list of any height: { y, height } on the side that has the room for it, or else more room.
function placeList(field, height, within, gap) {
    const below = within.y + within.height - field.y - field.height - gap
    const above = field.y - gap - within.y
    if (height <= below || below >= above)
        return { y: field.y + field.height + gap, height: Math.min(height, below) }
    return { y: field.y - gap - Math.min(height, above), height: Math.min(height, above) }
}

// Scrolls what is around the item, so that it lies between the lines `top` and `bottom` of the window as far as possible.
function reveal(item, top, bottom) {
    for (let view = item.parent; view; view = view.parent) {
        if (view.contentY === undefined || view.contentHeight === undefined || !view.contentItem)
            continue
        const origin = view.mapToItem(null, 0, 0).y
        const least = Math.max(top, origin)
        const most = Math.min(bottom, origin + view.height)
        const y = item.mapToItem(null, 0, 0).y
        const wanted = y + item.height > most ? Math.max(least, most - item.height) : Math.max(least, y)
        const end = Math.max(view.originY, view.originY + view.contentHeight + view.bottomMargin - view.height)
        const moved = inBounds(view.contentY + y - wanted, view.originY - view.topMargin, end)
        if (moved !== view.contentY)
            view.contentY = moved
    }
}
