import QtQuick 2.15

/// A number in octal digits, or a text of them.
RadixEntry {
    radix: 8
    prefix: "0o"
    inputMethodHints: Qt.ImhDigitsOnly
}
