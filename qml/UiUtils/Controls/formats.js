.pragma library

// The notation of addresses, names and numbers. Each check returns what is wrong with a text, in words, or an empty
// text.

function ipv4Problem(text) {
    const parts = text.split(".")
    if (parts.length !== 4)
        return qsTr("Four numbers separated by points, such as 192.0.2.1")
    if (!parts.every(part => /^[0-9]{1,3}$/.test(part) && Number(part) <= 255))
        return qsTr("Each part is a number from 0 to 255")
    // Some programs would read them as octal.
    return parts.some(part => /^0[0-9]/.test(part)) ? qsTr("No part can begin with 0") : ""
}

function groupsOf(text) {
    return text === "" ? [] : text.split(":")
}

function ipv6Problem(text) {
    const form = qsTr("Up to eight groups separated by colons, such as 2001:db8::1")
    let address = text.replace(/%[A-Za-z0-9._-]+$/, "")
    const halves = address.split("::")
    if (halves.length > 2)
        return qsTr("\"::\" can appear only once")
    const groups = halves.reduce((all, half) => all.concat(groupsOf(half)), [])
    let count = groups.length
    const last = groups[count - 1] || ""
    if (last.includes(".") && !address.endsWith("::")) {
        const problem = ipv4Problem(last)
        if (problem !== "")
            return problem
        groups.pop()
        ++count
    }
    if (!groups.every(group => /^[0-9A-Fa-f]{1,4}$/.test(group)))
        return groups.some(group => group === "") ? form : qsTr("Each group is one to four hexadecimal digits")
    return halves.length === 2 ? (count <= 7 ? "" : form) : count === 8 ? "" : form
}

function macProblem(text) {
    return /^([0-9A-Fa-f]{2}([:-]))([0-9A-Fa-f]{2}\2){4}[0-9A-Fa-f]{2}$/.test(text) || /^[0-9A-Fa-f]{12}$/.test(text)
            ? "" : qsTr("Six pairs of hexadecimal digits, such as 00:1A:2B:3C:4D:5E")
}

function macText(text) {
    return text.replace(/[:-]/g, "").toUpperCase().match(/../g).join(":")
}

function urlProblem(text) {
    if (/\s/.test(text))
        return qsTr("A URL cannot contain blanks")
    return /^[A-Za-z][A-Za-z0-9+.-]*:\/\/([^\/?#@]*@)?(\[[0-9A-Fa-f:.]+\]|[^\/?#@:\[\]]+)(:[0-9]{1,5})?([\/?#].*)?$/.test(text)
            ? "" : qsTr("Scheme and host, such as https://host/path")
}

// What is wrong with the length of a text, if the expression is only a length of one kind of characters.
function lengthProblem(expression, text) {
    const limits = /^\^?\[(?:\\.|[^\]\\])*\]\{\d+,(\d+)\}\$?$/.exec(expression)
    const length = Array.from(text).length
    return limits === null ? "" : limitsProblem(undefined, limits[1], length)
}

// What is wrong with a length, with both numbers; limits may be undefined.
function limitsProblem(minimum, maximum, length) {
    if (maximum !== undefined && length > Number(maximum))
        return qsTr("At most %1 characters; this text has %2").arg(maximum).arg(length)
    return length < Number(minimum || 0) ? qsTr("At least %1 characters; this text has %2").arg(minimum).arg(length) : ""
}

function phoneProblem(text) {
    return /^\+?[0-9 ()\/*#-]*$/.test(text) && /[0-9*#]/.test(text)
            ? "" : qsTr("Digits, + at the beginning, blanks and ( ) / - * #")
}

// `range` followed by the unit, unless it contains the unit already.
function withUnit(range, unit) {
    return range === "" || unit === "" || range.includes(unit) ? range : range + " " + unit
}

// A number as a program writes it, from one in the user's locale; empty when it is not a number. Group separators are
// rejected: if they are points, "1.5" would become 15.
function plainNumber(text, locale) {
    let plain = ""
    for (const character of text.trim()) {
        const digit = character.charCodeAt(0) - locale.zeroDigit.charCodeAt(0)
        if (digit >= 0 && digit <= 9)
            plain += digit
        else if (character === locale.decimalPoint)
            plain += "."
        else if (character === ".")
            return ""
        else
            plain += character === locale.negativeSign ? "-" : character
    }
    return /^[+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)?$/.test(plain) && isFinite(Number(plain)) ? plain : ""
}

function durationText(seconds) {
    const whole = Math.abs(Math.round(seconds))
    const two = number => (number < 10 ? "0" : "") + number
    return (seconds < 0 ? "-" : "") + Math.floor(whole / 3600) + ":" + two(Math.floor(whole / 60) % 60) + ":" + two(whole % 60)
}

// The seconds of "h:mm:ss", "m:ss" or "s"; NaN for any other text.
function secondsOf(text) {
    const match = /^(?:(?:([0-9]{1,6}):)?([0-9]{1,6}):)?([0-9]{1,9})$/.exec(text)
    if (!match)
        return NaN
    const hours = match[1] === undefined ? 0 : Number(match[1])
    const minutes = match[2] === undefined ? 0 : Number(match[2])
    const seconds = Number(match[3])
    if ((match[2] !== undefined && seconds > 59) || (match[1] !== undefined && minutes > 59))
        return NaN
    return hours * 3600 + minutes * 60 + seconds
}

function isWholeType(type) {
    return ["int", "uint", "qint64", "quint64", "std::vector<int32_t>"].includes(type)
}

// The numbers that a type can hold exactly.
function typeLimits(type) {
    switch (type) {
    case "int":
    case "std::vector<int32_t>":
        return [-2147483648, 2147483647]
    case "uint":
        return [0, 4294967295]
    case "quint64":
        return [0, Number.MAX_SAFE_INTEGER]
    case "qint64":
        return [Number.MIN_SAFE_INTEGER, Number.MAX_SAFE_INTEGER]
    default:
        return [-Infinity, Infinity]
    }
}

// The range in words, each limit written by `write`.
function rangeText(minimum, maximum, write, unit) {
    const ending = unit === "" ? "" : " " + unit
    if (minimum !== undefined && maximum !== undefined)
        return "%1 - %2%3".arg(write(minimum)).arg(write(maximum)).arg(ending)
    if (minimum !== undefined)
        return qsTr("At least %1").arg(write(minimum) + ending)
    return maximum !== undefined ? qsTr("At most %1").arg(write(maximum) + ending) : ""
}
