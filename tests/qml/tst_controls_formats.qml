import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// What each kind of entry takes, what it hands on, and what it says about the rest.
Item {
    id: root

    width: 500
    height: 600

    Component {
        id: itemComponent
        UiData {}
    }
    Component {
        id: entryComponent
        ItemEntry {}
    }

    EntryTestCase {
        name: "EntryFormats"

        function test_formats_data() {
            const ofText = (inputType, text, value, reason, more) => Object.assign(
                { tag: inputType + " \"" + text.slice(0, 40) + "\"", text: text, value: value, reason: reason || "",
                  is: { type: "std::string", inputType: inputType } }, more)
            const ofNumber = (type, text, value, reason, is) => ({
                tag: type + " \"" + text + "\" " + JSON.stringify(is || {}), text: text, value: value, reason: reason || "",
                is: Object.assign({ type: type }, is) })
            const parts = "Each part is a number from 0 to 255"
            const groups = "Up to eight groups"
            const pairs = "Six pairs"
            const scheme = "Scheme and host"
            const signs = "A file name has none of"
            const clock = "Hours, minutes and seconds"
            return [
                ofText(KivData.INPUT_IPV4, "192.0.2.1", "192.0.2.1"),
                ofText(KivData.INPUT_IPV4, "255.255.255.255", "255.255.255.255"),
                ofText(KivData.INPUT_IPV4, "256.0.0.1", undefined, parts),
                ofText(KivData.INPUT_IPV4, "1.2.3.x", undefined, parts),
                ofText(KivData.INPUT_IPV4, "1.2..4", undefined, parts),
                ofText(KivData.INPUT_IPV4, "1.2.3", undefined, "Four numbers"),
                ofText(KivData.INPUT_IPV4, "10.0.0.010", undefined, "No part begins with a 0"),
                ofText(KivData.INPUT_IPV6, "::", "::"),
                ofText(KivData.INPUT_IPV6, "fe80::1%eth0", "fe80::1%eth0"),
                ofText(KivData.INPUT_IPV6, "1:2:3:4:5:6:7:8", "1:2:3:4:5:6:7:8"),
                ofText(KivData.INPUT_IPV6, "::ffff:192.0.2.1", "::ffff:192.0.2.1"),
                ofText(KivData.INPUT_IPV6, "1:2:3:4:5:6:192.0.2.1", "1:2:3:4:5:6:192.0.2.1"),
                ofText(KivData.INPUT_IPV6, "1:2:3:4:5:6:7:192.0.2.1", undefined, groups),
                ofText(KivData.INPUT_IPV6, "::ffff:192.0.2.256", undefined, parts),
                ofText(KivData.INPUT_IPV6, "192.0.2.1::", undefined, "Each group"),
                ofText(KivData.INPUT_IPV6, "1:2:3:4:5:6:7", undefined, groups),
                ofText(KivData.INPUT_IPV6, "1:2:3:4:5:6:7:8:9", undefined, groups),
                ofText(KivData.INPUT_IPV6, "1::2:3:4:5:6:7:8", undefined, groups),
                ofText(KivData.INPUT_IPV6, "1::2::3", undefined, "stands only once"),
                ofText(KivData.INPUT_IPV6, ":1::2", undefined, groups),
                ofText(KivData.INPUT_IPV6, "1::2:", undefined, groups),
                ofText(KivData.INPUT_IPV6, "12345::", undefined, "Each group"),
                ofText(KivData.INPUT_IP, "192.0.2.1", "192.0.2.1"),
                ofText(KivData.INPUT_IP, "2001:db8::1", "2001:db8::1"),
                ofText(KivData.INPUT_IP, "300.0.2.1", undefined, parts),
                ofText(KivData.INPUT_MAC, "00:1a:2b:3c:4d:5e", "00:1A:2B:3C:4D:5E"),
                ofText(KivData.INPUT_MAC, "00-1a-2b-3c-4d-5e", "00:1A:2B:3C:4D:5E"),
                ofText(KivData.INPUT_MAC, "001A2B3C4D5E", "00:1A:2B:3C:4D:5E"),
                ofText(KivData.INPUT_MAC, "00:1A-2B:3C:4D:5E", undefined, pairs),
                ofText(KivData.INPUT_MAC, "00:1A:2B:3C:4D:5G", undefined, pairs),
                ofText(KivData.INPUT_URL, "https://a.example:8443/x?y#z", "https://a.example:8443/x?y#z"),
                ofText(KivData.INPUT_URL, "ftp://user@[2001:db8::1]/in", "ftp://user@[2001:db8::1]/in"),
                ofText(KivData.INPUT_URL, "a.example/x", undefined, scheme),
                ofText(KivData.INPUT_URL, "http:///path", undefined, scheme),
                ofText(KivData.INPUT_URL, "http://a b", undefined, "no blanks"),
                ofText(KivData.INPUT_FILENAME, "report 17.html", "report 17.html"),
                ofText(KivData.INPUT_FILENAME, ".hidden", ".hidden"),
                ofText(KivData.INPUT_FILENAME, "a/b", undefined, signs),
                ofText(KivData.INPUT_FILENAME, "a\\b", undefined, signs),
                ofText(KivData.INPUT_FILENAME, "..", undefined, "ends with no blank or point"),
                ofText(KivData.INPUT_FILENAME, "name ", undefined, "ends with no blank or point"),
                ofText(KivData.INPUT_FILENAME, "\u00e4".repeat(127), "\u00e4".repeat(127)),
                ofText(KivData.INPUT_FILENAME, "\u00e4".repeat(128), undefined, "too long"),
                ofText(KivData.INPUT_PHONE_NUMBER, "+1 (555) 0100", "+1 (555) 0100"),
                ofText(KivData.INPUT_PHONE_NUMBER, "*100#", "*100#"),
                ofText(KivData.INPUT_PHONE_NUMBER, "1+2", undefined, "Digits"),
                ofText(KivData.INPUT_PHONE_NUMBER, "()", undefined, "Digits"),
                ofText(KivData.INPUT_DIGITS, "0417", "0417"),
                ofText(KivData.INPUT_DIGITS, "4 17", undefined, "Only digits"),
                ofText(KivData.INPUT_ALPHANUMERIC, "", ""),
                ofNumber("std::string", "", undefined, "must be filled in", { mandatory: true }),
                ofNumber("std::string", "abc", undefined, "4 - 6 chars", { inputType: KivData.INPUT_PASSWORD, minRange: 4, maxRange: 6 }),
                ofNumber("std::string", "a b", undefined, "not in the form", { inputType: KivData.INPUT_ALPHANUMERIC, regex: "[a-z]+", minRange: 1, maxRange: 9 }),
                ofNumber("std::string", "abc", undefined, "may have 2 characters, it has 3", { regex: "^[\\w\\]-]{1,2}$" }),
                ofNumber("int", "12", undefined, "0 - 9", { inputType: KivData.INPUT_DIGITS, maxRange: 9 }),
                ofNumber("int", "007", 7, "", { inputType: KivData.INPUT_DIGITS }),
                ofNumber("std::string", "A1", "A1", "", { regex: "[A-Z][0-9]" }),
                ofNumber("std::string", "1A", undefined, "not in the form", { regex: "[A-Z][0-9]" }),
                ofNumber("uint", "ff", 255, "", { inputType: KivData.INPUT_HEX }),
                ofNumber("uint", "0xBEEF", 48879, "", { inputType: KivData.INPUT_HEX }),
                ofNumber("uint", "100", undefined, "0 - FF", { inputType: KivData.INPUT_HEX, minRange: 0, maxRange: 255 }),
                ofNumber("uint", "100000000", undefined, "0 - FFFFFFFF", { inputType: KivData.INPUT_HEX }),
                ofNumber("uint", "G", undefined, "A - F", { inputType: KivData.INPUT_HEX }),
                ofNumber("uint", "0x", undefined, "", { inputType: KivData.INPUT_HEX, refused: true }),
                ofText(KivData.INPUT_HEX, "00ff", "00ff"),
                ofNumber("int", "755", 493, "", { inputType: KivData.INPUT_OCTAL }),
                ofNumber("int", "1101", 13, "", { inputType: KivData.INPUT_BINARY }),
                ofNumber("int", "2", undefined, "0 - 1", { inputType: KivData.INPUT_BINARY }),
                ofNumber("int", "1:02:03", 3723, "", { inputType: KivData.INPUT_DURATIO }),
                ofNumber("int", "90", 90, "", { inputType: KivData.INPUT_DURATIO }),
                ofNumber("int", "2:5", 125, "", { inputType: KivData.INPUT_DURATIO }),
                ofNumber("int", "1:60", undefined, clock, { inputType: KivData.INPUT_DURATIO }),
                ofNumber("int", "1:61:00", undefined, clock, { inputType: KivData.INPUT_DURATIO }),
                ofNumber("int", ":30", undefined, clock, { inputType: KivData.INPUT_DURATIO }),
                ofNumber("int", "0:03:01", undefined, "0:00:01 - 0:03:00", { inputType: KivData.INPUT_DURATIO, minRange: 1, maxRange: 180 }),
                ofNumber("double", "-1.5e3", -1500),
                ofNumber("double", ".5", 0.5),
                ofNumber("double", "1e999", undefined, "no number"),
                ofNumber("double", "1,5", undefined, "no number"),
                ofNumber("double", "", undefined),
                ofNumber("double", "1.25", undefined, "Decimals: at most 1", { precision: 1 }),
                ofNumber("double", "101", undefined, "0.0 - 100.0", { inputType: KivData.INPUT_FLOAT, precision: 1, minRange: 0, maxRange: 100 }),
                ofNumber("double", "0.4", undefined, "0.5 - 2", { inputType: KivData.INPUT_FLOAT, minRange: 0.5, maxRange: 2 }),
                ofNumber("double", "-1", undefined, "At least 0", { inputType: KivData.INPUT_POSITIVE_FLOAT }),
                ofNumber("double", "4", undefined, "At least 5", { minRange: 5 }),
                ofNumber("int", "7.5", undefined, "whole number"),
                ofNumber("int", "2147483648", undefined, "-2147483648 - 2147483647"),
                ofNumber("uint", "-1", undefined, "0 - 4294967295"),
                ofNumber("int", "11", undefined, "1 - 10", { inputType: KivData.INPUT_INT, minRange: 1, maxRange: 10 })
            ]
        }
        function test_formats(row) {
            const before = row.is.type === "std::string" ? "before" : 1
            const item = createTemporaryObject(itemComponent, root, Object.assign({ label: "Item", value: before }, row.is, { refused: undefined }))
            const entry = make(entryComponent, { item: item })
            const field = fieldOf(entry)
            const isTaken = row.reason === "" && !row.is.refused
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

        // Where decimals have a comma, a point is no decimal point, and the item gets plain numbers all the same.
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
            compare(entry.entry.note, "Decimals stand behind \",\"")
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
