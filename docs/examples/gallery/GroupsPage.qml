import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0

// The groups of the gallery.
KitPage {
    id: page

    readonly property var groups: [
        { file: "ButtonsPage.qml", icon: "run", title: qsTr("Buttons and texts"), note: qsTr("Buttons, icons, cards and the sizes of texts") },
        { file: "ListsPage.qml", icon: "results", title: qsTr("Lists"), note: qsTr("Rows, sections and what stands there when a list is empty") },
        { file: "EntriesPage.qml", icon: "edit", title: qsTr("Entries"), note: qsTr("The entry for every kind of item") },
        { file: "NumbersPage.qml", icon: "settings", title: qsTr("Choices and numbers"), note: qsTr("Segments, steppers and sliders that keep an item's limits") },
        { file: "DatesPage.qml", icon: "calendar", title: qsTr("Date and time"), note: qsTr("Typed as the locale writes them, or picked") },
        { file: "StatusPage.qml", icon: "bell", title: qsTr("Status and messages"), note: qsTr("Verdicts, progress, problems and services that are away") },
        { file: "ChangesPage.qml", icon: "sync", title: qsTr("Changes that wait"), note: qsTr("What is applied together, each change with what became of it") },
        { file: "PagesPage.qml", icon: "files", title: qsTr("Pages"), note: qsTr("The stack of pages, tabs and the line at the top") }
    ]

    title: qsTr("Components")

    GridLayout {
        Layout.fillWidth: true
        columns: 2
        columnSpacing: ControlsStyle.touchGap
        rowSpacing: ControlsStyle.touchGap

        Repeater {
            model: page.groups

            Tile {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                iconName: modelData.icon
                title: modelData.title
                note: modelData.note
                onClicked: page.stack.push(Qt.resolvedUrl(modelData.file))
            }
        }
    }
}
