import QtQuick 2.15
import "formats.js" as Formats

FieldEntry {
    function check(text) {
        return Formats.ipv6Problem(text) || checkLength(text)
    }

    rangeText: face.tidyRange
    placeholderText: "2001:db8::1"
    inputMethodHints: Qt.ImhPreferNumbers | Qt.ImhPreferLowercase | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
}
