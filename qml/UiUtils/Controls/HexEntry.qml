import QtQuick 2.15

/// A number in hexadecimal digits, or a text of them.
RadixEntry {
    radix: 16
    prefix: "0x"
    inputMethodHints: Qt.ImhPreferNumbers | Qt.ImhPreferUppercase | Qt.ImhNoPredictiveText
}
