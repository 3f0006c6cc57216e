import QtQuick 2.15
import "formats.js" as Formats

/// An address of either version.
FieldEntry {
    function check(text) {
        const problem = text.includes(":") ? Formats.ipv6Problem(text) : Formats.ipv4Problem(text)
        return problem !== "" ? problem : checkLength(text)
    }

    rangeText: face.tidyRange
    placeholderText: "192.0.2.1"
    hasPad: true
    padDigits: "0123456789ABCDEF"
    padSeparator: ".:"
    inputMethodHints: Qt.ImhPreferNumbers | Qt.ImhPreferLowercase | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
}
