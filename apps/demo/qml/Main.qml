import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// The instrument: its states above, a page, the ways to the pages below. Pages are made when they are first shown.
T.ApplicationWindow {
    id: window

    required property LoopbackMeasurement measurement
    // The window with the services and their items; null where there is no desk.
    property QtObject inspector: null
    readonly property var tabs: ["home", "setup", "run", "results", "report", "files"]
    readonly property var files: ({ home: "HomePage.qml", setup: "SetupPage.qml", run: "RunPage.qml", results: "ResultsPage.qml",
                                    report: "ReportPage.qml", files: "FilesPage.qml", jobs: "JobsPage.qml", people: "PeoplePage.qml",
                                    settings: "SettingsPage.qml", language: "LanguagePage.qml", notifications: "NotificationsPage.qml", review: "ReviewPage.qml",
                                    gallery: "GroupsPage.qml" })
    readonly property var pageNames: Object.keys(files)
    readonly property alias session: session
    readonly property alias report: session.report
    readonly property alias camera: session.camera
    readonly property alias stack: stack
    property bool isDrawn: false
    property bool closesOnceSaved: false

    // Shows the page of that name, and returns it. Tabs take the place of what is shown; all others come upon it.
    function open(name) {
        const tab = tabs.indexOf(name)
        if (tab < 0)
            return stack.push(files[name], name === "gallery" ? {} : { session: session })
        navigation.currentIndex = tab
        return stack.open(files[name], { session: session })
    }

    function showPage(index) {
        return open(tabs[index])
    }

    // What the first picture does not need, neither its objects nor its files.
    function complete() {
        overlays.setSource("Overlays.qml", { session: session, inspector: inspector })
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
        close.accepted = !report.saving
        closesOnceSaved = report.saving
    }
    Component.onCompleted: open("home")

    Session {
        id: session
        measurement: window.measurement
        onPageWanted: window.open(name)
        onShotWanted: camera.shoot(window)
    }
    Binding {
        target: ControlsStyle
        property: "theme"
        value: ControlsStyle.themes[typeof unit_cfg_theme === "undefined" ? 0 : unit_cfg_theme.value] || "light"
    }
    Connections {
        target: window
        enabled: !window.isDrawn
        function onFrameSwapped() {
            window.isDrawn = true
            Qt.callLater(window.complete)
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

    header: InstrumentBar { session: session }
    PageStack {
        id: stack
        anchors.fill: parent
        focus: true
        folder: Qt.resolvedUrl(".")
        Component.onCompleted: window.pageNames.forEach(name => keep(window.files[name]))
    }
    footer: TouchTabs {
        id: navigation
        objectName: "navigation"
        navigation: true
        model: [
            { name: "home", icon: "home", text: qsTr("Home") },
            { name: "setup", icon: "settings", text: qsTr("Set-up"), marked: session.setup.pending.length > 0 },
            { name: "run", icon: "run", text: qsTr("Run") },
            { name: "results", icon: "results", text: qsTr("Results") },
            { name: "report", icon: "report", text: qsTr("Report"), marked: session.hasResults && !session.isSaved },
            { name: "files", icon: "files", text: qsTr("Files") }
        ]
        onChosen: window.showPage(index)
    }

    Loader { id: overlays }

    Repeater {
        model: window.tabs
        Item {
            Shortcut { sequence: "Ctrl+" + (index + 1); onActivated: window.showPage(index) }
        }
    }
    Shortcut {
        enabled: window.inspector !== null
        sequence: "F12"
        autoRepeat: false
        onActivated: window.inspector.toggle()
    }
    Shortcut {
        // Pictures include dialogs.
        context: Qt.ApplicationShortcut
        enabled: !window.report.saving
        sequences: ["Print", "Ctrl+P"]
        autoRepeat: false
        onActivated: session.shotWanted()
    }
}
