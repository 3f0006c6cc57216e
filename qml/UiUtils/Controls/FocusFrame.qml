import QtQuick 2.15
import UiUtils.Controls 1.0

// Shows which control has the keyboard focus, by default only to those who use keys. Controls of which a page has many
// have a FocusWatch, which makes one when it is needed.
Rectangle {
    // A control or field of the templates, or any item with focus.
    property Item control: parent
    readonly property bool isByKey: control.focusReason === undefined || ControlsStyle.isByKey(control)
    // Inside of the control, where what is outside would be cut off.
    property bool within: false
    property bool active: true

    objectName: "focusFrame"
    anchors { fill: parent; margins: within ? 0 : -1.5 * border.width }
    z: 10
    visible: active && control.activeFocus && (isByKey || !ControlsStyle.keyFocus)
    radius: ControlsStyle.radius + (within ? 0 : border.width)
    color: "transparent"
    border { width: ControlsStyle.focusLine; color: ControlsStyle.focus }
}
