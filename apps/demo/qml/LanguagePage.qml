import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// The language of the unit. It changes at once.
KitPage {
    id: page

    property Session session

    title: qsTr("Language")
    subtitle: Languages.remark
    scrolls: false

    ListArea {
        objectName: "languageList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        name: page.title
        model: Languages.available
        delegate: ListRow {
            objectName: "language " + modelData.code
            iconName: selected ? "check" : "language"
            title: modelData.name
            selected: modelData.code === Languages.current
            onClicked: unit_cfg_language.value = modelData.code
        }
    }
}
