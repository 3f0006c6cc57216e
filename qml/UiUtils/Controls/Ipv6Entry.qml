import QtQuick 2.15
import "formats.js" as Formats

/// An IP address of version 6; a zone such as "%eth0" may follow.
FieldEntry {
    function check(text) {
        return Formats.ipv6Problem(text) || checkLength(text)
    }

    rangeText: face.tidyRange
    placeholderText: "2001:db8::1"
    hasPad: true
    padDigits: "0123456789ABCDEF"
    padSeparator: ":"
    inputMethodHints: Qt.ImhPreferNumbers | Qt.ImhPreferLowercase | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
}
