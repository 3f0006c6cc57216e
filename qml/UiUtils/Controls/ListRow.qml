import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import UiUtils 1.0
import UiUtils.Controls 1.0

/// A row of a list: icon, two lines of text, a value, a verdict, and what leads on.
T.ItemDelegate {
    id: row

    /// The first line, at most two lines long.
    property string title
    /// The second line, muted; empty for none.
    property string subtitle
    /// What stands at the end of the row.
    property string value
    /// The name of an icon; empty for none.
    property string iconName
    /// A code of Status.
    property int status: Status.None
    /// Whether the row is the chosen one of its list.
    property bool selected: false
    /// Whether a tap leads to another page.
    property bool chevron: false
    /// Controls at the end of the row.
    property alias trailing: tail.data

    implicitWidth: ControlsStyle.mm(60)
    width: ListView.view ? ListView.view.width : implicitWidth
    // Rows touch, so that the middles of two neighbours are as far apart as those of other targets.
    implicitHeight: Math.max(ControlsStyle.touch + ControlsStyle.touchGap, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: ControlsStyle.margin
    rightPadding: ControlsStyle.margin
    topPadding: ControlsStyle.gap / 2
    bottomPadding: ControlsStyle.gap / 2
    text: title
    // A list is one stop of the key Tab, and the arrow keys go from row to row.
    focusPolicy: ListView.view ? Qt.ClickFocus : Qt.StrongFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: [subtitle, value, ControlsStyle.qualityWord(status)].filter(part => part !== "").join(", ")
    Accessible.selected: selected
    Accessible.selectable: true
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: pressBy(event)
    Keys.onEnterPressed: pressBy(event)

    function pressBy(event) {
        if (!event.isAutoRepeat)
            clicked()
    }

    contentItem: RowLayout {
        spacing: ControlsStyle.gap

        Icon {
            visible: row.iconName !== ""
            name: row.iconName
            color: row.enabled ? row.selected ? ControlsStyle.primary : ControlsStyle.mutedText : ControlsStyle.disabledText
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.minimumWidth: row.availableWidth / 3
            spacing: 0

            BodyText {
                readonly property bool mayElide: true

                Layout.fillWidth: true
                text: row.title
                maximumLineCount: 2
                elide: Text.ElideRight
                font.weight: row.selected || row.subtitle !== "" ? Font.DemiBold : Font.Normal
                Accessible.ignored: true
            }
            LabelText {
                readonly property bool mayElide: true

                Layout.fillWidth: true
                visible: text !== ""
                text: row.subtitle
                Accessible.ignored: true
            }
        }
        ColumnLayout {
            Layout.maximumWidth: row.availableWidth / 2
            visible: row.value !== "" || verdict.visible
            spacing: 0

            BodyText {
                readonly property bool mayElide: true

                Layout.fillWidth: true
                visible: text !== ""
                text: row.value
                muted: true
                wrapMode: Text.NoWrap
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignRight
                Accessible.ignored: true
            }
            StatusMark {
                id: verdict
                Layout.alignment: Qt.AlignRight
                status: row.status
                Accessible.ignored: true
            }
        }
        RowLayout {
            id: tail
            visible: children.length > 0
            spacing: ControlsStyle.touchGap
        }
        Icon {
            visible: row.chevron
            name: "forward"
            size: ControlsStyle.mm(3.6)
            color: ControlsStyle.mutedText
        }
    }
    background: Item {
        Rectangle {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: row.leftPadding; rightMargin: row.rightPadding }
            height: ControlsStyle.line
            color: ControlsStyle.divider
        }
        Rectangle {
            anchors { fill: parent; margins: ControlsStyle.line }
            radius: ControlsStyle.radius
            color: row.down ? ControlsStyle.pressed : row.selected ? ControlsStyle.selected : "transparent"

            Rectangle {
                anchors { left: parent.left; top: parent.top; bottom: parent.bottom; margins: parent.radius / 2 }
                width: ControlsStyle.mm(0.8)
                radius: width / 2
                visible: row.selected
                color: ControlsStyle.primary
            }
        }
    }

    FocusWatch { within: true }
}
