import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import UiUtils.Viewer 1.0

ApplicationWindow {
    id: window

    required property ViewerDocument document
    required property int dotsPerInch
    // Without a frame, and over the full screen.
    property bool isFullScreen: false

    readonly property bool isReady: document.state === ViewerDocument.Ready

    width: 1024
    height: 600
    minimumWidth: 720
    minimumHeight: 400
    visible: true
    visibility: isFullScreen ? Window.FullScreen : Window.AutomaticVisibility
    flags: isFullScreen ? Qt.Window | Qt.FramelessWindowHint : Qt.Window
    background: Rectangle { color: Theme.desk }
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true

    header: ViewerBar {
        title: window.title
        pages: pages
        onCloseWanted: window.close()
    }

    Rectangle {
        id: repaired
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: visible ? repairedText.implicitHeight + 2 * Theme.gap : 0
        visible: window.isReady && window.document.isRepaired
        color: Theme.notice

        Text {
            id: repairedText
            anchors { fill: parent; leftMargin: Theme.margin; rightMargin: Theme.margin }
            text: qsTr("The file is damaged. What could be read of it is shown; something may be missing.")
            textFormat: Text.PlainText
            color: Theme.text
            font.pixelSize: Theme.bodyText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            verticalAlignment: Text.AlignVCenter
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
    }
    PageList {
        id: pages
        objectName: "pages"
        anchors { left: parent.left; right: parent.right; top: repaired.bottom; bottom: parent.bottom }
        // A page looks the same in every language.
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true
        focus: true
        document: window.document
        dotsPerInch: window.dotsPerInch
    }
    PinchItem {
        property real zoom: 1

        anchors.fill: pages
        onStarted: zoom = pages.zoom
        onPinched: pages.zoomAround(zoom * factor, center.x, center.y)
    }
    Text {
        anchors.centerIn: parent
        visible: window.document.state === ViewerDocument.Loading
        text: qsTr("Opening the file …")
        textFormat: Text.PlainText
        color: Theme.mutedText
        font.pixelSize: Theme.headingText
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    ProblemNote {
        objectName: "problem"
        anchors.centerIn: parent
        visible: window.document.state === ViewerDocument.Failed
        document: window.document
    }

    Shortcut { sequences: ["PgDown", "Space"]; enabled: window.isReady; onActivated: pages.scroll(0, 0.9) }
    Shortcut { sequences: ["PgUp", "Shift+Space"]; enabled: window.isReady; onActivated: pages.scroll(0, -0.9) }
    Shortcut { sequence: "Down"; enabled: window.isReady; onActivated: pages.scroll(0, 0.1) }
    Shortcut { sequence: "Up"; enabled: window.isReady; onActivated: pages.scroll(0, -0.1) }
    Shortcut { sequence: "Right"; enabled: window.isReady; onActivated: pages.scroll(0.1, 0) }
    Shortcut { sequence: "Left"; enabled: window.isReady; onActivated: pages.scroll(-0.1, 0) }
    Shortcut { sequence: "Ctrl+PgDown"; enabled: window.isReady; onActivated: pages.goTo(pages.page + 1) }
    Shortcut { sequence: "Ctrl+PgUp"; enabled: window.isReady; onActivated: pages.goTo(pages.page - 1) }
    Shortcut { sequence: "Home"; enabled: window.isReady; onActivated: pages.goTo(0) }
    Shortcut { sequence: "End"; enabled: window.isReady; onActivated: pages.goTo(pages.count - 1) }
    Shortcut { sequences: ["+", "=", "Ctrl++", "Ctrl+="]; enabled: window.isReady; onActivated: pages.zoomIn() }
    Shortcut { sequences: ["-", "Ctrl+-"]; enabled: window.isReady; onActivated: pages.zoomOut() }
    Shortcut { sequence: "W"; enabled: window.isReady; onActivated: pages.fitTo(PageList.FitWidth) }
    Shortcut { sequence: "P"; enabled: window.isReady; onActivated: pages.fitTo(PageList.FitPage) }
    Shortcut { sequences: ["Esc", "Ctrl+W", "Ctrl+Q"]; onActivated: window.close() }
}
