import QtQuick 2.15
import "formats.js" as Formats

/// Hyphens and bare digits are accepted too; the item gets capitals and colons.
FieldEntry {
    function check(text) {
        return Formats.macProblem(text) || checkLength(Formats.macText(text))
    }
    function parsed(text) {
        return text === "" ? "" : Formats.macText(text)
    }

    rangeText: "00:00:00:00:00:00 - FF:FF:FF:FF:FF:FF"
    placeholderText: "00:1A:2B:3C:4D:5E"
    hasPad: true
    padDigits: "0123456789ABCDEF"
    padSeparator: ":"
    inputMethodHints: Qt.ImhPreferNumbers | Qt.ImhPreferUppercase | Qt.ImhNoPredictiveText
}
