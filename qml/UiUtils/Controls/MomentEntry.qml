import QtQuick 2.15
import UiUtils.Controls 1.0
import "moments.js" as Moments

/// A date, a time of day or both: typed as the locale writes it, or picked. The value is a text of ISO 8601.
FieldEntry {
    id: entry

    property bool hasDate: true
    property bool hasTime: true
    /// The first permitted value, as ISO text or Date; undefined for none.
    property var earliest
    /// The last permitted value, as ISO text or Date; undefined for none.
    property var latest

    readonly property var parts: Moments.partsOf(currentValue, hasDate, hasTime)

    function shown(parts) {
        return Moments.written(parts, Qt.locale(), hasDate, hasTime)
    }

    function textOf(value) {
        const parts = Moments.partsOf(value, hasDate, hasTime)
        return parts === null ? "" : shown(parts)
    }

    function parsed(text) {
        const parts = Moments.parse(text, Qt.locale(), hasDate, hasTime)
        return parts === null ? "" : Moments.isoOf(parts, hasDate, hasTime)
    }

    // A bound in the form of values, which sort like the moments.
    function bound(value) {
        const parts = Moments.partsOf(value, hasDate, hasTime)
        return parts === null ? "" : Moments.isoOf(parts, hasDate, hasTime)
    }

    function check(text) {
        const iso = parsed(text)
        if (iso === "")
            return problemText()
        if (bound(earliest) !== "" && iso < bound(earliest))
            return qsTr("Not before %1").arg(textOf(earliest))
        return bound(latest) !== "" && iso > bound(latest) ? qsTr("Not after %1").arg(textOf(latest)) : ""
    }

    function problemText() {
        const example = shown({ year: 2026, month: 12, day: 31, hour: 23, minute: 59 })
        return !hasTime ? qsTr("This is not a date, such as %1").arg(example)
            : !hasDate ? qsTr("This is not a time, such as %1").arg(example) : qsTr("This is not a date and time, such as %1").arg(example)
    }

    /// Opens the picker.
    function openPicker() {
        openPickerFor(false)
    }

    // `isByKey` for users who see where the keys lead.
    function openPickerFor(isByKey) {
        if (!isReady || readOnly)
            return
        pickerLoader.active = true
        pickerLoader.item.start(Moments.parse(text, Qt.locale(), hasDate, hasTime) || parts, isByKey)
    }

    rangeText: ""
    plainText: textOf(currentValue)
    placeholderText: qsTr("such as %1").arg(shown({ year: 2026, month: 12, day: 31, hour: 23, minute: 59 }))
    inputMethodHints: Qt.ImhPreferNumbers
    tool: IconButton {
        objectName: "pickerButton"
        iconName: entry.hasDate ? "calendar" : "clock"
        name: qsTr("Choose: %1").arg(entry.label)
        onClicked: entry.openPickerFor(visualFocus)
    }

    Loader {
        id: pickerLoader
        active: false
        visible: false
        sourceComponent: MomentPicker {
            label: entry.label
            hasDate: entry.hasDate
            hasTime: entry.hasTime
            earliest: entry.bound(entry.earliest)
            latest: entry.bound(entry.latest)
            onAccepted: entry.takePad(entry.shown(parts))
        }
    }
}
