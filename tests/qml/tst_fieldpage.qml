import QtQuick 2.15
import QtQuick.Controls 2.15
import QtTest 1.15
import UiUtils 1.0

// A page as its author would write it: items by name, nothing else known of the services.
Item {
    id: root

    property string lastError

    width: 400
    height: 400

    Column {
        width: 400

        TextField {
            id: nameField
            text: field_cfg_name.value
            validator: field_cfg_name.validator
            onAccepted: field_cfg_name.value = text
        }
        Text {
            id: rangeText
            visible: field_cfg_range.applicable
            text: field_cfg_range.label + " (" + field_cfg_range.unitString + "): " + field_cfg_range.rangeDescription
        }
        ComboBox {
            id: modeBox
            model: field_cfg_mode.enumCount
            displayText: field_cfg_mode.enumLabelForValue(field_cfg_mode.value)
        }
        Text {
            id: lossText
            text: field_res_loss.valueString
            color: field_res_loss.qualityCode === 16 ? "green" : "gray"
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
    }
    Connections {
        target: field_cfg_locked
        function onErrorChanged(id, error) { root.lastError = id + ": " + error }
    }
    KIVSignal {
        service: "field"
        onSignalKIVError: root.lastError = error
    }
    SignalSpy {
        id: changes
        target: field_cfg_level_1
        signalName: "valueChanged"
    }
    TestCase {
        name: "FieldPage"
        when: windowShown

        function init() {
            driver.reset()
        }

        function type(text) {
            nameField.forceActiveFocus()
            nameField.selectAll()
            for (let i = 0; i < text.length; ++i)
                keyClick(text[i])
            keyClick(Qt.Key_Return)
        }

        function test_showsWhatTheServicePublishes() {
            compare([lossText.text, "" + lossText.color, modeBox.displayText], ["3.22 dB", "#008000", "Automatic"])
            compare([rangeText.visible, rangeText.text], [false, "Range (km): 0.5 km - 260.0 km"])
            compare([events.count, events.itemAt(1).text], [2, "Connector at 9.8"])
            compare(field_res_loss.formatter.format(1.5), "1.50 dB")
            driver.report(":result:field:loss:", 7)
            driver.setReady(":result:field:loss:", false)
            driver.report(":config:field:setup:mode:", 2)
            driver.report(":result:field:events:", [{ "position": 1, "kind": "End" }])
            compare([lossText.text, lossText.enabled, rangeText.visible], ["7.00 dB", false, true])
            compare([events.count, events.itemAt(0).text], [1, "End at 1"])
            driver.reportError("The lamp is out.")
            compare(lastError, "The lamp is out.")
        }

        function test_writesWhatTheUserEnters() {
            type("Trunk 12")
            compare(driver.value(":config:field:setup:name:"), "Trunk 12")
            type("x")
            compare(driver.value(":config:field:setup:name:"), "Trunk 12")
            field_cfg_locked.value = 2
            compare(lastError, "locked: The key is turned.")
            field_cfg_limits.value.low = 1.5
            compare(driver.value(":config:field:limits:").low, 1.5)
            field_cfg_hosts.setAt(1, "gamma")
            compare(driver.value(":config:field:setup:hosts:stringARRAY:")[1], "gamma")
            compare(field_act_start.invokeWithStringArg("now"), "Started now.")
        }

        function test_changesItemsAsOneTransaction() {
            services.field.startChanges()
            field_cfg_name.value = "Five"
            field_cfg_mode.value = field_cfg_mode.enums.Manual
            field_cfg_level_1.value = 7
            compare(driver.value(":config:field:setup:name:"), "Fiber 7")
            compare(nameField.text, "Five")
            changes.clear()
            services.field.applyChanges()
            compare(["name", "mode", "level_1"].map(name => driver.value(":config:field:setup:" + name + ":")), ["Five", 2, 7])
            compare(changes.count, 1)
        }

        function test_oddValuesFromQml_data() {
            return [undefined, null, NaN, Infinity, {}, [], [1, "x"], "", "a".repeat(100000), root, new Date(NaN)]
                    .map((value, i) => ({ tag: i + "", value: value }))
        }
        function test_oddValuesFromQml(row) {
            for (const item of [field_cfg_name, field_cfg_mode, field_cfg_range, field_cfg_level_1, field_cfg_on, field_cfg_hosts,
                                field_cfg_limits, field_res_loss, field_act_start]) {
                item.value = row.value
                verify(item.valueString !== undefined)
            }
            compare(typeof driver.value(":config:field:setup:level_1:"), "number")
            verify(isFinite(driver.value(":config:field:setup:range:")))
            field_cfg_hosts.setAt(0, row.value)
            field_cfg_limits.value.low = row.value
            verify(isFinite(driver.value(":config:field:limits:").low))
        }
    }
}
