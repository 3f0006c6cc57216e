import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

// One of the open choices. The present one has a check mark.
T.ItemDelegate {
    id: row

    property bool isPresent: false

    implicitHeight: Math.max(ControlsStyle.mm(11), words.implicitHeight + 2 * ControlsStyle.gap)
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: isPresent

    contentItem: Item {
        StyledText {
            id: words
            anchors { left: parent.left; right: check.left; verticalCenter: parent.verticalCenter; leftMargin: ControlsStyle.margin; rightMargin: ControlsStyle.gap }
            text: row.text
            font { pixelSize: ControlsStyle.bodyText; weight: row.isPresent ? Font.DemiBold : Font.Normal }
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Icon {
            id: check
            anchors { right: parent.right; rightMargin: ControlsStyle.gap; verticalCenter: parent.verticalCenter }
            visible: row.isPresent
            name: "check"
        }
    }
    background: Rectangle {
        color: row.down || row.highlighted ? ControlsStyle.pressed : row.isPresent ? ControlsStyle.selected : ControlsStyle.field
    }
}
