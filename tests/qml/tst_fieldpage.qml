import QtQuick 2.15
import QtTest 1.15
import UiUtils 1.0

// A test case is never visible, so the page lies beside it.
Item {
    id: root

    width: 400
    height: 400

    Component {
        id: pageComponent
        FieldPage {}
    }
    SignalSpy {
        id: changes
        signalName: "valueChanged"
    }
    TestCase {
        name: "FieldPage"
        when: windowShown

        property var page: null

        function init() {
            driver.reset()
            page = createTemporaryObject(pageComponent, root)
            verify(page)
        }

        function type(field, text) {
            field.forceActiveFocus()
            field.selectAll()
            for (let i = 0; i < text.length; ++i)
                keyClick(text[i])
            keyClick(Qt.Key_Return)
        }

        function test_showsWhatTheServicePublishes() {
            compare(page.lossText.text, "3.22 dB")
            compare(page.lossText.color, "#008000")
            compare(field_res_loss.unitString, "dB")
            compare(field_cfg_name.rangeDescription, "2 - 16 chars")
            compare(field_cfg_range.rangeDescription, "0.5 km - 260.0 km")
            compare(field_cfg_range.inputType, KivData.INPUT_FLOAT)
            compare(field_cfg_name.regex, ".{2,16}")
            compare(field_cfg_mode.enums.Manual, 2)
            compare(page.modeBox.displayText, "Automatic")
            driver.report(":result:field:loss:", 7)
            compare(page.lossText.text, "7.00 dB")
            driver.setReady(":result:field:loss:", false)
            compare(page.lossText.enabled, false)
        }

        function test_platformObjectsAreProperties() {
            compare(page.client, field_cfg_mode.client)
            compare(page.formatter.format(1.5), "1.50 dB")
            compare(page.formatter.getUnitString(), "dB")
            compare(field_cfg_mode.formatter, null)
        }

        function test_editsWithTheValidator() {
            type(page.nameField, "Trunk 12")
            compare(driver.value(":config:field:setup:name:"), "Trunk 12")
            type(page.nameField, "x")
            compare(driver.value(":config:field:setup:name:"), "Trunk 12")
            compare(field_cfg_name.validator.validate("", 0), ForgivingValidator.Intermediate)
            compare(field_cfg_name.validator.validate("x", 1), ForgivingValidator.Intermediate)
            compare(field_cfg_name.validator.validate("xy", 2), ForgivingValidator.Acceptable)
            field_cfg_mode.value = field_cfg_mode.enums.Manual
            type(page.rangeField, "300.5")
            compare(driver.value(":config:field:setup:range:"), 20)
            type(page.rangeField, "30.5")
            compare(driver.value(":config:field:setup:range:"), 30.5)
        }

        function test_hidesWhatDoesNotApply() {
            verify(!page.rangeRow.visible)
            field_cfg_mode.value = 2
            verify(page.rangeRow.visible)
            driver.report(":config:field:setup:mode:", 1)
            verify(!page.rangeRow.visible)
        }

        function test_changesFiveItemsAsOneTransaction() {
            services.field.startChanges()
            field_cfg_name.value = "Five"
            field_cfg_mode.value = 2
            field_cfg_range.value = 12.5
            field_cfg_level_1.value = 7
            field_cfg_on.value = true
            compare(driver.value(":config:field:setup:name:"), "Fiber 7")
            compare(page.nameField.text, "Five")
            changes.target = field_cfg_level_1
            changes.clear()
            services.field.applyChanges()
            compare(driver.value(":config:field:setup:name:"), "Five")
            compare(driver.value(":config:field:setup:mode:"), 2)
            compare(driver.value(":config:field:setup:range:"), 12.5)
            compare(driver.value(":config:field:setup:level_1:"), 7)
            compare(driver.value(":config:field:setup:on:"), true)
            compare(changes.count, 1)
        }

        function test_showsWhyAWriteWasRefused() {
            field_cfg_locked.value = 2
            compare(page.lastError, "locked: The key is turned.")
            compare(field_cfg_locked.value, 1)
            field_cfg_mode.value = 9
            compare(field_cfg_mode.error, "Invalid enum value 9")
            driver.reportError("The lamp is out.")
            compare(page.lastError, "The lamp is out.")
        }

        function test_bindsTablesAndRecords() {
            compare(page.events.count, 2)
            compare(page.events.itemAt(1).text, "Connector at 9.8")
            driver.report(":result:field:events:", [{ "position": 1, "kind": "End" }])
            compare(page.events.count, 1)
            compare(page.events.itemAt(0).text, "End at 1")
            compare(field_cfg_limits.value.low, 1)
            field_cfg_limits.value.low = 1.5
            compare(field_cfg_limits.value.low, 1.5)
            compare(driver.value(":config:field:limits:").low, 1.5)
        }

        function test_arraysAndActions() {
            compare(field_cfg_hosts.valueCount, 2)
            field_cfg_hosts.setAt(1, "gamma")
            compare(driver.value(":config:field:setup:hosts:stringARRAY:")[1], "gamma")
            field_cfg_hosts.arraySelection = 1
            compare(field_cfg_hosts.arraySelectionString, "gamma")
            field_cfg_hosts.arraySelection = 0
            compare(field_act_start.invokeWithStringArg("now"), "Started now.")
            compare(field_res_loss.value, 4.5)
        }

        function test_oddValuesFromQml_data() {
            return [undefined, null, NaN, Infinity, {}, [], [1, "x"], "", "a".repeat(100000), page, new Date(NaN)]
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
