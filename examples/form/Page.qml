import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// What a technician enters on site. No service publishes these items: they belong to the page.
Window {
    // Only a complete form is stored.
    function save() {
        return UiDataContainer.allItemsOk && formValues.save()
    }

    width: 480
    height: 560
    visible: true
    title: qsTr("Site visit")

    UiData {
        id: site
        type: "std::string"
        registerId: "site"
        label: qsTr("Site")
        minRange: 1
        maxRange: 40
        mandatory: true
        persistent: true
    }
    UiData {
        id: attenuation
        type: "double"
        registerId: "attenuation"
        label: qsTr("Attenuation (dB)")
        value: 0
        minRange: 0
        maxRange: 40
        precision: 2
        inputType: KivData.INPUT_POSITIVE_FLOAT
        mandatory: true
        persistent: true
    }
    EnumUiData {
        id: connector
        registerId: "connector"
        label: qsTr("Connector")
        value: 1
        persistent: true
        uiEnumList: UiDataEnums {
            UiEnumType { name: "Straight"; label: qsTr("Straight"); value: 1 }
            UiEnumType { name: "Angled"; label: qsTr("Angled"); value: 2 }
            UiEnumType { name: "Other"; label: qsTr("Other"); value: 3 }
        }
    }
    // Mandatory only while it has a meaning.
    UiData {
        id: otherConnector
        type: "std::string"
        registerId: "otherConnector"
        label: qsTr("Which connector?")
        minRange: 1
        maxRange: 20
        mandatory: true
        persistent: true
        applicable: connector.value === connector.enums.Other
    }

    Rectangle {
        anchors.fill: parent
        color: ControlsStyle.background
    }
    Column {
        x: 40
        y: 20
        width: 400
        spacing: 14

        Repeater {
            model: [site, attenuation, connector, otherConnector]
            ItemEntry {
                width: parent.width
                item: modelData
            }
        }
        Button {
            id: button
            text: qsTr("Save")
            enabled: UiDataContainer.allItemsOk
            onClicked: save()
            contentItem: Text {
                text: button.text
                textFormat: Text.PlainText
                color: ControlsStyle.primaryText
                font.pixelSize: ControlsStyle.bodyText
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
            background: Rectangle {
                implicitWidth: 160
                implicitHeight: ControlsStyle.touch
                radius: ControlsStyle.radius
                color: button.enabled ? ControlsStyle.primary : ControlsStyle.border
            }
        }
    }
    Picture { }
    Component.onCompleted: {
        if (Qt.application.arguments.includes("--save"))
            Qt.callLater(() => Qt.exit(save() ? 0 : 1))
    }
}
