import QtQuick 2.15
import QtQuick.Window 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import "../../qml/UiUtils/Controls/padkeys.js" as PadKeys

// What opens for a field leaves the field in sight, on every screen; what an entry says moves nothing.
Item {
    id: root

    width: 500
    height: 600

    Component {
        id: screenComponent
        Window {
            property alias entry: loader.item
            property alias place: loader
            property alias elsewhere: elsewhere
            property Component kind
            visible: true
            Loader { id: loader; width: 300; sourceComponent: kind }
            Item { id: elsewhere }
        }
    }
    Component { id: levelComponent; NumberEntry { label: "Level"; unit: "dB"; minimum: -10; value: 3 } }
    Component { id: wholeComponent; NumberEntry { label: "Count"; whole: true; minimum: 0; value: 3 } }
    Component { id: hexComponent; HexEntry { type: "uint"; value: 171 } }
    Component { id: binaryComponent; BinaryEntry { type: "uint"; value: 1 } }
    Component { id: addressComponent; IpEntry { value: "" } }
    Component {
        id: choiceComponent
        ChoiceEntry { value: 1; choices: Array.from("abcdefghijklmn").map((label, i) => ({ label: label, value: i })) }
    }
    Component { id: formAddressComponent; Ipv4Entry { value: "192.0.2.1" } }
    Component {
        id: scrolledComponent
        Flickable {
            width: 120
            height: 200
            contentHeight: 900
            clip: true
            Column {
                Ipv4Entry { width: 120; value: "192.0.2.1" }
                Ipv4Entry { objectName: "second"; width: 120; value: "192.0.2.1" }
            }
        }
    }
    Component {
        id: formComponent
        Column {
            property alias first: first
            property alias second: second
            ItemEntry { id: first; width: 200 }
            ItemEntry { id: second; width: 200; item: entry_cfg_on }
        }
    }

    EntryTestCase {
        name: "Room"

        function init() {
            ControlsStyle.pixelDensity = 96 / 25.4
            driver.reset()
            root.Window.window.requestActivate()
            tryVerify(() => root.Window.active)
        }
        function cleanupTestCase() {
            ControlsStyle.pixelDensity = 96 / 25.4
        }

        function rectOf(item, window) {
            return item.mapToItem(window.contentItem, 0, 0, item.width, item.height)
        }
        function verifyFree(opened, field, window, what) {
            verify(opened.x >= 0 && opened.y >= 0 && opened.x + opened.width <= window.width && opened.y + opened.height <= window.height,
                   `${what}: ${opened} is outside of ${window.width} x ${window.height}`)
            verify(opened.x >= field.x + field.width || field.x >= opened.x + opened.width
                   || opened.y >= field.y + field.height || field.y >= opened.y + opened.height, `${what}: ${opened} covers ${field}`)
        }

        function test_opensBesideItsField_data() {
            const rows = []
            for (const [width, height, dpi] of [[800, 480, 133], [1024, 600, 170], [1280, 800, 149]]) {
                for (const [name, kind] of [["level", levelComponent], ["whole", wholeComponent], ["hex", hexComponent], ["address", addressComponent], ["choice", choiceComponent]])
                    rows.push({ tag: `${name} ${width}x${height}`, width: width, height: height, dpi: dpi, kind: kind })
            }
            return rows
        }
        function test_opensBesideItsField(row) {
            ControlsStyle.pixelDensity = row.dpi / 25.4
            const window = createTemporaryObject(screenComponent, root, { width: row.width, height: row.height, kind: row.kind })
            const entry = window.entry
            const box = findChild(entry, "box")
            for (let y = 0; y <= row.height - entry.height; y += 23) {
                window.place.y = y
                window.place.x = y % 2 * (row.width - entry.width)
                const opened = box ? box.popup : (entry.openPad(), findChild(entry, "pad"))
                if (box)
                    opened.open()
                const frame = rectOf(box || fieldOf(entry).parent.parent, window)
                verifyFree(rectOf(opened.background, window), frame, window, `at ${y}`)
                for (const key of box ? [] : PadKeys.actions.concat("1", "0"))
                    verify(findChild(opened.contentItem, key).width >= ControlsStyle.touch && findChild(opened.contentItem, key).height >= ControlsStyle.touch)
                opened.close()
                tryVerify(() => !opened.visible)
            }
        }

        function test_keysOfANotation_data() {
            return [{ tag: "hex", kind: hexComponent, keys: ["F", "A", "0"], value: 0xFA0, absent: ["sign", "e", "."] },
                    { tag: "exponent", kind: levelComponent, keys: ["1", ".", "5", "sign", "sign", "e", "sign", "3"], value: 0.0015, absent: ["A"] },
                    { tag: "exponent of nothing", kind: levelComponent, keys: ["Clear", "e", "7"], value: 7, absent: [] },
                    { tag: "binary", kind: binaryComponent, keys: ["1", "0", "1"], value: 5, absent: ["2", "9", "A"] },
                    { tag: "address", kind: addressComponent, keys: ["A", ":", ":", "1"], value: "A::1", absent: ["sign"] },
                    { tag: "whole", kind: wholeComponent, keys: ["7"], value: 7, absent: ["sign", ".", "e"] }]
        }
        function test_keysOfANotation(row) {
            const entry = make(row.kind)
            entry.openPad()
            const pad = padOf(entry)
            for (const name of row.absent)
                verify(!findChild(pad.contentItem, name) || !findChild(pad.contentItem, name).enabled, name)
            tapKeys(pad, row.keys.concat("OK"))
            tryVerify(() => !pad.visible)
            compare(entry.value, row.value)
        }

        // Digits keep their order where the layout runs from right to left; what acts changes sides.
        function test_keysFromRightToLeft() {
            const columns = (keys, names) => names.map(name => keys.find(key => key.name === name).column)
            const pad = { digits: "0123456789", separators: ".", hasSign: true, hasExponent: false }
            for (const isLow of [false, true]) {
                const keys = PadKeys.keys(pad, isLow, true)
                const digits = columns(keys, isLow ? ["1", "2", "3"] : ["7", "8", "9"])
                verify(digits[0] < digits[1] && digits[1] < digits[2])
                verify(columns(keys, PadKeys.actions).every(column => column < digits[0]))
            }
        }

        function test_whatIsSaidMovesNothing_data() {
            const address = () => createTemporaryObject(itemComponent, root, { type: "std::string", value: "192.0.2.1", inputType: KivData.INPUT_IPV4 })
            return [{ tag: "problem in several lines", make: address, happen: entry => enter(entry, "1"), words: "Four numbers separated by points, such as 192.0.2.1" },
                    { tag: "problem", item: entry_cfg_name, happen: entry => enter(entry, "x") },
                    { tag: "long problem", item: entry_cfg_name, happen: entry => enter(entry, "x".repeat(90)) },
                    { tag: "news", item: entry_cfg_name, happen: entry => { type(entry, "Mine"); driver.report(":config:entry:name:", "Theirs".repeat(2)) } },
                    { tag: "rejection", item: entry_cfg_locked, happen: entry => enter(entry, "7") },
                    { tag: "service away", item: entry_cfg_name, happen: () => driver.setReachable(false, "entry") },
                    { tag: "read-only, service away", item: entry_res_loss, happen: () => driver.setReachable(false, "entry") },
                    { tag: "verdict", item: entry_cfg_level, happen: () => driver.report(":config:entry:level:", 21) }]
        }
        function test_whatIsSaidMovesNothing(row) {
            const form = make(formComponent, { width: 200 })
            form.first.item = row.item || row.make()
            waitForRendering(form)
            const before = form.second.y
            row.happen(form.first)
            waitForRendering(form)
            compare(form.second.y, before)
            if (row.words)
                compare(findChild(findChild(form.first, "noteSheet").contentItem, "noteText").text, row.words)
        }

        // Words that need room are beside their field wherever it is, also in what scrolls and under what follows.
        function test_longWordsLeaveTheField_data() {
            return [{ tag: "top", y: 0 }, { tag: "middle", y: 200 }, { tag: "bottom", y: 480 - 68 }]
        }
        function test_longWordsLeaveTheField(row) {
            const window = createTemporaryObject(screenComponent, root, { width: 800, height: 480, kind: formAddressComponent })
            window.place.width = 120
            window.place.y = row.y
            window.requestActivate()
            tryVerify(() => window.active)
            const entry = window.entry
            const field = fieldOf(entry)
            field.forceActiveFocus()
            field.text = "1"
            field.textEdited()
            field.accepted()
            tryVerify(() => findChild(entry, "noteSheet") && findChild(entry, "noteSheet").opened)
            const sheet = findChild(entry, "noteSheet")
            verifyFree(rectOf(sheet.background, window), rectOf(field.parent.parent, window), window, row.tag)
            verify(!findChild(sheet.contentItem, "noteText").truncated)
            tap(sheet.contentItem)
            tryCompare(entry, "isInvalid", true)
            tryVerify(() => !findChild(entry, "noteSheet"))
            // Other words are shown again; who leaves takes them along.
            field.text = "1.2"
            field.textEdited()
            field.accepted()
            field.text = "1.2.3.999"
            field.textEdited()
            field.accepted()
            tryVerify(() => findChild(entry, "noteSheet"))
            window.elsewhere.forceActiveFocus()
            tryVerify(() => !findChild(entry, "noteSheet"))
        }

        function test_longWordsGoWithTheirField() {
            const window = createTemporaryObject(screenComponent, root, { width: 800, height: 480, kind: scrolledComponent })
            window.requestActivate()
            tryVerify(() => window.active)
            const view = window.entry
            const entry = findChild(view, "second")
            const field = fieldOf(entry)
            field.forceActiveFocus()
            field.text = "1"
            field.textEdited()
            field.accepted()
            tryVerify(() => findChild(entry, "noteSheet") && findChild(entry, "noteSheet").opened)
            const sheet = findChild(entry, "noteSheet")
            for (const y of [60, 0, 90]) {
                view.contentY = y
                verifyFree(rectOf(sheet.background, window), rectOf(field.parent.parent, window), window, `scrolled to ${y}`)
                compare(sheet.opacity, 1)
            }
            view.contentY = 200
            compare(sheet.opacity, 0)
        }

        function test_focusIsShownForKeysOnly_data() {
            return [{ tag: "field", item: entry_cfg_name }, { tag: "switch", item: entry_cfg_on }, { tag: "choice", item: entry_cfg_mode }]
        }
        function test_focusIsShownForKeysOnly(row) {
            const form = make(formComponent, { width: 200 })
            form.first.item = row.item
            waitForRendering(form)
            const target = findChild(form.first, { field: "field", switch: "switch", choice: "box" }[row.tag])
            const frames = () => findAll(form.first, "focusFrame").filter(frame => frame.visible).length
            mouseClick(target)
            verify(target.activeFocus)
            compare(frames(), 0)
            ControlsStyle.keyFocus = false
            compare(frames(), 1)
            ControlsStyle.keyFocus = true
            keyClick(Qt.Key_Escape)
            findChild(form.second, "switch").forceActiveFocus(Qt.TabFocusReason)
            target.forceActiveFocus(Qt.TabFocusReason)
            compare(frames(), 1)
        }
        function findAll(item, name) {
            const own = item.objectName === name ? [item] : []
            return Array.from(item.children).reduce((found, child) => found.concat(findAll(child, name)), own)
        }
    }
}
