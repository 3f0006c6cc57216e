import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0

/// A page of a PageStack: a line with back, title and actions, contents that scroll, and a footer.
FocusScope {
    id: page

    property string title
    /// A line below the title; empty for none.
    property string subtitle
    /// Buttons at the end of the title's line.
    property alias actions: actionRow.data
    /// What stands below the contents and does not scroll.
    property alias footer: footerRow.data
    /// The service that the page lives on: while it is away, a banner over the title says so. Empty for none.
    property string service
    /// Whether the contents scroll; otherwise they fill the page.
    property bool scrolls: true
    /// The distance of the contents from the edges.
    property alias padding: area.padding
    default property alias content: area.content

    /// The stack that shows the page.
    readonly property Item stack: parent && parent.pageStack ? parent.pageStack : null
    /// Whether there is a page to go back to.
    readonly property bool hasBack: stack !== null && stack.depth > 1
    /// The area of the contents.
    readonly property alias area: area

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Rectangle {
        anchors.fill: parent
        color: ControlsStyle.background
    }
    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        RowLayout {
            id: header
            objectName: "pageHeader"
            Layout.fillWidth: true
            Layout.fillHeight: false
            Layout.leftMargin: page.hasBack ? ControlsStyle.gap : ControlsStyle.margin
            Layout.rightMargin: ControlsStyle.margin
            // Above there may be targets.
            Layout.topMargin: ControlsStyle.touchGap
            visible: page.title !== "" || page.hasBack || actionRow.children.length > 0
            spacing: ControlsStyle.gap

            IconButton {
                objectName: "backButton"
                visible: page.hasBack
                iconName: "back"
                name: qsTr("Back")
                onClicked: page.stack.pop()
            }
            ColumnLayout {
                Layout.fillWidth: true
                Layout.minimumWidth: page.width / 4
                Layout.minimumHeight: ControlsStyle.touch
                spacing: 0

                Item { Layout.fillHeight: true }
                // Even an empty text would load its font.
                Loader {
                    Layout.fillWidth: true
                    active: page.title !== ""
                    visible: active
                    sourceComponent: TitleText {
                        text: page.title
                        fontSizeMode: Text.HorizontalFit
                        minimumPixelSize: ControlsStyle.bodyText
                    }
                }
                LabelText {
                    readonly property bool mayElide: true

                    Layout.fillWidth: true
                    visible: text !== ""
                    text: page.subtitle
                }
                Item { Layout.fillHeight: true }
            }
            RowLayout {
                id: actionRow
                Layout.fillWidth: false
                spacing: ControlsStyle.touchGap
            }
        }
        ScrollArea {
            id: area
            Layout.fillWidth: true
            Layout.fillHeight: true
            scrolls: page.scrolls
            padding: ControlsStyle.margin
        }
        Rectangle {
            id: foot
            Layout.fillWidth: true
            implicitHeight: footerRow.implicitHeight + 2 * ControlsStyle.touchGap
            visible: footerRow.children.length > 0
            color: ControlsStyle.card

            Rectangle {
                width: parent.width
                height: ControlsStyle.line
                color: ControlsStyle.divider
            }
            RowLayout {
                id: footerRow
                anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: ControlsStyle.margin; rightMargin: ControlsStyle.margin; topMargin: ControlsStyle.touchGap }
                spacing: ControlsStyle.touchGap
            }
        }
    }
    // Over the title, where Back stays within reach; a page without a title has it over the footer.
    Loader {
        readonly property bool isBelow: !header.visible && foot.visible

        active: page.service !== ""
        x: ControlsStyle.mirrored || isBelow ? ControlsStyle.gap / 2 : page.width - width - ControlsStyle.gap / 2
        y: isBelow ? foot.y : ControlsStyle.gap / 2
        width: page.width - ControlsStyle.gap / 2 - (page.hasBack && !isBelow ? ControlsStyle.touch + 2 * ControlsStyle.gap : ControlsStyle.gap / 2)
        height: isBelow ? foot.height : Math.max(header.height, ControlsStyle.touch)
        z: 5

        sourceComponent: ServiceBanner {
            objectName: "pageBanner"
            service: page.service
        }
    }
}
