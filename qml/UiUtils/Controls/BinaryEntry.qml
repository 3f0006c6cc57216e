import QtQuick 2.15

/// A number in binary digits, or a text of them.
RadixEntry {
    radix: 2
    prefix: "0b"
    inputMethodHints: Qt.ImhDigitsOnly
}
