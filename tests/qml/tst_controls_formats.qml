import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// What each kind of entry accepts, what it writes, and what it says about the rest.
Item {
    id: root

    width: 500
    height: 600

    EntryTestCase {
        name: "EntryFormats"

        // The rows are in tests/data/inputs/formats.txt.
        function test_formats_data() {
            return driver.inputFormats().map((line, i) => {
                const [type, attributes, text, value, reason] = JSON.parse(line)
                const is = Object.assign({ type: type }, attributes, "inputType" in attributes ? { inputType: KivData[attributes.inputType] } : {})
                return { tag: i + " " + line.slice(0, 60), is: is, text: text, value: value, reason: reason }
            })
        }
        function test_formats(row) {
            const before = row.is.type === "std::string" ? "before" : 1
            const item = createTemporaryObject(itemComponent, root, Object.assign({ label: "Item", value: before }, row.is))
            const entry = make(entryComponent, { item: item })
            const field = fieldOf(entry)
            const isTaken = row.value !== null
            field.forceActiveFocus()
            field.selectAll()
            if (row.text.length > 60) {
                field.insert(0, row.text)
                field.remove(row.text.length, field.length)
                entry.entry.takeTyping()
            } else {
                type(entry, row.text)
            }
            compare(item.valueOk, isTaken)
            compare(item.value, before)
            keyClick(Qt.Key_Return)
            compare(item.value, isTaken ? row.value : before)
            compare(entry.entry.isInvalid, !isTaken)
            if (!isTaken) {
                compare(field.text, row.text)
                verify(entry.entry.note !== "")
                verify(entry.entry.note.includes(row.reason), entry.entry.note)
            }
        }

        // With a decimal comma a point is not a decimal separator, and the item still gets plain numbers.
        function test_commaCountry() {
            driver.setLocale("de_DE")
            const item = createTemporaryObject(itemComponent, root, { type: "double", value: 1234.5, minRange: 0.5, maxRange: 5000.5 })
            const entry = make(entryComponent, { item: item })
            compare(fieldOf(entry).text, "1234,5")
            compare(entry.entry.note, "0,5 - 5000,5")
            enter(entry, "2,75")
            compare(item.value, 2.75)
            enter(entry, "1.5")
            compare(item.value, 2.75)
            compare(entry.entry.note, "Use \",\" as the decimal separator")
            keyClick(Qt.Key_Escape)
            compare(fieldOf(entry).text, "2,75")
            mouseClick(findChild(entry, "padButton"))
            const pad = padOf(entry)
            tapKeys(pad, ["3", ",", "2", "OK"])
            compare(item.value, 3.2)
            compare(fieldOf(entry).text, "3,2")
        }
    }
}
