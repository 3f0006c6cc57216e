import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// Entries whose items lose their meaning, are replaced, or block a form.
Item {
    id: root

    width: 500
    height: 500

    Component {
        id: textComponent
        UiData { type: "std::string"; value: "ok"; maxRange: 5 }
    }
    Component {
        id: numberComponent
        UiData { type: "int"; value: 1; minRange: 0; maxRange: 50; inputType: KivData.INPUT_INT }
    }
    Component {
        id: flagComponent
        BoolUiData { value: false }
    }
    Component {
        id: listComponent
        UiData { type: "std::vector<string>"; value: "one,two" }
    }
    Component {
        id: choiceComponent
        EnumUiData {
            value: 1
            uiEnumList: UiDataEnums {
                UiEnumType { label: "a"; value: 1 }
                UiEnumType { label: "b"; value: 2 }
            }
        }
    }

    EntryTestCase {
        name: "Meaning"

        function made(component) {
            return createTemporaryObject(component, root)
        }

        function test_hiddenEditorsWriteNothing_data() {
            return [{ tag: "not applicable", property: "applicable", value: false },
                    { tag: "read-only", property: "readOnly", value: true }]
        }
        function test_hiddenEditorsWriteNothing(row) {
            const flag = made(flagComponent)
            const entry = make(entryComponent, { item: flag })
            findChild(entry, "switch").forceActiveFocus()
            flag[row.property] = row.value
            keyClick(Qt.Key_Space)
            compare(flag.value, false)

            const list = made(listComponent)
            const lines = make(entryComponent, { item: list })
            type(findChild(lines, "adder"), "three")
            list[row.property] = row.value
            keyClick(Qt.Key_Return)
            compare(list.value, "one,two")
        }

        function test_thePadIsOfOneItem() {
            const first = made(numberComponent)
            const second = made(numberComponent)
            const entry = make(entryComponent, { item: first })
            tap(findChild(entry, "padButton"))
            tapKeys(padOf(entry), ["4", "2"])
            entry.item = second
            keyClick(Qt.Key_Return)
            compare([first.value, second.value], [1, 1])
        }

        function test_aFormIsJudgedByWhatIsLeft() {
            const needed = made(textComponent)
            needed.mandatory = true
            const entry = make(entryComponent, { item: needed })
            tryCompare(UiDataContainer, "allItemsOk", true)
            type(entry, "far too long")
            compare(UiDataContainer.allItemsOk, false)
            needed.mandatory = false
            compare(UiDataContainer.allItemsOk, true)
            needed.mandatory = true
            compare(UiDataContainer.allItemsOk, false)
            needed.applicable = false
            compare(UiDataContainer.allItemsOk, true)
            needed.applicable = true
            compare(UiDataContainer.allItemsOk, false)
            // The text is removed with the entry; the item's own value is acceptable.
            entry.destroy()
            tryCompare(UiDataContainer, "allItemsOk", true)
        }

        function test_theKeyThatOpensChoicesDoesNotCloseThem() {
            const choice = made(choiceComponent)
            const entry = make(entryComponent, { item: choice })
            const box = findChild(entry, "box")
            box.forceActiveFocus()
            keyClick(Qt.Key_Return)
            tryCompare(box.popup, "opened", true)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            tryCompare(choice, "value", 2)
        }
    }
}
