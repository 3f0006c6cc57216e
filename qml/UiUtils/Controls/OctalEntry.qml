import QtQuick 2.15

RadixEntry {
    radix: 8
    prefix: "0o"
    inputMethodHints: Qt.ImhDigitsOnly
    hasPad: true
}
