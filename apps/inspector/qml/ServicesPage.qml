import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0
import UiUtils.Inspector 1.0

// The services: what is pending in them, and what can happen to them in the field.
ScrollArea {
    id: page

    required property Inspector inspector

    objectName: "inspectorServices"
    padding: ControlsStyle.margin

    Repeater {
        model: page.inspector.services

        ServiceCard {
            required property var modelData
            Layout.fillWidth: true
            service: modelData
        }
    }
    EmptyState {
        Layout.fillWidth: true
        visible: page.inspector.services.length === 0
        title: qsTr("No services yet")
        text: qsTr("They are shown when they come.")
    }
}
