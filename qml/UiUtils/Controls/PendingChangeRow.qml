import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// A change that waits, with what became of it and what the user can do about it.
FocusScope {
    id: row

    property string label
    property string service
    property string oldText
    property string newText
    property int state: PendingChanges.Waiting
    property string problem
    readonly property bool isOvertaken: state === PendingChanges.Overtaken
    // Two buttons beside the texts leave too little for these on a narrow screen.
    readonly property bool isNarrow: width < ControlsStyle.mm(isOvertaken ? 110 : 60)
    signal reverted
    signal dismissed
    signal setAgain

    width: ListView.view ? ListView.view.width : implicitWidth
    implicitWidth: ControlsStyle.mm(60)
    implicitHeight: Math.max(ControlsStyle.touch + ControlsStyle.touchGap,
                             2 * ControlsStyle.gap + (isNarrow ? texts.height + ControlsStyle.gap + buttons.height
                                                               : Math.max(texts.height, buttons.height)))
    // A row is read; its buttons are pressed.
    Accessible.role: Accessible.Grouping
    Accessible.name: label
    Accessible.description: [service, isOvertaken ? qsTr("Changed meanwhile") : "", qsTr("Now: %1").arg(oldText),
                             qsTr("You have set: %1").arg(newText), problem].filter(part => part !== "").join(", ")

    // Positioners, because layouts in rows of a list make the list lay itself out again.
    Column {
        id: texts
        anchors { left: parent.left; leftMargin: ControlsStyle.margin; right: row.isNarrow ? parent.right : buttons.left; rightMargin: ControlsStyle.margin }
        y: row.isNarrow ? ControlsStyle.gap : (row.height - height) / 2
        spacing: ControlsStyle.gap / 3

        LineText { text: row.label; font.weight: Font.DemiBold }
        LineText { visible: text !== ""; text: row.service; muted: true; font.pixelSize: ControlsStyle.labelText }
        Row {
            width: parent.width
            visible: !row.isOvertaken
            spacing: ControlsStyle.gap

            LineText { id: before; width: Math.min(Math.ceil(implicitWidth), (parent.width - arrow.width) / 2 - parent.spacing); text: row.oldText; muted: true }
            Icon { id: arrow; y: (before.height - height) / 2; name: "forward"; size: ControlsStyle.mm(3.2); color: ControlsStyle.mutedText }
            LineText { objectName: "newText"; width: parent.width - before.width - arrow.width - 2 * parent.spacing; text: row.newText }
        }
        InlineProblem {
            width: parent.width
            visible: text !== ""
            text: row.isOvertaken ? qsTr("Changed meanwhile") : row.problem
            Accessible.ignored: true
        }
        LineText { visible: row.isOvertaken; text: qsTr("Now: %1").arg(row.oldText) }
        LineText { visible: row.isOvertaken; text: qsTr("You have set: %1").arg(row.newText); muted: true }
        InlineProblem {
            width: parent.width
            visible: text !== ""
            text: row.isOvertaken ? row.problem : ""
            Accessible.ignored: true
        }
    }
    Row {
        id: buttons
        anchors { right: parent.right; rightMargin: ControlsStyle.margin }
        y: row.isNarrow ? row.height - height - ControlsStyle.gap : (row.height - height) / 2
        spacing: ControlsStyle.touchGap

        TouchButton {
            id: first
            objectName: (row.isOvertaken ? "dismiss " : "revert ") + row.label
            focus: true
            quiet: true
            focusPolicy: Qt.ClickFocus
            text: row.isOvertaken ? qsTr("Dismiss") : qsTr("Revert")
            Accessible.name: text + ": " + row.label
            KeyNavigation.right: row.isOvertaken ? second : null
            onClicked: row.isOvertaken ? row.dismissed() : row.reverted()
        }
        TouchButton {
            id: second
            objectName: "setAgain " + row.label
            visible: row.isOvertaken
            focusPolicy: Qt.ClickFocus
            text: qsTr("Set again")
            Accessible.name: text + ": " + row.label
            KeyNavigation.left: first
            onClicked: row.setAgain()
        }
    }
    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: ControlsStyle.margin; rightMargin: ControlsStyle.margin }
        height: ControlsStyle.line
        color: ControlsStyle.divider
    }

    component LineText: BodyText {
        readonly property bool mayElide: true

        width: parent.width
        maximumLineCount: 2
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
