.pragma library

// The keys of the pad as { name, column, row, span, isAction }. A high pad has four rows, a low one two. `pad` has
// `digits`, `separators` (a key for each character), `hasExponent` and `hasSign`.

var actions = ["Delete", "Clear", "Cancel", "OK"]

function extrasOf(pad) {
    return (pad.hasExponent ? ["e"] : []).concat(pad.hasSign || pad.hasExponent ? ["sign"] : [], Array.from(pad.separators))
}

// Rows of names; "" is a gap, and a name that is repeated is a wide key.
function highRows(pad) {
    const extras = extrasOf(pad)
    if (pad.digits.length > 10) {
        const last = extras.slice(0, 4)
        return [Array.from("AB789"), Array.from("CD456"), Array.from("EF123"), last.concat(new Array(5 - last.length).fill("0"))]
    }
    const others = extras.filter(name => name !== "sign")
    if (others.length < 2)
        return [Array.from("789"), Array.from("456"), Array.from("123"), [extras.includes("sign") ? "sign" : "", "0", others[0] || ""]]
    return ["789", "456", "123"].map((digits, row) => Array.from(digits).concat(extras[row] || "")).concat([["0", "0", "0", "0"]])
}

function lowRows(pad) {
    const digits = pad.digits.length > 10 ? ["01234567", "89ABCDEF"] : ["12345", "67890"]
    const extras = extrasOf(pad)
    const half = Math.ceil(extras.length / 2)
    return digits.map((row, i) => Array.from(row).concat(extras.slice(i * half, half + i * half), i * half + half > extras.length ? "" : []))
}

function keysOf(rows, rowsOfActions, mirrored) {
    const width = rows[0].length
    const first = mirrored ? rowsOfActions[0].length : 0
    const keys = []
    rows.forEach((names, row) => {
        names.forEach((name, i) => {
            if (name !== "" && names.indexOf(name) === i)
                keys.push({ name: name, column: first + i, row: row, span: names.lastIndexOf(name) - i + 1, isAction: false })
        })
        rowsOfActions[row].forEach((name, i) => keys.push({ name: name, column: mirrored ? i : width + i, row: row, span: 1, isAction: true }))
    })
    return keys
}

function keys(pad, isLow, mirrored) {
    return isLow ? keysOf(lowRows(pad), [actions.slice(0, 2), actions.slice(2)], mirrored)
                 : keysOf(highRows(pad), actions.map(name => [name]), mirrored)
}

function covers(key, column, row) {
    return key.row === row && column >= key.column && column < key.column + key.span
}

// The index of the next key that `accepts` in a direction; -1 for none.
function next(keys, from, columns, rows, accepts) {
    const at = keys[from]
    let column = columns > 0 ? at.column + at.span - 1 : at.column
    let row = at.row
    const isInside = () => keys.some(key => key.row === row) && keys.some(key => column >= key.column && column < key.column + key.span)
    for (;;) {
        column += columns
        row += rows
        if (!isInside())
            return -1
        const found = keys.findIndex(key => covers(key, column, row))
        if (found >= 0 && accepts(found))
            return found
    }
}
