import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils 1.0

// A page as its writer would make it: items by name, nothing else known of the services.
Column {
    id: page

    property string lastError
    property KIVClientInterface client: field_res_loss.client
    property BaseFormatter formatter: field_res_loss.formatter
    property alias nameField: nameField
    property alias rangeRow: rangeRow
    property alias rangeField: rangeField
    property alias lossText: lossText
    property alias modeBox: modeBox
    property alias events: events

    width: 400

    TextField {
        id: nameField
        text: field_cfg_name.value
        validator: field_cfg_name.validator
        onAccepted: field_cfg_name.value = text
    }
    Text { text: field_cfg_name.rangeDescription }
    Row {
        id: rangeRow
        visible: field_cfg_range.applicable

        Text { text: field_cfg_range.label + " (" + field_cfg_range.unitString + ")" }
        TextField {
            id: rangeField
            text: field_cfg_range.valueStringNoUnits
            validator: field_cfg_range.validator
            onAccepted: field_cfg_range.value = text
        }
    }
    ComboBox {
        id: modeBox
        model: field_cfg_mode.enumCount
        currentIndex: field_cfg_mode.enumIndex(field_cfg_mode.value)
        displayText: field_cfg_mode.enumLabelForValue(field_cfg_mode.value)
        onActivated: field_cfg_mode.value = field_cfg_mode.enumValue(index)
    }
    Text {
        id: lossText
        text: field_res_loss.valueString
        color: field_res_loss.qualityCode === Status.Pass ? "green" : "gray"
        enabled: field_res_loss.isReady
    }
    Repeater {
        id: events
        model: field_res_events.value
        delegate: Text {
            required property real position
            required property string kind
            text: kind + " at " + position
        }
    }
    Connections {
        target: field_cfg_locked
        function onErrorChanged(id, error) { page.lastError = id + ": " + error }
    }
    KIVSignal {
        service: "field"
        onSignalKIVError: page.lastError = error
    }
}
