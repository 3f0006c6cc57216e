import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// How entries behave for a user while their service changes by itself.
Item {
    id: root

    width: 500
    height: 600

    Component {
        id: pairComponent
        Column {
            property alias first: first
            property alias second: second
            ItemEntry { id: first; width: 400; item: entry_cfg_name }
            ItemEntry { id: second; width: 400; item: entry_cfg_level }
        }
    }
    Component {
        id: aloneComponent
        NumberEntry { label: "Alone"; minimum: 1; maximum: 9; value: 4; unit: "m" }
    }
    Component {
        id: textComponent
        TextEntry {}
    }
    Component {
        id: listComponent
        // The item is complete only after its entry.
        Column {
            property alias names: names
            UiData { id: names; value: "a,b"; type: "std::vector<string>" }
            Repeater {
                model: [names]
                ItemEntry { width: 400; item: modelData }
            }
        }
    }
    Component {
        id: choicesComponent
        EnumUiData {
            value: 1
            uiEnumList: UiDataEnums {
                UiEnumType { label: "One"; value: 1 }
                UiEnumType { label: "Two"; value: 2; applicable: false }
                UiEnumType { label: "Three"; value: 3; applicable: false }
            }
        }
    }

    EntryTestCase {
        name: "Entries"

        function test_componentsOfItems_data() {
            return [["name", "TextEntry", entry_cfg_name], ["code", "TextEntry", entry_cfg_code], ["level", "NumberEntry", entry_cfg_level], ["mask", "HexEntry", entry_cfg_mask], ["on", "SwitchEntry", entry_cfg_on],
                    ["mode", "ChoiceEntry", entry_cfg_mode], ["hosts", "ListEntry", entry_cfg_hosts], ["stages", "ListEntry", entry_cfg_stages]]
                    .map(row => ({ tag: row[0], item: row[2], kind: row[1] }))
        }
        function test_componentsOfItems(row) {
            const entry = make(entryComponent, { item: row.item })
            verify(String(entry.entry).startsWith(row.kind), String(entry.entry))
            compare(entry.entry.label, row.item.label)
            verify(entry.implicitHeight >= ControlsStyle.touch)
            compare(entry.entry.readOnly, false)
        }

        function test_readOnlyIsPlainText_data() {
            return [{ tag: "result", item: entry_res_loss, text: "3.22 dB" }, { tag: "record", item: entry_cfg_limits, text: entry_cfg_limits.valueString }]
        }
        function test_readOnlyIsPlainText(row) {
            const entry = make(entryComponent, { item: row.item })
            verify(!fieldOf(entry).visible)
            compare(entry.entry.plainText, row.text)
        }

        function test_qualitiesInWords() {
            compare([0, 16, 32, 64, 48].map(code => ControlsStyle.qualityWord(code)), ["", "Pass", "Warning", "Fail", ""])
        }

        function test_commits_data() {
            return [{ tag: "Enter", leave: () => keyClick(Qt.Key_Return) }, { tag: "Tab", leave: () => keyClick(Qt.Key_Tab) },
                    { tag: "click elsewhere", leave: pair => mouseClick(fieldOf(pair.second)) }]
        }
        function test_commits(row) {
            const pair = make(pairComponent)
            type(pair.first, "Trunk 12")
            compare(driver.value(":config:entry:name:"), "Fiber 7")
            row.leave(pair)
            compare(driver.value(":config:entry:name:"), "Trunk 12")
            type(pair.first, "x")
            row.leave(pair)
            compare(driver.value(":config:entry:name:"), "Trunk 12")
            compare(fieldOf(pair.first).text, "x")
            verify(pair.first.entry.isInvalid)
            compare(pair.first.entry.note, "At least 2 characters; this text has 1")
        }

        // A form in a popup closes with Escape when there is nothing to revert.
        function test_escapeIsLeftToThePageWithoutAnEdit() {
            const escapes = createTemporaryQmlObject("import QtQuick 2.15; Item { property int count; Keys.onEscapePressed: ++count }", root)
            const entry = entryComponent.createObject(escapes, { width: 400, item: entry_cfg_level })
            type(entry, "7")
            keyClick(Qt.Key_Escape)
            compare(escapes.count, 0)
            keyClick(Qt.Key_Escape)
            compare(escapes.count, 1)
        }

        function test_limitsOfTheService() {
            const level = make(entryComponent, { item: entry_cfg_level })
            enter(level, "100.5")
            compare(level.entry.note, "0.0 dB - 100.0 dB")
            const open = make(entryComponent, { item: entry_cfg_open })
            enter(open, "-123456.75")
            compare(driver.value(":config:entry:open:"), -123456.75)
            const code = make(entryComponent, { item: entry_cfg_code })
            enter(code, "ab1")
            compare(driver.value(":config:entry:code:"), "AB1")
            enter(code, "XY9")
            compare(driver.value(":config:entry:code:"), "XY9")
        }

        function test_typingIsNotOverwritten() {
            const entry = make(entryComponent, { item: entry_cfg_name })
            driver.report(":config:entry:name:", "Reported")
            compare(fieldOf(entry).text, "Reported")
            type(entry, "Mine")
            driver.report(":config:entry:name:", "Theirs")
            compare(fieldOf(entry).text, "Mine")
            verify(entry.entry.news.includes("Theirs"), entry.entry.news)
            keyClick(Qt.Key_Escape)
            compare(fieldOf(entry).text, "Theirs")
            compare(entry.entry.news, "")
            type(entry, "Mine")
            driver.report(":config:entry:name:", "Others")
            keyClick(Qt.Key_Return)
            compare(driver.value(":config:entry:name:"), "Mine")
            compare(entry.entry.news, "")
        }

        function test_refusedWriteKeepsTheText() {
            const entry = make(entryComponent, { item: entry_cfg_locked })
            enter(entry, "7")
            compare(fieldOf(entry).text, "7")
            compare(entry.entry.note, "The key is turned.")
            verify(entry.entry.isInvalid)
            keyClick(Qt.Key_Escape)
            compare(fieldOf(entry).text, "1")
            compare(entry.entry.note, "")
        }

        // In a transaction the service answers only to the batch.
        function test_refusalOfABatchIsShown() {
            const entry = make(entryComponent, { item: entry_cfg_locked })
            services.entry.startChanges()
            enter(entry, "7")
            compare(entry.entry.note, "")
            services.entry.applyChanges()
            verify(entry.entry.note.includes("The key is turned."), entry.entry.note)
            compare(fieldOf(entry).text, "7")
            services.entry.startChanges()
            services.entry.revertChanges()
        }

        function test_switch_data() {
            return [{ tag: "click", press: control => mouseClick(control) }, { tag: "tap", press: control => tap(control) },
                    { tag: "space", press: () => keyClick(Qt.Key_Space) }, { tag: "Enter", press: () => keyClick(Qt.Key_Return) }]
        }
        function test_switch(row) {
            const entry = make(entryComponent, { item: entry_cfg_on })
            const control = findChild(entry, "switch")
            control.forceActiveFocus()
            row.press(control)
            compare(driver.value(":config:entry:on:"), true)
            driver.report(":config:entry:on:", false)
            verify(!control.checked)
            compare(control.Accessible.description, "Off")

            const jammed = make(entryComponent, { item: entry_cfg_jammed })
            const stuck = findChild(jammed, "switch")
            stuck.forceActiveFocus()
            row.press(stuck)
            verify(stuck.checked)
            compare(jammed.entry.note, "The switch is jammed.")
        }

        function test_choices() {
            const entry = make(entryComponent, { item: entry_cfg_mode })
            const box = findChild(entry, "box")
            compare(box.Accessible.description, "Automatic")
            compare(box.count, 2)
            tap(box)
            tryVerify(() => box.popup.opened)
            const row = box.popup.contentItem.itemAtIndex(1)
            compare(row.text, "By hand")
            tap(row)
            compare(driver.value(":config:entry:mode:"), 2)
            tryVerify(() => !box.popup.visible)
            box.forceActiveFocus()
            keyClick(Qt.Key_Up)
            compare(driver.value(":config:entry:mode:"), 1)
            // Set by others and not offered, but still the present value.
            driver.report(":config:entry:mode:", 5)
            compare(box.displayText, "Remote")
            compare(box.count, 2)
            keyClick(Qt.Key_Down)
            compare(box.displayText, "Automatic")
            driver.setReachable(false, "entry")
            compare(box.displayText, "Automatic")
            compare(box.count, 2)
            driver.setReachable(true, "entry")
            compare(box.displayText, "Automatic")
        }

        function test_choicesComeAndGo() {
            const item = createTemporaryObject(choicesComponent, root)
            const entry = make(entryComponent, { item: item })
            const box = findChild(entry, "box")
            compare(box.count, 1)
            item.uiEnumList.at(1).applicable = true
            compare(box.count, 2)
            box.forceActiveFocus()
            keyClick(Qt.Key_Down)
            compare(item.value, 2)
            compare(box.displayText, "Two")
            // The position among more choices is the same.
            item.uiEnumList.at(2).applicable = true
            compare(box.currentIndex, 1)

            const fixed = findChild(make(entryComponent, { item: entry_cfg_fixed }), "box")
            fixed.forceActiveFocus()
            keyClick(Qt.Key_Down)
            compare(fixed.currentIndex, 0)
            compare(fixed.displayText, "One")
        }

        function test_hiddenWithoutMeaning() {
            const entry = make(entryComponent, { item: entry_cfg_far })
            verify(!entry.visible)
            driver.report(":config:entry:mode:", 2)
            verify(entry.visible)
            mouseClick(findChild(entry, "padButton"))
            const pad = padOf(entry)
            driver.report(":config:entry:mode:", 1)
            verify(!entry.visible)
            tryVerify(() => !pad.visible)
        }

        function test_padOfFingersAndKeys() {
            const entry = make(entryComponent, { item: entry_cfg_count })
            tap(fieldOf(entry))
            const pad = padOf(entry)
            compare(pad.text, "3")
            tapKeys(pad, ["1", "1", "OK"])
            verify(pad.opened)
            verify(pad.problem !== "")
            compare(driver.value(":config:entry:count:"), 3)
            keyClick(Qt.Key_Backspace)
            tapKeys(pad, ["OK"])
            compare(driver.value(":config:entry:count:"), 1)
            tryVerify(() => !pad.visible)

            mouseClick(findChild(entry, "padButton"))
            padOf(entry)
            keyClick("5")
            keyClick("-")
            keyClick(Qt.Key_Return)
            compare(driver.value(":config:entry:count:"), -5)
            tryVerify(() => !pad.visible)

            mouseClick(findChild(entry, "padButton"))
            padOf(entry)
            // From OK over the hidden point to the 0, then up to the 2.
            keyClick(Qt.Key_Left)
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Space)
            compare(pad.text, "2")
            keyClick(Qt.Key_Escape)
            tryVerify(() => !pad.visible)
            compare(driver.value(":config:entry:count:"), -5)
            compare(fieldOf(entry).text, "-5")
            verify(fieldOf(entry).activeFocus)
        }

        function test_listOfTheService() {
            const entry = make(entryComponent, { item: entry_cfg_hosts })
            const rows = findChild(entry, "rows")
            const hosts = () => driver.value(":config:entry:hosts:stringARRAY:").map(String)
            tryCompare(rows, "count", 2)
            enter(rows.itemAtIndex(1), "gamma")
            compare(hosts(), ["alpha", "gamma"])
            compare(entry_cfg_hosts.arraySelection, 1)
            keyClick(Qt.Key_Up)
            verify(rows.itemAtIndex(0).activeFocus)
            enter(rows.itemAtIndex(0), "much too long")
            compare(hosts(), ["alpha", "gamma"])
            compare(fieldOf(rows.itemAtIndex(0)).text, "much too long")
            verify(findChild(rows.itemAtIndex(0), "invalidMark").visible)
            keyClick(Qt.Key_Escape)
            type(findChild(entry, "adder"), "delta")
            mouseClick(findChild(entry, "addButton"))
            compare(hosts(), ["alpha", "gamma", "delta"])
            compare(fieldOf(findChild(entry, "adder")).text, "")
            tryCompare(rows, "count", 3)
            waitForRendering(rows)
            type(rows.itemAtIndex(2), "not taken yet")
            mouseClick(findChild(rows.itemAtIndex(0), "removeButton"))
            compare(hosts(), ["gamma", "delta"])
            tryVerify(() => fieldOf(rows.itemAtIndex(0)).text === "gamma")
            compare(fieldOf(rows.itemAtIndex(1)).text, "not taken yet")
            fieldOf(rows.itemAtIndex(1)).forceActiveFocus()
            keyClick(Qt.Key_Escape)
            driver.setReachable(false, "entry")
            compare(rows.count, 2)
            driver.setReachable(true, "entry")
            driver.report(":config:entry:hosts:stringARRAY:", ["one"])
            compare(rows.count, 1)
            compare(fieldOf(rows.itemAtIndex(0)).text, "one")
        }

        function test_localList() {
            const item = createTemporaryObject(itemComponent, root, { type: "std::vector<double>", maxRange: 10 })
            item.value = [1.5, 2]
            const entry = make(entryComponent, { item: item })
            const rows = findChild(entry, "rows")
            tryCompare(rows, "count", 2)
            enter(findChild(entry, "adder"), "11")
            compare(item.value, "1.5,2")
            enter(findChild(entry, "adder"), "3.25")
            compare(item.value, "1.5,2,3.25")
            waitForRendering(rows)
            mouseClick(findChild(rows.itemAtIndex(1), "removeButton"))
            compare(item.value, "1.5,3.25")
            const list = make(listComponent)
            tryCompare(findChild(list, "rows"), "count", 2)
            enter(findChild(list, "adder"), "c,d")
            compare(list.names.value, "a,b")
        }

        function test_serviceGoesWhileEditing() {
            const entry = make(entryComponent, { item: entry_cfg_name })
            type(entry, "Halfway")
            driver.setReachable(false, "entry")
            compare(entry.entry.note, "Not ready")
            verify(!fieldOf(entry).enabled)
            verify(String(entry.entry).startsWith("TextEntry"))
            compare(entry.entry.label, "Name")
            driver.setReachable(true, "entry")
            compare(fieldOf(entry).text, "Halfway")
            verify(fieldOf(entry).activeFocus)
            compare(driver.value(":config:entry:name:"), "Fiber 7")
            keyClick(Qt.Key_Return)
            compare(driver.value(":config:entry:name:"), "Halfway")
            // The name is looked up again when the service returns.
            const named = createTemporaryQmlObject("import UiUtils.Controls 1.0; TextEntry { item: entry_cfg_name }", root)
            type(named, "Typed")
            driver.setReachable(false, "entry")
            driver.setReachable(true, "entry")
            compare(fieldOf(named).text, "Typed")
        }

        function test_leavingByForceCommitsNothing() {
            const list = make(entryComponent, { item: entry_cfg_hosts })
            const rows = findChild(list, "rows")
            tryCompare(rows, "count", 2)
            type(rows.itemAtIndex(0), "typed")
            driver.setReachable(false, "entry")
            driver.setReachable(true, "entry")
            compare(driver.value(":config:entry:hosts:stringARRAY:")[0], "alpha")
            compare(list.entry.note, "1 - 8 chars")
            compare(fieldOf(rows.itemAtIndex(0)).text, "typed")

            driver.report(":config:entry:mode:", 2)
            const far = make(entryComponent, { item: entry_cfg_far })
            type(far, "70")
            driver.report(":config:entry:mode:", 1)
            verify(!fieldOf(far).activeFocus)
            compare(driver.value(":config:entry:far:"), 7)
            driver.report(":config:entry:mode:", 2)
            compare(fieldOf(far).text, "70")

            const item = createTemporaryObject(itemComponent, root, { type: "std::string", value: "before" })
            const local = make(entryComponent, { item: item })
            type(local, "after")
            item.isReady = false
            compare(item.value, "before")
        }

        function test_madeWhileTheServiceIsAway() {
            driver.setReachable(false, "entry")
            const entry = make(entryComponent, { item: entry_cfg_count })
            driver.setReachable(true, "entry")
            compare(entry.entry.label, "Count")
            enter(entry, "6")
            compare(driver.value(":config:entry:count:"), 6)
        }

        function test_itemsThatComeAndGo() {
            const entry = make(entryComponent, { item: null })
            verify(!entry.visible)
            entry.item = undefined
            entry.item = entry_cfg_name
            type(entry, "For the name")
            entry.item = entry_cfg_code
            compare(fieldOf(entry).text, "AB1")
            keyClick(Qt.Key_Return)
            compare(driver.value(":config:entry:name:"), "Fiber 7")
            compare(driver.value(":config:entry:code:"), "AB1")
            for (const item of [entry_cfg_stages, entry_cfg_mode, entry_res_loss, entry_cfg_on, entry_cfg_level])
                entry.item = item
            compare(fieldOf(entry).text, "20.5")

            const item = itemComponent.createObject(root, { type: "std::string", value: "brief" })
            entry.item = item
            const alone = make(textComponent, { item: item })
            type(alone, "longer")
            item.destroy()
            tryVerify(() => !entry.visible)
            compare(alone.note, "Not available")
            verify(!fieldOf(alone).enabled)
            entry.item = entry_cfg_name
            compare(fieldOf(entry).text, "Fiber 7")
        }

        function test_formIsComplete() {
            const site = createTemporaryObject(itemComponent, root, { type: "std::string", value: "", mandatory: true })
            const entry = make(entryComponent, { item: site })
            verify(!site.valueOk)
            verify(!UiDataContainer.allItemsOk)
            type(entry, "N")
            verify(UiDataContainer.allItemsOk)
            keyClick(Qt.Key_Escape)
            verify(!UiDataContainer.allItemsOk)
            enter(entry, "North")
            compare(site.value, "North")
            verify(UiDataContainer.allItemsOk)
            // The next field may be worse.
            const street = createTemporaryObject(itemComponent, root, { type: "std::string", value: "", mandatory: true })
            entry.item = street
            tryCompare(street, "valueOk", false)
            const town = createTemporaryObject(itemComponent, root, { type: "std::string", value: "", mandatory: true })
            entry.item = town
            tryCompare(town, "valueOk", false)
            verify(site.valueOk)
        }

        function test_withoutAnItem() {
            const entry = make(aloneComponent)
            compare(fieldOf(entry).text, "4")
            enter(entry, "12")
            compare(entry.value, 4)
            compare(entry.note, "1 - 9 m")
            enter(entry, "8")
            compare(entry.value, 8)
            entry.value = 2
            compare(fieldOf(entry).text, "2")
            // However long the unit is, there is space for the value.
            verify(fieldOf(make(aloneComponent, { unit: "m".repeat(100) })).width > 150)
        }

        function test_textWithoutAnItem() {
            const entry = make(textComponent, { minimum: 3, value: "abc" })
            enter(entry, "ab")
            compare(entry.value, "abc")
            compare(entry.note, "At least 3 characters; this text has 2")
            entry.mandatory = true
            enter(entry, "")
            compare(entry.value, "abc")
            enter(entry, "abcd")
            compare(entry.value, "abcd")
        }

        function test_password() {
            const item = createTemporaryObject(itemComponent, root, { type: "std::string", value: "open sesame", inputType: KivData.INPUT_PASSWORD })
            const entry = make(entryComponent, { item: item })
            const field = fieldOf(entry)
            // An on-screen keyboard neither shows nor learns it.
            const secret = Qt.ImhHiddenText | Qt.ImhSensitiveData | Qt.ImhNoPredictiveText
            compare(field.inputMethodHints & secret, secret)
            compare(field.displayText.includes("sesame"), false)
            mouseClick(findChild(entry, "revealButton"))
            compare(field.displayText, "open sesame")
            mouseClick(findChild(entry, "revealButton"))
            compare(field.displayText.includes("sesame"), false)
            type(entry, "other")
            item.value = "third"
            verify(!entry.entry.news.includes("third"))
            keyClick(Qt.Key_Escape)
            item.readOnly = true
            verify(!entry.entry.plainText.includes("third"))
        }
    }
}
