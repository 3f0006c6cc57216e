import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// The components of UiUtils.Controls, in groups:
//     uiutils-qml docs/examples/gallery/Gallery.qml --screen 800x480@133
Rectangle {
    id: gallery

    width: 1024
    height: 600
    color: ControlsStyle.background
    LayoutMirroring.enabled: ControlsStyle.mirrored
    LayoutMirroring.childrenInherit: true

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        StatusBar {
            Layout.fillWidth: true
            title: qsTr("Gallery")
            items: [
                StatusItem { iconName: "battery"; name: qsTr("Battery"); text: "82 %" },
                StatusItem {
                    objectName: "languageItem"
                    iconName: "language"
                    name: qsTr("Language")
                    text: Languages.name
                    onClicked: {
                        const codes = Languages.available.map(language => language.code)
                        Languages.current = codes[(codes.indexOf(Languages.current) + 1) % codes.length]
                    }
                },
                StatusItem {
                    objectName: "themeItem"
                    iconName: "theme"
                    name: qsTr("Theme")
                    text: ({ light: qsTr("light"), dark: qsTr("dark"), sunlight: qsTr("sunlight") })[ControlsStyle.theme]
                    onClicked: {
                        const themes = ControlsStyle.themes
                        ControlsStyle.theme = themes[(themes.indexOf(ControlsStyle.theme) + 1) % themes.length]
                    }
                }
            ]
        }
        PageStack {
            objectName: "stack"
            Layout.fillWidth: true
            Layout.fillHeight: true
            focus: true
            initialPage: Qt.resolvedUrl("GroupsPage.qml")
        }
    }
}
