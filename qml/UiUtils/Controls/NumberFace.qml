import QtQuick 2.15
import UiUtils.Controls 1.0
import "formats.js" as Formats
import "steps.js" as Steps

/// A number that is changed in steps. What a gesture changes is written when the gesture ends: a finger that rests on a
/// button sends one value to the service, not a hundred.
Entry {
    id: entry

    /// How far one step goes. By default the item's attribute "increment", else its last decimal.
    property real step: 0
    /// Decimals that are shown; -1 for as many as the value needs.
    property int decimals: face.decimals

    readonly property bool isWhole: Formats.isWholeType(type)
    readonly property real stepSize: Steps.stepOf(step, face.item && face.item.getProperty ? face.item.getProperty("increment") : undefined,
                                                  decimals, isWhole)
    readonly property real least: Math.max(Formats.typeLimits(type)[0], minimum === undefined ? -Infinity : Number(minimum))
    readonly property real most: Math.min(Formats.typeLimits(type)[1], maximum === undefined ? Infinity : Number(maximum))
    // What the present gesture has set; undefined without one.
    property var draft
    // What a gesture begins with where there is no value.
    readonly property real begin: isFinite(least) ? least : Math.min(0, most)
    readonly property real number: draft !== undefined ? draft : hasValue ? Number(currentValue) : begin
    readonly property bool hasValue: currentValue !== undefined && currentValue !== null && currentValue !== "" && isFinite(Number(currentValue))
    readonly property string numberText: textOf(number) + (unit === "" ? "" : " " + unit)
    readonly property bool hasNumber: draft !== undefined || hasValue

    function textOf(number) {
        const plain = decimals >= 0 ? number.toFixed(decimals) : String(Steps.clean(number))
        return plain.replace(".", Qt.locale().decimalPoint)
    }

    function advance(steps) {
        let next = number
        for (let i = 0; i < Math.abs(steps); ++i)
            next = Steps.next(next, Math.sign(steps), stepSize, least, most)
        draft = next
    }

    /// Writes what the user has set; false when it is rejected.
    function commit() {
        const wanted = draft
        if (wanted === undefined)
            return true
        draft = undefined
        if (wanted === currentValue)
            return true
        if (!isReady || readOnly || store(wanted) !== "")
            return false
        committed(wanted)
        return true
    }

    plainText: face.hasItem ? face.valueString : numberText
    isAcceptable: !mandatory || hasNumber || !face.isApplicable
    Connections {
        target: face
        // What was set was meant for the other item.
        function onReplaced() { entry.draft = undefined }
    }
}
