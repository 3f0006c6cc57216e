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
        color: !control.enabled ? Theme.disabled : control.checked ? Theme.card : Theme.primary
        font { pixelSize: control.isSign ? Theme.signText : Theme.smallText; bold: true }
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    background: Rectangle {
        radius: Theme.radius
        color: control.checked ? Theme.primary : control.down ? Theme.background : Theme.card
        border { width: 2; color: control.enabled ? Theme.primary : Theme.border }

        // Shows which control has the keyboard focus.
        Rectangle {
            anchors { fill: parent; margins: -3 }
            visible: control.visualFocus
            radius: Theme.radius + 3
            color: "transparent"
            border { width: 3; color: Theme.focus }
        }
    }
}
