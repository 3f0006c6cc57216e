.pragma library

// The arithmetic of steppers and sliders.

// Without the noise of binary fractions, which would grow with every step.
function clean(number) {
    return Number(number.toPrecision(12))
}

// How far one step goes: what the page says, else what the item says, else the last decimal; whole numbers have whole
// steps.
function stepOf(wanted, increment, decimals, isWhole) {
    const steps = [Number(wanted), Number(increment)].filter(step => isFinite(step) && step > 0)
    const step = steps.length > 0 ? steps[0] : decimals > 0 && !isWhole ? Math.pow(10, -decimals) : 1
    return isWhole ? Math.max(1, Math.round(step)) : step
}

// The multiple of the step that is nearest to a place on a line, within the limits.
function nearest(value, step, least, most) {
    return Math.max(least, Math.min(clean(Math.round(value / step) * step), most))
}

// The next multiple of the step in that direction, within the limits.
function next(value, direction, step, least, most) {
    const place = value / step
    const nearest = Math.round(place)
    const isOn = Math.abs(place - nearest) < 1e-6
    const from = isOn ? nearest : direction > 0 ? Math.floor(place) : Math.ceil(place)
    return Math.max(least, Math.min(clean((from + direction) * step), most))
}
