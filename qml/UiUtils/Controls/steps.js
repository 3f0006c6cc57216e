.pragma library

// The arithmetic of steppers and sliders.

// Without the noise of binary fractions, which would grow with every step.
function clean(number) {
    return Number(number.toPrecision(12))
}

// How far one step goes: what the page says, else what the item says, else the last decimal.
function stepOf(wanted, increment, decimals) {
    const steps = [Number(wanted), Number(increment)].filter(step => isFinite(step) && step > 0)
    return steps.length > 0 ? steps[0] : decimals > 0 ? Math.pow(10, -decimals) : 1
}

// The next multiple of the step in that direction, within the limits.
function next(value, direction, step, least, most) {
    const place = value / step
    const nearest = Math.round(place)
    const isOn = Math.abs(place - nearest) < 1e-6
    const from = isOn ? nearest : direction > 0 ? Math.floor(place) : Math.ceil(place)
    return Math.max(least, Math.min(clean((from + direction) * step), most))
}
