import QtQuick.Window 2.15

Window {
    width: 800
    height: 480
    visible: true

    CablePage { anchors.fill: parent }
}
