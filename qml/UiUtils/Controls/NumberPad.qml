import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0
import "padkeys.js" as PadKeys
import "placing.js" as Placing

// Keys for gloved fingers. The pad types into a text of its own; the field gets it with OK. It opens beside its field:
// high where that has a place, low otherwise.
T.Popup {
    id: pad

    property string label
    property string rangeText
    // What is wrong with the text, in words.
    property string problem
    property string text
    property string digits: "0123456789"
    // What can be typed besides digits, a key for each.
    property string separators
    property bool hasSign: false
    property bool hasExponent: false

    signal accepted

    // The first key replaces the present text, like a selection.
    property bool isFresh: true
    property bool isTried: false
    readonly property bool isWrong: isTried && problem !== ""
    readonly property bool hasExponentNow: /e/i.test(text)

    // What is on the keys and what a screen reader says, where it is not the name of the key.
    readonly property var words: ({ sign: "+/\u2212", Delete: "\u2190", Clear: qsTr("Clear"), Cancel: qsTr("Cancel"), OK: qsTr("OK") })
    readonly property var names: ({ sign: qsTr("Change the sign"), Delete: qsTr("Delete"), e: qsTr("e, exponent of ten") })

    // The item that the pad must not cover.
    property Item owner: null
    property int reason: Qt.OtherFocusReason
    readonly property var place: {
        if (!owner || !parent)
            return { x: 0, y: 0, form: 0 }
        // So near that it covers label and note of the field completely.
        const edge = ControlsStyle.gap
        const within = Qt.rect(edge, edge, parent.width - 2 * edge, parent.height - 2 * edge)
        return Placing.place(owner.mapToItem(parent, 0, 0, owner.width, owner.height),
                             [high.size, low.size], within, ControlsStyle.line, ControlsStyle.mirrored)
    }
    readonly property bool isLow: place.form === 1

    // `from` says how the pad was opened: by a key, so that the focus is shown, or by a finger.
    function start(initial, beside, from) {
        Placing.reveal(beside, 0, T.Overlay.overlay ? T.Overlay.overlay.height : Infinity)
        owner = null
        owner = beside
        reason = from
        text = initial
        isFresh = true
        isTried = false
        open()
        contents.focusKey("OK", reason)
    }

    function type(characters) {
        text = (isFresh ? "" : text) + characters
        isFresh = false
        isTried = false
    }

    function deleteLast() {
        text = isFresh ? "" : text.slice(0, -1)
        isFresh = false
        isTried = false
    }

    function clear() {
        text = ""
        isFresh = false
        isTried = false
    }

    // The sign of the exponent, once there is one.
    function changeSign() {
        const parts = /^([^eE]*[eE])(.*)$/.exec(text) || ["", "", text]
        if (parts[1] !== "" || hasSign)
            text = parts[1] + (parts[2].startsWith("-") ? parts[2].slice(1) : "-" + parts[2])
        isFresh = false
        isTried = false
    }

    function addExponent() {
        if (!hasExponentNow && text !== "")
            text += "e"
        isFresh = false
    }

    function finish() {
        isTried = true
        if (problem === "")
            accepted()
    }

    function press(name) {
        const deeds = { Delete: deleteLast, Clear: clear, Cancel: close, OK: finish, sign: changeSign, e: addExponent }
        if (deeds[name])
            deeds[name]()
        else
            type(name)
    }

    function accepts(name) {
        if (name === "sign")
            return hasSign || hasExponentNow
        return name.length !== 1 || name === "e" || digits.includes(name) || separators.includes(name)
    }

    function handle(event) {
        const character = event.text.toUpperCase()
        event.accepted = true
        if (character !== "" && digits.includes(character))
            type(character)
        else if (separators !== "" && (".,".includes(event.text) || separators.includes(event.text)) && event.text !== "")
            type(separators.includes(event.text) ? event.text : separators[0])
        else if (event.text === "-" && accepts("sign"))
            changeSign()
        else if (character === "E" && hasExponent)
            addExponent()
        else if (event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete)
            deleteLast()
        else
            event.accepted = contents.step(event.key)
    }

    objectName: "pad"
    parent: T.Overlay.overlay
    x: place.x
    y: place.y
    width: (isLow ? low : high).size.width
    height: (isLow ? low : high).size.height
    modal: true
    dim: false
    focus: true
    padding: isLow ? ControlsStyle.gap : ControlsStyle.margin
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    background: Rectangle {
        radius: ControlsStyle.radius
        color: ControlsStyle.background
        border { width: 2 * ControlsStyle.line; color: ControlsStyle.border }
    }

    PadForm { id: high; keys: PadKeys.keys(pad, false, ControlsStyle.mirrored); textHeight: contents.smallLine; words: pad.words }
    PadForm { id: low; isLow: true; keys: PadKeys.keys(pad, true, ControlsStyle.mirrored); textHeight: contents.smallLine; words: pad.words }

    contentItem: PadContents {
        id: contents
        pad: pad
        form: pad.isLow ? low : high
        Keys.onPressed: pad.handle(event)
    }
}
