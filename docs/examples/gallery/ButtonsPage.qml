import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

KitPage {
    title: qsTr("Buttons and texts")
    actions: [
        IconButton { iconName: "camera"; name: qsTr("Take a screenshot") },
        TouchButton { iconName: "run"; text: qsTr("Start"); filled: true }
    ]

    GridLayout {
        Layout.fillWidth: true
        columns: width > ControlsStyle.mm(120) ? 2 : 1
        columnSpacing: ControlsStyle.margin
        rowSpacing: ControlsStyle.margin

        Card {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.fillHeight: true
            title: qsTr("Buttons")

            Flow {
                Layout.fillWidth: true
                spacing: ControlsStyle.touchGap

                TouchButton { text: qsTr("Save"); iconName: "save"; filled: true }
                TouchButton { text: qsTr("Preview"); iconName: "preview" }
                TouchButton { text: qsTr("Cancel"); quiet: true }
                TouchButton { text: qsTr("Delete"); iconName: "delete"; danger: true }
                TouchButton { text: qsTr("Overwrite"); filled: true; danger: true }
                TouchButton { text: qsTr("Not now"); enabled: false }
                TouchButton { text: qsTr("Not now"); filled: true; enabled: false }
                TouchButton { width: ControlsStyle.mm(44); text: qsTr("A long text takes a second line"); iconName: "sync" }
            }
        }
        Card {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.fillHeight: true
            title: qsTr("Texts")

            TitleText { Layout.fillWidth: true; wrapMode: Text.Wrap; text: qsTr("The title of a page") }
            HeadingText { Layout.fillWidth: true; text: qsTr("The heading of a card") }
            BodyText { Layout.fillWidth: true; text: qsTr("A text that people read, which wraps where the line ends.") }
            BodyText { Layout.fillWidth: true; muted: true; text: qsTr("A text of less importance.") }
            LabelText {
                readonly property bool mayElide: true
                Layout.fillWidth: true
                text: qsTr("A label, which ends in an ellipsis where there is no room for it")
            }
            FigureText { Layout.fillWidth: true; text: "-12.47 dBm" }
        }
        Card {
            Layout.fillWidth: true
            Layout.columnSpan: parent.columns
            title: qsTr("Icons")

            Flow {
                Layout.fillWidth: true
                spacing: ControlsStyle.margin

                Repeater {
                    model: ["add", "back", "battery", "bell", "calendar", "camera", "check", "clock", "close", "copy", "delete", "down", "drawer", "edit",
                        "eject", "fail", "favourite", "favourite-off", "files", "filter", "forward", "hide", "home", "information", "jobs", "keyboard", "keypad",
                        "language", "link", "more", "open", "pass", "people", "plot", "preview", "remove", "report", "results", "run", "save", "search", "settings", "sort",
                        "stop", "sync", "theme", "up", "usb", "user", "warning"]

                    Column {
                        width: ControlsStyle.mm(19)
                        spacing: ControlsStyle.gap / 2

                        Icon { anchors.horizontalCenter: parent.horizontalCenter; name: modelData }
                        LabelText { width: parent.width; text: modelData; horizontalAlignment: Text.AlignHCenter }
                    }
                }
            }
        }
    }
}
