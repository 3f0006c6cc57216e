import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// The states of the instrument, a page, and the ways to the pages. Pages are made when they are first shown.
FocusScope {
    id: instrument

    required property LoopbackMeasurement measurement
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

    signal shotWanted

    // Shows the page of that name, and returns it. Tabs take the place of what is shown; all others come upon it.
    function open(name) {
        const tab = tabs.indexOf(name)
        if (tab < 0)
            return stack.push(files[name], name === "gallery" ? {} : { session: session })
        navigation.currentIndex = tab
        return stack.open(files[name], { session: session })
    }

    focus: true
    Component.onCompleted: open("home")

    Session {
        id: session
        measurement: instrument.measurement
        onPageWanted: instrument.open(name)
        onShotWanted: instrument.shotWanted()
    }
    InstrumentBar {
        id: bar
        anchors { left: parent.left; right: parent.right; top: parent.top }
        session: session
    }
    PageStack {
        id: stack
        anchors { left: parent.left; right: parent.right; top: bar.bottom; bottom: navigation.top }
        focus: true
        folder: Qt.resolvedUrl(".")
        Component.onCompleted: instrument.pageNames.forEach(name => keep(instrument.files[name]))
    }
    TouchTabs {
        id: navigation
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        objectName: "navigation"
        navigation: true
        model: [
            { name: "home", icon: "home", text: qsTr("Home") },
            { name: "setup", icon: "settings", text: qsTr("Set-up"), marked: session.setup.waiting > 0 },
            { name: "run", icon: "run", text: qsTr("Run") },
            { name: "results", icon: "results", text: qsTr("Results") },
            { name: "report", icon: "report", text: qsTr("Report"), marked: session.hasResults && !session.isSaved },
            { name: "files", icon: "files", text: qsTr("Files") }
        ]
        onChosen: instrument.open(instrument.tabs[index])
    }

    Repeater {
        model: instrument.tabs
        Item {
            Shortcut { sequence: "Ctrl+" + (index + 1); onActivated: instrument.open(modelData) }
        }
    }
    Shortcut {
        // Pictures include dialogs.
        context: Qt.ApplicationShortcut
        enabled: !instrument.report.saving
        sequences: ["Print", "Ctrl+P"]
        autoRepeat: false
        onActivated: session.shotWanted()
    }
}
