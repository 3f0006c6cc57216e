import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

ApplicationWindow {
    id: window

    required property LoopbackMeasurement measurement
    // The page shown: 0 Measure, 1 Results, 2 Report, 3 Settings, 4 Entries.
    property alias page: navigation.currentIndex

    readonly property alias report: reportPage.report
    readonly property alias camera: camera

    property bool closesOnceSaved: false

    // Saves the report of the last run, as its page does; false when that asks the user a question or reports an error.
    function saveReport() {
        return reportPage.save()
    }

    // What a user does on the settings page: enters a text for the setting with that id, and returns the previous text;
    // applies all entries, and returns the reason when that failed.
    function enterSetting(id, text) {
        return settingsPage.enter(id, text)
    }
    function applySettings() {
        return settingsPage.apply()
    }

    // Errors that happened meanwhile are read first.
    function closeOnceSaved() {
        closesOnceSaved = false
        if (Notifications.currentDialog === null)
            window.close()
    }

    // The page of a running save must stay.
    onClosing: {
        close.accepted = !report.saving
        closesOnceSaved = report.saving
    }

    width: 1024
    height: 600
    minimumWidth: 880
    minimumHeight: 540
    visible: true
    title: qsTr("TCP loopback test")
    background: Rectangle { color: Theme.background }

    header: Rectangle {
        implicitHeight: 56
        color: Theme.card

        RowLayout {
            anchors { fill: parent; leftMargin: Theme.margin; rightMargin: Theme.margin }
            spacing: Theme.margin

            Image {
                // As wide as the right side, so that the title is centred.
                Layout.preferredWidth: 150 + Theme.touch + Theme.margin
                Layout.preferredHeight: 40
                horizontalAlignment: Image.AlignLeft
                source: "qrc:/uiutils/images/Norda_Color-medium.png"
                fillMode: Image.PreserveAspectFit
                mipmap: true
                Accessible.ignored: true
            }
            Text {
                Layout.fillWidth: true
                text: window.title
                textFormat: Text.PlainText
                color: Theme.text
                font.pixelSize: Theme.headingText
                horizontalAlignment: Text.AlignHCenter
            }
            Item {
                Layout.preferredWidth: 150
                Layout.preferredHeight: 40

                StatusBadge {
                    anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                    status: window.measurement.status
                    word: window.measurement.roundTrip.statusText(status)
                    pixelSize: Theme.headingText
                }
            }
            CameraButton {
                objectName: "cameraButton"
                enabled: cameraShortcut.enabled
                onClicked: camera.shoot(window)
            }
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.border
        }
    }

    StackLayout {
        anchors.fill: parent
        currentIndex: navigation.currentIndex

        MeasurePage {
            focus: true
            measurement: window.measurement
        }
        ResultsPage {
            measurement: window.measurement
        }
        ReportPage {
            id: reportPage
            measurement: window.measurement
        }
        SettingsPage {
            id: settingsPage
            measurement: window.measurement
        }
        Loader {
            readonly property bool isWanted: navigation.currentIndex === 4

            // Its many entries are created when the page is first shown, and stay.
            active: false
            onIsWantedChanged: active = true
            sourceComponent: services.optical ? galleryPage : noGallery
        }
    }

    ScreenCamera { id: camera }
    NotificationDialog {}
    SaveProgress { report: window.report }
    Connections {
        target: window.report
        function onSavingChanged() {
            // The save is still running.
            if (window.closesOnceSaved && !window.report.saving)
                Qt.callLater(window.closeOnceSaved)
        }
    }

    footer: TabBar {
        id: navigation
        spacing: 0

        NavigationTab { text: qsTr("Measure") }
        NavigationTab { text: qsTr("Results") }
        NavigationTab { text: qsTr("Report") }
        NavigationTab {
            text: qsTr("Settings")
            marked: settingsPage.changed > 0
        }
        NavigationTab { text: qsTr("Entries") }
    }

    Shortcut { sequence: "Ctrl+1"; onActivated: navigation.currentIndex = 0 }
    Shortcut { sequence: "Ctrl+2"; onActivated: navigation.currentIndex = 1 }
    Shortcut { sequence: "Ctrl+3"; onActivated: navigation.currentIndex = 2 }
    Shortcut { sequence: "Ctrl+4"; onActivated: navigation.currentIndex = 3 }
    Shortcut { sequence: "Ctrl+5"; onActivated: navigation.currentIndex = 4 }

    Shortcut {
        id: cameraShortcut
        // Pictures include dialogs.
        context: Qt.ApplicationShortcut
        enabled: !window.report.saving
        sequences: ["Print", "Ctrl+P"]
        autoRepeat: false
        onActivated: camera.shoot(window)
    }

    Component {
        id: galleryPage
        GalleryPage {}
    }
    Component {
        id: noGallery
        EmptyNote { text: qsTr("This page shows the items of the service \"optical\", which is not published.") }
    }
}
