import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

// Shows that there is more, and where in it the view is. Always visible where there is more, because an edge between two
// rows would hide it.
T.ScrollBar {
    id: bar

    implicitWidth: ControlsStyle.mm(1.2)
    implicitHeight: implicitWidth
    padding: 1
    minimumSize: 0.08
    visible: size < 1
    policy: T.ScrollBar.AlwaysOn
    Accessible.ignored: true

    contentItem: Rectangle {
        radius: Math.min(width, height) / 2
        color: bar.pressed ? ControlsStyle.primary : ControlsStyle.border
    }
}
