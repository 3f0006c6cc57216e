.pragma library

// Dates and times of day: as ISO 8601 texts ("2026-11-22", "14:20", "2026-11-22T14:20"), which items hold, and as people of a
// locale write them. Parts are { year, month (from 1), day, hour, minute }.

function two(number) {
    return (number < 10 ? "0" : "") + number
}

function dayCount(year, month) {
    return new Date(year, month, 0, 12).getDate()
}

function isDate(parts) {
    return parts.year >= 1000 && parts.year <= 9999 && parts.month >= 1 && parts.month <= 12 && parts.day >= 1
            && parts.day <= dayCount(parts.year, parts.month)
}

function isTime(parts) {
    return parts.hour >= 0 && parts.hour <= 23 && parts.minute >= 0 && parts.minute <= 59
}

// The parts of an ISO text or a Date; null for anything else.
function partsOf(value, hasDate, hasTime) {
    if (value instanceof Date)
        return isNaN(value) ? null : { year: value.getFullYear(), month: value.getMonth() + 1, day: value.getDate(),
                                       hour: value.getHours(), minute: value.getMinutes() }
    const match = /^(?:(\d{4})-(\d{2})-(\d{2}))?(?:(?:^|[T ])(\d{2}):(\d{2})(?::\d{2}(?:\.\d+)?)?)?$/.exec(String(value === undefined || value === null ? "" : value))
    if (!match || hasDate && match[1] === undefined || hasTime && match[4] === undefined)
        return null
    const parts = { year: Number(match[1] || 2000), month: Number(match[2] || 1), day: Number(match[3] || 1),
                    hour: Number(match[4] || 0), minute: Number(match[5] || 0) }
    return isDate(parts) && isTime(parts) ? parts : null
}

function isoOf(parts, hasDate, hasTime) {
    const date = hasDate ? parts.year + "-" + two(parts.month) + "-" + two(parts.day) : ""
    const time = hasTime ? two(parts.hour) + ":" + two(parts.minute) : ""
    return [date, time].filter(part => part !== "").join("T")
}

// The moment in the words and digits of the locale.
function written(parts, locale, hasDate, hasTime) {
    return [hasDate ? writtenDate(parts, locale, dateFormat(locale)) : "", hasTime ? writtenTime(parts, locale, timeFormat(locale)) : ""]
            .filter(part => part !== "").join(" ")
}

// Without a Date, which would show an hour that the present zone leaves out as another one.
function writtenDate(parts, locale, format) {
    return filled(format, /'([^']*)'|yyyy|MM?|dd?/g, locale, { yyyy: parts.year, MM: two(parts.month), M: parts.month, dd: two(parts.day), d: parts.day })
}

function writtenTime(parts, locale, format) {
    const half = parts.hour < 12 ? locale.amText : locale.pmText
    const hour = /[aA]/.test(format.replace(/'[^']*'/g, "")) ? (parts.hour + 11) % 12 + 1 : parts.hour
    return filled(format, /'([^']*)'|HH?|hh?|mm?|AP?|ap?/g, locale,
                  { HH: two(parts.hour), H: parts.hour, hh: two(hour), h: hour, mm: two(parts.minute), m: parts.minute,
                    AP: half, A: half, ap: half.toLowerCase(), a: half.toLowerCase() })
}

// The format with the values of its parts, in the digits of the locale.
function filled(format, parts, locale, values) {
    const zero = locale.zeroDigit.charCodeAt(0)
    return format.replace(parts, (part, quoted) => quoted !== undefined ? quoted
        : String(values[part]).replace(/[0-9]/g, digit => String.fromCharCode(zero + Number(digit))))
}

// Noon is on that day wherever clocks are put forward.
function toDate(parts) {
    return new Date(parts.year, parts.month - 1, parts.day, 12)
}

// The locale's short formats: the year in full, no seconds, and no marks of direction, which a field shows as boxes.
function dateFormat(locale) {
    const format = locale.dateFormat(1).replace(/y+/, "yyyy").replace(/[\u200e\u200f\u061c]/g, "")
    // Names of months are not for typing.
    return /MMM/.test(format) ? "yyyy-MM-dd" : format
}

function timeFormat(locale) {
    return locale.timeFormat(1).replace(/[:.]ss/, "").replace(/[\u200e\u200f\u061c]/g, "")
}

// With the digits 0 to 9, whatever the locale's.
function plainDigits(text, locale) {
    const zero = locale.zeroDigit.charCodeAt(0)
    return Array.from(text).map(character => {
        const digit = character.charCodeAt(0) - zero
        return digit >= 0 && digit <= 9 ? String(digit) : character
    }).join("").replace(/[\u200e\u200f\u061c]/g, "")
}

// The hour of a clock with twelve hours; the hour itself without a word for the half of the day.
function hourOf(hour, text, locale) {
    const words = text.toLowerCase()
    const says = (name, plain) => words.includes(plain) || name !== "" && words.includes(name.toLowerCase())
    if (!/[aA]/.test(timeFormat(locale).replace(/'[^']*'/g, "")) || hour < 1 || hour > 12)
        return hour
    return says(locale.pmText, "pm") ? hour % 12 + 12 : says(locale.amText, "am") ? hour % 12 : hour
}

// The numbers in the order of the locale; the order of ISO 8601 where the year leads.
function dateOrder(text, locale) {
    return /^\s*\d{4}/.test(text) ? ["y", "M", "d"] : dateFormat(locale).replace(/'[^']*'/g, "").match(/y+|M+|d+/g).map(part => part[0])
}

// What somebody typed, in parts; null when it is no such date or time.
function parse(typed, locale, hasDate, hasTime) {
    const text = plainDigits(typed, locale)
    const numbers = (text.match(/\d+/g) || []).map(Number)
    if (numbers.length !== (hasDate ? 3 : 0) + (hasTime ? 2 : 0))
        return null
    const parts = { year: 2000, month: 1, day: 1, hour: 0, minute: 0 }
    if (hasDate) {
        const names = { y: "year", M: "month", d: "day" }
        dateOrder(text, locale).forEach((part, position) => { parts[names[part]] = numbers[position] })
        if (parts.year < 100)
            parts.year += 2000
    }
    if (hasTime) {
        parts.minute = numbers[numbers.length - 1]
        parts.hour = hourOf(numbers[numbers.length - 2], text, locale)
    }
    return isDate(parts) && isTime(parts) ? parts : null
}

// The days of the six weeks in which a month lies, the first day of the locale's week first.
function weeks(year, month, firstDayOfWeek) {
    const first = new Date(year, month - 1, 1, 12)
    const lead = (first.getDay() - firstDayOfWeek % 7 + 7) % 7
    const days = []
    for (let i = 0; i < 42; ++i) {
        const day = new Date(year, month - 1, 1 - lead + i, 12)
        days.push({ year: day.getFullYear(), month: day.getMonth() + 1, day: day.getDate() })
    }
    return days
}

// The parts with so many months or days more; the last day of a month at most.
function moved(parts, months, days) {
    const month = new Date(parts.year, parts.month - 1 + months, 1, 12)
    const day = Math.min(parts.day, dayCount(month.getFullYear(), month.getMonth() + 1))
    const date = new Date(month.getFullYear(), month.getMonth(), day + days, 12)
    const there = Object.assign({}, parts, { year: date.getFullYear(), month: date.getMonth() + 1, day: date.getDate() })
    return isDate(there) ? there : parts
}

// The format of an hour alone.
function hourFormat(locale) {
    const format = timeFormat(locale)
    return /H+|h+/.exec(format)[0] + (/[aA]/.test(format) ? " AP" : "")
}
