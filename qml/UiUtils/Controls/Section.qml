import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

/// A heading with contents below it, which may be folded away.
ColumnLayout {
    id: section

    property string title
    /// A line below the title; empty for none.
    property string note
    /// Whether a tap on the title folds the contents away.
    property bool collapsible: false
    /// Whether the contents are shown.
    property bool expanded: true
    default property alias content: column.data

    spacing: ControlsStyle.gap

    T.AbstractButton {
        id: header

        readonly property string fold: !section.collapsible ? "" : section.expanded ? qsTr("Expanded") : qsTr("Collapsed")

        objectName: "sectionHeader"
        Layout.fillWidth: true
        implicitHeight: Math.max(section.collapsible ? ControlsStyle.touch : 0, implicitContentHeight)
        enabled: section.collapsible
        focusPolicy: section.collapsible ? Qt.StrongFocus : Qt.NoFocus
        Accessible.role: section.collapsible ? Accessible.Button : Accessible.Heading
        Accessible.name: section.title
        Accessible.description: [section.note, fold].filter(part => part !== "").join(", ")
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        onClicked: section.expanded = !section.expanded

        contentItem: RowLayout {
            enabled: true
            spacing: ControlsStyle.gap

            ColumnLayout {
                Layout.fillWidth: true
                spacing: 0

                HeadingText {
                    Layout.fillWidth: true
                    text: section.title
                    color: ControlsStyle.text
                    Accessible.ignored: true
                }
                LabelText {
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: section.note
                    color: ControlsStyle.mutedText
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
            }
            Icon {
                visible: section.collapsible
                name: section.expanded ? "up" : "down"
                color: ControlsStyle.primary
            }
        }
        background: Rectangle {
            radius: ControlsStyle.radius
            color: header.down ? ControlsStyle.pressed : "transparent"
        }

        FocusWatch {}
    }
    ColumnLayout {
        id: column
        Layout.fillWidth: true
        visible: section.expanded
        // There may be targets among the contents.
        spacing: ControlsStyle.touchGap
    }
}
