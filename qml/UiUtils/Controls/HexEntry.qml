import QtQuick 2.15

RadixEntry {
    radix: 16
    prefix: "0x"
    inputMethodHints: Qt.ImhPreferNumbers | Qt.ImhPreferUppercase | Qt.ImhNoPredictiveText
}
