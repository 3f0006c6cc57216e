import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// The window. Its first frame has the places of bars and page; what stands there is made as soon as the frame is on the
// screen.
T.ApplicationWindow {
    id: window

    required property LoopbackMeasurement measurement
    // The window with the services and their items; null where there is no desk.
    property QtObject inspector: null
    // Everything that is shown; null before complete().
    readonly property Item instrument: content.item
    readonly property bool isComplete: instrument !== null
    readonly property var pageNames: isComplete ? instrument.pageNames : []
    readonly property QtObject report: isComplete ? instrument.report : null
    readonly property QtObject camera: isComplete ? instrument.camera : null
    property bool closesOnceSaved: false

    // Shows the page of that name, and returns it.
    function open(name) {
        complete()
        return instrument.open(name)
    }

    function showPage(index) {
        complete()
        return open(instrument.tabs[index])
    }

    // Makes what the first frame did not show.
    function complete() {
        if (!isComplete)
            content.setSource("Instrument.qml", { measurement: measurement })
    }

    // What comes over the pages is not needed to see them, neither its objects nor its files.
    function addOverlays() {
        overlays.setSource("Overlays.qml", { session: instrument.session, inspector: inspector })
    }

    // Errors that happened meanwhile are read first.
    function closeOnceSaved() {
        closesOnceSaved = false
        if (Notifications.currentDialog === null)
            window.close()
    }

    width: 1024
    height: 600
    visible: true
    title: qsTr("TCP loopback test")
    color: ControlsStyle.background
    LayoutMirroring.enabled: ControlsStyle.mirrored
    LayoutMirroring.childrenInherit: true
    // The page of a running save must stay.
    onClosing: {
        closesOnceSaved = isComplete && report.saving
        close.accepted = !closesOnceSaved
    }

    Binding {
        target: ControlsStyle
        property: "theme"
        value: ControlsStyle.themes[typeof unit_cfg_theme === "undefined" ? 0 : unit_cfg_theme.value] || "light"
    }
    Connections {
        target: window
        enabled: overlays.status === Loader.Null
        function onFrameSwapped() {
            Qt.callLater(window.isComplete ? window.addOverlays : window.complete)
        }
    }
    Connections {
        target: window.report
        function onSavingChanged() {
            // The save is still running.
            if (window.closesOnceSaved && !window.report.saving)
                Qt.callLater(window.closeOnceSaved)
        }
    }

    // The bars as they are seen before they have anything to show.
    Rectangle {
        objectName: "statusPlace"
        width: parent.width
        height: ControlsStyle.touch
        color: ControlsStyle.divider

        Rectangle {
            width: parent.width
            height: parent.height - ControlsStyle.line
            color: ControlsStyle.card
        }
    }
    Rectangle {
        objectName: "navigationPlace"
        anchors.bottom: parent.bottom
        width: parent.width
        height: ControlsStyle.mm(11)
        color: ControlsStyle.divider

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: parent.height - ControlsStyle.line
            color: ControlsStyle.card
        }
    }
    Shortcut {
        enabled: window.inspector !== null
        sequence: "F12"
        autoRepeat: false
        onActivated: window.inspector.toggle()
    }
    Loader {
        id: content
        anchors.fill: parent
        focus: true
    }
    Connections {
        target: window.instrument
        function onShotWanted() { window.camera.shoot(window) }
    }
    Loader { id: overlays }
}
