import QtQuick 2.15
import "formats.js" as Formats

/// A number in another radix. An item of a numeric type gets the number, a text item the digits.
FieldEntry {
    id: entry

    /// The base of the digits, 2 to 16.
    property int radix: 16
    /// The prefix that programmers write; it may lead the digits.
    property string prefix: "0x"
    /// What is shown for a text with other characters.
    property string problemText

    readonly property bool isNumber: type !== "" && type !== "std::string"
    readonly property string digits: "0123456789ABCDEF".slice(0, radix)

    function bare(text) {
        return text.toLowerCase().startsWith(prefix) ? text.slice(prefix.length) : text
    }
    function textOf(value) {
        if (value === undefined || value === null || value === "")
            return ""
        return isNumber && !isNaN(Number(value)) ? Number(value).toString(radix).toUpperCase() : String(value)
    }
    function parsed(text) {
        return !isNumber ? bare(text) : text === "" ? undefined : parseInt(bare(text), radix)
    }
    function check(text) {
        const written = bare(text).toUpperCase()
        for (const character of written) {
            if (!digits.includes(character))
                return qsTr("Only the digits %1 can be used here").arg(radix > 10 ? "0 - 9, A - F" : digits[0] + " - " + digits[radix - 1])
        }
        if (!isNumber)
            return checkLength(bare(text))
        const limits = Formats.typeLimits(type)
        const number = parseInt(written, radix)
        const least = minimum === undefined ? Math.max(limits[0], 0) : Number(minimum)
        const most = maximum === undefined ? Math.min(limits[1], Number.MAX_SAFE_INTEGER) : Number(maximum)
        return number >= least && number <= most ? "" : Formats.rangeText(least, most, textOf, unit)
    }

    rangeText: isNumber ? Formats.rangeText(minimum, maximum, textOf, unit) : lengthText
    // When the field shows plain text for reading, the digits still count.
    plainText: shownText
    hasPad: true
    padDigits: digits
}
