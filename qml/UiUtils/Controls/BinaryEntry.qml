import QtQuick 2.15

RadixEntry {
    radix: 2
    prefix: "0b"
    inputMethodHints: Qt.ImhDigitsOnly
    hasPad: true
}
