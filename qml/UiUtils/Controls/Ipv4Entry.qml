import QtQuick 2.15
import "formats.js" as Formats

/// An IP address of version 4.
FieldEntry {
    function check(text) {
        return Formats.ipv4Problem(text) || checkLength(text)
    }

    rangeText: "0.0.0.0 - 255.255.255.255"
    placeholderText: "192.0.2.1"
    // Not a keyboard for digits only: it has no point where the locale uses a comma.
    inputMethodHints: Qt.ImhPreferNumbers | Qt.ImhNoPredictiveText
    hasPad: true
    padSeparator: "."
}
