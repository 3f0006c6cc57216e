import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

/// The pages of a report before it is saved, over everything in the window. Call show().
ModalDialog {
    id: dialog

    /// The controller whose report is shown, a Report.
    property alias report: preview.report
    /// The document that is shown where there is no `report`.
    property alias document: preview.document
    /// The pages.
    readonly property alias preview: preview

    /// Opens the dialog with the report as it is now.
    function show() {
        pages.zoom = 1
        preview.show()
        open()
    }

    onClosed: preview.clear()

    objectName: "previewDialog"
    padding: ControlsStyle.margin
    width: overlay ? overlay.width - 2 * ControlsStyle.margin : ControlsStyle.mm(110)
    height: overlay ? overlay.height - 2 * ControlsStyle.margin : ControlsStyle.mm(80)

    contentItem: FocusScope {
        // A popup does not inherit it from the page.
        LayoutMirroring.enabled: ControlsStyle.mirrored
        LayoutMirroring.childrenInherit: true
        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: heading.text
        Keys.onEscapePressed: dialog.close()

        ReportPreview { id: preview }

        ColumnLayout {
            anchors.fill: parent
            spacing: ControlsStyle.gap

            RowLayout {
                Layout.fillWidth: true
                spacing: ControlsStyle.touchGap

                Text {
                    id: heading
                    objectName: "previewHeading"
                    Layout.fillWidth: true
                    text: preview.busy ? qsTr("The pages are being made")
                        : preview.pageCount === 0 ? qsTr("There are no pages")
                        : qsTr("Page %1 of %2").arg(pages.page + 1).arg(preview.pageCount)
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    color: ControlsStyle.text
                    font { pixelSize: ControlsStyle.headingText; weight: Font.DemiBold }
                }
                IconButton {
                    objectName: "zoomOutButton"
                    iconName: "remove"
                    quiet: false
                    enabled: pages.zoom > pages.leastZoom
                    name: qsTr("Zoom out")
                    onClicked: pages.zoomTo(pages.zoom / 1.25)
                }
                IconButton {
                    objectName: "zoomInButton"
                    iconName: "add"
                    quiet: false
                    enabled: pages.zoom < pages.mostZoom
                    name: qsTr("Zoom in")
                    onClicked: pages.zoomTo(pages.zoom * 1.25)
                }
                TouchButton {
                    objectName: "closeButton"
                    text: qsTr("Close")
                    onClicked: dialog.close()
                }
            }
            PreviewPages {
                id: pages
                objectName: "previewPages"
                Layout.fillWidth: true
                Layout.fillHeight: true
                focus: true
                preview: preview
            }
        }
    }
}
