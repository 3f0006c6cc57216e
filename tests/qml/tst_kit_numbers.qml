import QtQuick 2.15
import QtTest 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import "../../qml/UiUtils/Controls/moments.js" as Moments

// Numbers in steps, segments, dates and times over items that have limits, reject, run in transactions and vanish.
Item {
    id: root

    width: 800
    height: 600

    Component { id: stepperComponent; ItemStepper {} }
    Component { id: sliderComponent; ItemSlider {} }
    Component { id: segmentsComponent; SegmentedChoice {} }
    Component { id: choiceComponent; ChoiceEntry { label: "Choice" } }
    Component { id: dateComponent; DateEntry { label: "Due" } }
    Component { id: timeComponent; TimeEntry { label: "Begin" } }
    Component { id: momentComponent; DateTimeEntry { label: "Next" } }
    Component { id: signalComponent; SignalSpy { signalName: "committed" } }

    EntryTestCase {
        name: "KitNumbers"

        function service(name) {
            return driver.value(":config:entry:" + name + ":")
        }

        function button(entry, name) {
            return findChild(entry, name)
        }

        // What the next steps give, from the value that the service has: multiples of the increment, within the limits.
        function test_steps_data() {
            return [{ tag: "increment of the item", item: entry_cfg_dose, step: 0, up: [1.25, 1.5, 1.75, 2, 2.1], down: [2, 1.75] },
                    { tag: "last decimal", item: entry_cfg_level, step: 0, up: [20.6, 20.7], down: [20.6, 20.5, 20.4] },
                    { tag: "of the page", item: entry_cfg_level, step: 30, up: [30, 60, 90, 100], down: [90, 60, 30, 0] },
                    { tag: "whole numbers", item: entry_cfg_count, step: 0, up: [4, 5], down: [4, 3] }]
        }
        function test_steps(row) {
            const entry = make(stepperComponent, { item: row.item, step: row.step })
            for (const [name, values] of [["moreButton", row.up], ["lessButton", row.down]]) {
                for (const value of values) {
                    verify(button(entry, name).enabled)
                    tap(button(entry, name))
                    compare(row.item.value, value)
                }
            }
        }

        // Missing limits, limits that leave nothing, increments and values that are no numbers.
        function test_oddItems() {
            const item = properties => createTemporaryObject(itemComponent, root, Object.assign({ type: "int", label: "Local" }, properties))
            const crossed = make(stepperComponent, { item: item({ value: 5, minRange: 9, maxRange: 1 }) })
            verify(!button(crossed, "lessButton").enabled && !button(crossed, "moreButton").enabled)
            verify(!findChild(make(sliderComponent, { item: item({ value: 5, minRange: 9, maxRange: 1 }) }), "slider").enabled)
            const free = make(stepperComponent, { item: item({ value: 5 }), step: 0.4 })
            tap(button(free, "moreButton"))
            compare([free.item.value, free.stepSize], [6, 1])
            for (const nothing of [NaN, Infinity, "", undefined, "off"]) {
                const entry = make(stepperComponent, { value: nothing, minimum: 3, maximum: 9 })
                compare([entry.hasNumber, entry.number, entry.commit()], [false, 3, true])
                tap(button(entry, "moreButton"))
                compare(entry.value, 4)
            }
            const choice = { model: [{ label: "None", value: 0 }, { label: "One", value: 1 }] }
            for (const nothing of [null, "", undefined])
                compare(make(segmentsComponent, Object.assign({ value: nothing }, choice)).currentIndex, -1)
            for (const nothing of [null, "", undefined])
                compare(make(choiceComponent, { value: nothing, choices: choice.model }).position, -1)
        }

        function test_limitsThatChange() {
            const local = createTemporaryObject(itemComponent, root, { type: "int", label: "Local", value: 50, minRange: 0, maxRange: 100 })
            const entry = make(sliderComponent, { item: local, step: 10 })
            const slider = findChild(entry, "slider")
            local.maxRange = 60
            compare([slider.to, entry.number, slider.visualPosition > 0.8], [60, 50, true])
            local.minRange = 70
            verify(!slider.enabled)
            compare(local.value, 50)
        }

        // As with a stepper, whatever the line begins with.
        function test_sliderGoesToMultiples() {
            const entry = make(sliderComponent, { minimum: 3, maximum: 98, value: 3, step: 10, width: 800 })
            const slider = findChild(entry, "slider")
            const at = value => slider.background.x + (value - slider.from) / (slider.to - slider.from) * slider.background.width
            for (const [place, value] of [[52, 50], [100, 98], [0, 3]]) {
                const touch = touchEvent(slider)
                touch.press(0, slider, at(entry.number), slider.height / 2).commit()
                for (const part of [0.3, 0.7, 1])
                    touch.move(0, slider, at(entry.number + part * (place - entry.number)), slider.height / 2).commit()
                touch.release(0, slider, at(place), slider.height / 2).commit()
                compare(entry.value, value)
            }
            slider.forceActiveFocus()
            for (const value of [10, 20]) {
                keyClick(Qt.Key_Right)
                compare(entry.value, value)
            }
            entry.value = 98
            keyClick(Qt.Key_Right)
            compare([entry.value, slider.value], [98, 98])
            keyClick(Qt.Key_Left)
            compare(entry.value, 90)
        }

        function test_limitsEndTheSteps() {
            const entry = make(stepperComponent, { item: entry_cfg_count })
            driver.report(":config:entry:count:", 10)
            verify(!button(entry, "moreButton").enabled)
            findChild(entry, "stepper").forceActiveFocus()
            keyClick(Qt.Key_Up)
            compare(service("count"), 10)
            keyClick(Qt.Key_PageDown)
            compare(service("count"), 0)
            keyClick(Qt.Key_PageDown)
            compare([service("count"), button(entry, "lessButton").enabled], [-5, false])
        }

        // A finger that rests on a button sends one value, and the release is not another step.
        function test_holdWritesOnce() {
            const entry = make(stepperComponent, { item: entry_cfg_level, step: 1 })
            const spy = createTemporaryObject(signalComponent, root, { target: entry })
            mousePress(button(entry, "moreButton"))
            tryVerify(() => entry.number >= 22)
            compare([service("level"), spy.count], [20.5, 0])
            const seen = entry.number
            mouseRelease(button(entry, "moreButton"))
            compare([service("level"), spy.count], [seen, 1])
            entry.step = 40
            mousePress(button(entry, "moreButton"))
            tryVerify(() => entry.number >= 100)
            mouseRelease(button(entry, "moreButton"))
            compare([service("level"), spy.count, button(entry, "moreButton").enabled], [100, 2, false])
        }

        function test_serviceVanishesDuringAGesture() {
            const entry = make(stepperComponent, { item: entry_cfg_level, step: 1 })
            mousePress(button(entry, "moreButton"))
            tryVerify(() => entry.number >= 22)
            driver.setReachable(false, "entry")
            driver.setReachable(true, "entry")
            mouseRelease(button(entry, "moreButton"))
            compare([service("level"), entry.number], [20.5, 20.5])
            tap(button(entry, "moreButton"))
            compare(service("level"), 21)
        }

        // An item that ends during a gesture takes it along; the entry waits for another one.
        function test_itemEndsDuringAGesture() {
            const item = itemComponent.createObject(root, { type: "int", label: "Local", value: 3, minRange: 0, maxRange: 9 })
            const entry = make(stepperComponent, { item: item })
            mousePress(button(entry, "moreButton"))
            tryVerify(() => entry.number >= 5)
            item.destroy()
            tryCompare(entry, "item", null)
            mouseRelease(button(entry, "moreButton"))
            compare([entry.draft, entry.isReady, entry.note], [undefined, false, "Not available"])
            entry.item = entry_cfg_count
            tap(button(entry, "moreButton"))
            compare(service("count"), 4)
            mousePress(button(entry, "moreButton"))
            tryVerify(() => entry.number >= 6)
            entry.item = entry_cfg_level
            mouseRelease(button(entry, "moreButton"))
            compare([service("count"), service("level")], [4, 20.5])
        }

        function test_rejectedStep() {
            const entry = make(stepperComponent, { item: entry_cfg_locked })
            tap(button(entry, "moreButton"))
            compare([service("locked"), entry.number, entry.isInvalid, entry.note], [1, 1, true, "The key is turned."])
        }

        // Revert gives the service's value, however often the user has stepped.
        function test_transaction() {
            const entry = make(stepperComponent, { item: entry_cfg_level, step: 10 })
            services.entry.startChanges()
            for (let i = 0; i < 3; ++i)
                tap(button(entry, "moreButton"))
            compare([entry.number, service("level")], [50, 20.5])
            services.entry.revertChanges()
            compare([entry.number, service("level")], [20.5, 20.5])
            services.entry.startChanges()
            tap(button(entry, "lessButton"))
            services.entry.applyChanges()
            compare(service("level"), 20)
        }

        function test_slider() {
            const entry = make(sliderComponent, { item: entry_cfg_level, step: 1, width: 800 })
            const slider = findChild(entry, "slider")
            const spy = createTemporaryObject(signalComponent, root, { target: entry })
            // The handle is below the finger.
            const at = part => slider.background.x + part * slider.background.width
            const touch = touchEvent(slider)
            touch.press(0, slider, at(0.2), slider.height / 2).commit()
            for (const part of [0.3, 0.6, 0.97])
                touch.move(0, slider, at(part), slider.height / 2).commit()
            tryCompare(entry, "number", 97)
            compare(service("level"), 20.5)
            driver.report(":config:entry:level:", 3)
            compare(entry.number, 97)
            touch.release(0, slider, at(0.97), slider.height / 2).commit()
            compare([service("level"), spy.count], [97, 1])
            slider.forceActiveFocus()
            keyClick(Qt.Key_Right)
            compare([service("level"), entry.number], [98, 98])
            driver.report(":config:entry:level:", 20.5)
            compare([slider.value, entry.numberText], [20.5, "20.5 dB"])
            verify(!findChild(make(sliderComponent, { item: entry_cfg_open }), "slider").enabled)
        }

        function test_segments() {
            const entry = make(segmentsComponent, { item: entry_cfg_mode })
            const segments = findChild(entry, "segments")
            compare(entry.choices.map(choice => choice.label), ["Automatic", "By hand"])
            segments.forceActiveFocus()
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            compare([service("mode"), entry.currentIndex], [2, 1])
            const fixed = make(segmentsComponent, { item: entry_cfg_fixed })
            findChild(fixed, "segments").forceActiveFocus()
            keyClick(Qt.Key_Right)
            compare([fixed.currentIndex, fixed.note], [0, "The mode is fixed."])
            const own = make(segmentsComponent, { model: ["All", { label: "Failures", value: 7 }], value: "All" })
            findChild(own, "segments").forceActiveFocus()
            keyClick(Qt.Key_Right)
            compare(own.value, 7)
        }

        function test_momentsOfLocales_data() {
            return [["de_DE", dateComponent, "31.12.2026", "2026-12-31"], ["de_DE", dateComponent, "1.2.26", "2026-02-01"],
                    ["de_DE", dateComponent, "29.2.2027", ""], ["de_DE", dateComponent, "29.2.2028", "2028-02-29"], ["de_DE", dateComponent, "31.12.", ""],
                    ["de_DE", dateComponent, "12/31/2026", ""], ["en_US", dateComponent, "12/31/2026", "2026-12-31"],
                    ["en_US", dateComponent, "2026-12-31", "2026-12-31"], ["en_US", dateComponent, "tomorrow", ""],
                    ["ja_JP", dateComponent, "2026/12/31", "2026-12-31"], ["ar_EG", dateComponent, "\u0663\u0661/\u0661\u0662/\u0662\u0660\u0662\u0666", "2026-12-31"],
                    ["en_US", timeComponent, "2:05 PM", "14:05"], ["en_US", timeComponent, "12:30 am", "00:30"], ["en_US", timeComponent, "14:05", "14:05"],
                    ["de_DE", timeComponent, "14:05", "14:05"], ["de_DE", timeComponent, "24:00", ""], ["de_DE", timeComponent, "14:60", ""],
                    ["de_DE", momentComponent, "3.11.2026 9:07", "2026-11-03T09:07"], ["C", dateComponent, "2026-12-31", "2026-12-31"]]
                    .map(row => ({ tag: row[0] + " " + row[2], locale: row[0], component: row[1], typed: row[2], value: row[3] }))
        }
        function test_momentsOfLocales(row) {
            driver.setLocale(row.locale)
            const entry = make(row.component)
            const spy = createTemporaryObject(signalComponent, root, { target: entry })
            const field = fieldOf(entry)
            field.forceActiveFocus()
            field.text = row.typed
            field.textEdited()
            keyClick(Qt.Key_Return)
            compare([entry.value || "", spy.count, entry.isInvalid], [row.value, row.value === "" ? 0 : 1, row.value === ""])
            // What is shown can be typed again.
            compare(entry.parsed(field.text), row.value)
        }

        // The tests run in a zone whose clocks are put forward from 00:00 to 01:00 on the last Friday of April.
        function test_hoursThatAZoneLeavesOut() {
            driver.setLocale("de_DE")
            const entry = make(momentComponent, { value: "2026-04-24T00:30" })
            compare([fieldOf(entry).text, entry.parsed("24.04.2026 00:30")], ["24.04.2026 00:30", "2026-04-24T00:30"])
            const days = Moments.weeks(2026, 4, 1).map(day => Moments.isoOf(day, true, false))
            compare([days.length, new Set(days).size, days[25]], [42, 42, "2026-04-24"])
            compare(Moments.moved({ year: 2026, month: 4, day: 23 }, 0, 1).day, 24)
            // No calendar goes beyond years of four digits.
            compare(Moments.moved({ year: 9999, month: 12, day: 31 }, 0, 1).year, 9999)
        }

        function test_boundsOfDates() {
            const entry = make(dateComponent, { value: "2026-06-30", earliest: "2026-01-01", latest: new Date(2026, 11, 31) })
            for (const [typed, value] of [["12/31/2025", "2026-06-30"], ["1/1/2026", "2026-01-01"], ["12/31/2026", "2026-12-31"], ["1/1/2027", "2026-12-31"]]) {
                enter(entry, typed)
                compare(entry.value, value)
            }
            compare(entry.note, "Not after 12/31/2026")
            keyClick(Qt.Key_Escape)
            entry.openPicker()
            const picker = findChild(entry, "momentPicker")
            tryVerify(() => picker.opened)
            verify(!findChild(picker.contentItem, "2027-01-01").enabled)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Return)
            verify(picker.opened && !findChild(picker.contentItem, "pickButton").enabled)
            keyClick(Qt.Key_Escape)
            tryVerify(() => !picker.visible)
            compare(entry.value, "2026-12-31")
        }

        function test_picking() {
            const entry = make(momentComponent, { value: "2028-01-31T23:30" })
            tap(findChild(entry, "pickerButton"))
            const picker = findChild(entry, "momentPicker")
            tryVerify(() => picker.opened)
            const content = picker.contentItem
            verify(picker.width <= root.width && picker.height <= 480)
            tap(findChild(findChild(content, "monthLine"), "more"))
            compare(picker.iso, "2028-02-29T23:30")
            // The week begins on Sunday here: the 27th is first in the last row of February.
            compare(findChild(content, "2028-02-27").x, findChild(content, "2028-02-06").x)
            verify(findChild(content, "2028-02-27").x < findChild(content, "2028-02-28").x)
            tap(findChild(content, "2028-03-01"))
            tap(findChild(findChild(content, "hourLine"), "more"))
            tap(findChild(findChild(content, "minuteLine"), "less"))
            compare(picker.iso, "2028-03-01T00:29")
            compare(entry.value, "2028-01-31T23:30")
            tap(findChild(content, "pickButton"))
            compare(entry.value, "2028-03-01T00:29")
            tryVerify(() => !picker.visible)
        }
    }
}
