import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import UiUtils 1.0
import UiUtils.Controls 1.0

/// A surface for what belongs together, as large as its contents, which stand one below the other.
T.Control {
    id: card

    /// The heading; empty for none.
    property string title
    /// A code of Status: it colours the edge, and stands as a word beside the title.
    property int status: Status.None
    default property alias content: column.data
    // Whether the verdict stands beside the title.
    property bool showsVerdict: true

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: ControlsStyle.margin
    spacing: ControlsStyle.gap
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    contentItem: Item {
        ColumnLayout {
            id: column
            width: parent.width
            spacing: card.spacing
            // As bindings they would be evaluated within themselves, when a text takes another line.
            onImplicitWidthChanged: parent.implicitWidth = implicitWidth
            onImplicitHeightChanged: parent.implicitHeight = implicitHeight

            // A card that is higher than its contents has them at the top, unless one of them wants the height.
            Binding on height {
                when: Array.from(column.children).some(child => child.Layout.fillHeight)
                value: card.availableHeight
            }

            RowLayout {
                Layout.fillWidth: true
                visible: card.title !== "" || card.showsVerdict && verdict.active
                spacing: ControlsStyle.gap

                HeadingText {
                    Layout.fillWidth: true
                    text: card.title
                }
                Loader {
                    id: verdict
                    active: card.status !== Status.None
                    visible: active
                    sourceComponent: StatusMark { status: card.status }
                }
            }
        }
    }
    background: Rectangle {
        radius: ControlsStyle.radius
        color: ControlsStyle.card
        border { width: ControlsStyle.line; color: ControlsStyle.divider }

        Rectangle {
            anchors { left: parent.left; top: parent.top; bottom: parent.bottom; margins: ControlsStyle.gap / 2 }
            width: ControlsStyle.mm(0.8)
            radius: width / 2
            visible: card.status !== Status.None
            color: ControlsStyle.qualityColor(card.status)
        }
    }
}
