import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// The unit: how it looks, speaks and sounds, where it saves, what it is made of.
KitPage {
    id: page

    property Session session

    title: qsTr("Settings")
    service: "unit"
    actions: TouchButton {
        objectName: "cameraButton"
        iconName: "camera"
        text: qsTr("Screenshot")
        onClicked: page.session.shotWanted()
    }

    GridLayout {
        Layout.fillWidth: true
        columns: 2
        columnSpacing: ControlsStyle.margin
        rowSpacing: ControlsStyle.gap

        Section {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.alignment: Qt.AlignTop
            title: qsTr("Screen")

            SegmentedChoice {
                objectName: "themeChoice"
                Layout.fillWidth: true
                item: typeof unit_cfg_theme === "undefined" ? null : unit_cfg_theme
            }
            ListRow {
                objectName: "languageRow"
                Layout.fillWidth: true
                iconName: "language"
                title: qsTr("Language")
                value: Languages.name
                chevron: true
                onClicked: page.session.pageWanted("language")
            }
            SwitchEntry {
                objectName: "soundEntry"
                Layout.fillWidth: true
                item: typeof unit_cfg_sound === "undefined" ? null : unit_cfg_sound
            }
        }
        Section {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.alignment: Qt.AlignTop
            title: qsTr("Files")

            ChoiceEntry {
                Layout.fillWidth: true
                item: typeof basemgr_cfg_saveLocation === "undefined" ? null : basemgr_cfg_saveLocation
            }
        }
    }
    Section {
        Layout.fillWidth: true
        title: qsTr("More")

        ListRow {
            objectName: "peopleRow"
            Layout.fillWidth: true
            iconName: "user"
            title: qsTr("User")
            value: page.session.user
            chevron: true
            onClicked: page.session.pageWanted("people")
        }
        ListRow {
            objectName: "galleryRow"
            Layout.fillWidth: true
            iconName: "information"
            title: qsTr("Gallery of the kit")
            subtitle: qsTr("Everything that pages are made of")
            chevron: true
            onClicked: page.session.pageWanted("gallery")
        }
    }
    Section {
        Layout.fillWidth: true
        title: qsTr("Unit")
        visible: services.basemgr !== undefined

        Repeater {
            model: services.basemgr === undefined ? 0 : basemgr_res_names.valueCount

            ListRow {
                Layout.fillWidth: true
                title: basemgr_res_names.at(index)
                value: basemgr_res_versions.at(index) || ""
            }
        }
    }
}
