import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils.Viewer 1.0

// A button of the bar with a sign or a word, for touch. `label` describes its action in words.
AbstractButton {
    id: control

    property string label: text
    property bool isSign: false

    implicitWidth: isSign ? Theme.touch : Math.max(Theme.touch, caption.implicitWidth + 2 * Theme.gap)
    implicitHeight: Theme.touch
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.checkable: checkable
    Accessible.checked: checked

    contentItem: Text {
        id: caption
        text: control.text
        textFormat: Text.PlainText
        color: !control.enabled ? Theme.disabledText : control.checked ? Theme.primaryText : Theme.primary
        font { pixelSize: control.isSign ? Theme.signText : Theme.smallText; bold: true }
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: Theme.radius
        color: control.checked ? Theme.primary : control.down ? Theme.pressed : Theme.card
        border { width: Theme.line; color: Theme.border }

        // Shows which control has the keyboard focus.
        Rectangle {
            anchors { fill: parent; margins: -1.5 * border.width }
            visible: control.visualFocus
            radius: Theme.radius + border.width
            color: "transparent"
            border { width: Theme.focusLine; color: Theme.focus }
        }
    }
}
