import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Viewer 1.0

// The file's name, the current page, the zoom, and the button that closes the viewer.
Rectangle {
    id: bar

    property string title
    property PageList pages

    signal closeWanted()

    implicitHeight: Theme.touch + 2 * Theme.gap
    color: Theme.card

    RowLayout {
        anchors { fill: parent; leftMargin: Theme.margin; rightMargin: Theme.margin }
        spacing: Theme.touchGap

        Text {
            Layout.fillWidth: true
            text: bar.title
            textFormat: Text.PlainText
            color: Theme.text
            font.pixelSize: Theme.bodyText
            wrapMode: Text.Wrap
            maximumLineCount: 2
            // Where the bar begins, in whatever language the title is.
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        RowLayout {
            visible: bar.pages.count > 0
            spacing: Theme.touchGap

            BarButton {
                objectName: "previousButton"
                isSign: true
                text: Theme.mirrored ? "\u203a" : "\u2039"
                label: qsTr("Previous page")
                enabled: bar.pages.page > 0
                onClicked: bar.pages.goTo(bar.pages.page - 1)
            }
            Text {
                objectName: "pageText"
                // As wide as the text of the last page.
                Layout.preferredWidth: widest.advanceWidth + 2
                text: qsTr("Page %1 of %2").arg(bar.pages.page + 1).arg(bar.pages.count)
                textFormat: Text.PlainText
                color: Theme.text
                font.pixelSize: Theme.bodyText
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.StaticText
                Accessible.name: text

                TextMetrics {
                    id: widest
                    font.pixelSize: Theme.bodyText
                    text: qsTr("Page %1 of %2").arg(bar.pages.count).arg(bar.pages.count)
                }
            }
            BarButton {
                objectName: "nextButton"
                isSign: true
                text: Theme.mirrored ? "\u2039" : "\u203a"
                label: qsTr("Next page")
                enabled: bar.pages.page < bar.pages.count - 1
                onClicked: bar.pages.goTo(bar.pages.page + 1)
            }
            BarButton {
                objectName: "zoomOutButton"
                isSign: true
                text: "\u2212"
                label: qsTr("Smaller")
                enabled: bar.pages.canZoomOut
                onClicked: bar.pages.zoomOut()
            }
            Text {
                objectName: "zoomText"
                Layout.preferredWidth: Theme.mm(12)
                text: qsTr("%1 %").arg(Math.round(bar.pages.zoom * 100))
                textFormat: Text.PlainText
                color: Theme.text
                font.pixelSize: Theme.bodyText
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.StaticText
                Accessible.name: qsTr("Zoom %1").arg(text)
            }
            BarButton {
                objectName: "zoomInButton"
                isSign: true
                text: "+"
                label: qsTr("Larger")
                enabled: bar.pages.canZoomIn
                onClicked: bar.pages.zoomIn()
            }
            BarButton {
                objectName: "fitWidthButton"
                text: qsTr("Width")
                label: qsTr("Fit the width")
                checked: bar.pages.fit === PageList.FitWidth
                onClicked: bar.pages.fitTo(PageList.FitWidth)
            }
            BarButton {
                objectName: "fitPageButton"
                text: qsTr("Page")
                label: qsTr("Fit the page")
                checked: bar.pages.fit === PageList.FitPage
                onClicked: bar.pages.fitTo(PageList.FitPage)
            }
        }
        BarButton {
            objectName: "closeButton"
            isSign: true
            text: "\u00d7"
            label: qsTr("Close")
            onClicked: bar.closeWanted()
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.line
        color: Theme.border
    }
}
