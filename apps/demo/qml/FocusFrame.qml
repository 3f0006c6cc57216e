import QtQuick 2.15
import UiUtils.Demo 1.0

// Shows which control has the keyboard focus.
Rectangle {
    anchors.fill: parent
    anchors.margins: -3
    visible: parent.activeFocus
    radius: Theme.radius + 3
    color: "transparent"
    border { width: 3; color: Theme.focus }
}
