import QtQuick 2.15
import "formats.js" as Formats

/// Digits that are not a number, such as a code: leading zeros count. An item of a numeric type gets a number.
FieldEntry {
    readonly property bool isNumber: type !== "" && type !== "std::string"

    function check(text) {
        if (!/^[0-9]*$/.test(text) || (text === "" && isNumber))
            return qsTr("Only digits can be used here")
        if (!isNumber)
            return checkLength(text)
        const least = Number(minimum || 0)
        const most = maximum === undefined ? Math.min(Formats.typeLimits(type)[1], Number.MAX_SAFE_INTEGER) : Number(maximum)
        return Number(text) < least || Number(text) > most ? Formats.rangeText(least, most, String, "") : ""
    }
    function parsed(text) {
        return !isNumber ? text : text === "" ? undefined : Number(text)
    }

    rangeText: isNumber ? Formats.rangeText(minimum, maximum, String, unit) : lengthText
    inputMethodHints: Qt.ImhDigitsOnly
    hasPad: true
}
