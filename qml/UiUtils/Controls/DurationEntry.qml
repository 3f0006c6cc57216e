import QtQuick 2.15
import "formats.js" as Formats

/// Seconds, written as h:mm:ss; m:ss and bare seconds are accepted too.
FieldEntry {
    function textOf(value) {
        return value === undefined || value === null || value === "" || isNaN(Number(value)) ? "" : Formats.durationText(Number(value))
    }
    function parsed(text) {
        return text === "" ? undefined : Formats.secondsOf(text)
    }
    function check(text) {
        const seconds = Formats.secondsOf(text)
        if (isNaN(seconds))
            return qsTr("Hours, minutes and seconds, such as 1:30:00")
        const limits = Formats.typeLimits(type)
        if (seconds < Number(minimum || 0) || seconds > Number(maximum === undefined ? limits[1] : maximum))
            return rangeText !== "" ? rangeText : qsTr("This is too long")
        return ""
    }

    unit: ""
    rangeText: Formats.rangeText(minimum, maximum, textOf, "")
    plainText: shownText
    placeholderText: "0:00:00"
    inputMethodHints: Qt.ImhTime | Qt.ImhPreferNumbers | Qt.ImhNoPredictiveText
    hasPad: true
    padSeparator: ":"
}
