import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0

// Keys for gloved fingers. The pad types into a text of its own; the field gets it with OK.
Popup {
    id: pad

    property string label
    property string rangeText
    // What is wrong with the text, in words.
    property string problem
    property string text
    // The key right of the 0; empty for none.
    property string separator
    property bool hasSign: false

    signal accepted

    // The first key replaces the present text, like a selection.
    property bool isFresh: true
    property bool isTried: false

    function start(initial) {
        text = initial
        isFresh = true
        isTried = false
        open()
        okKey.forceActiveFocus()
    }

    function type(character) {
        text = (isFresh ? "" : text) + character
        isFresh = false
        isTried = false
    }

    function deleteLast() {
        text = isFresh ? "" : text.slice(0, -1)
        isFresh = false
        isTried = false
    }

    function changeSign() {
        text = text.startsWith("-") ? text.slice(1) : "-" + text
        isFresh = false
    }

    function finish() {
        isTried = true
        if (problem === "")
            accepted()
    }

    // The next enabled key in the given direction.
    function step(columns, rows) {
        const keys = grid.keys
        let at = keys.findIndex(key => key.activeFocus)
        if (at < 0)
            return
        let column = at % 4
        let row = Math.floor(at / 4)
        do {
            column += columns
            row += rows
            if (column < 0 || column > 3 || row < 0 || row > 3)
                return
        } while (!keys[row * 4 + column].enabled)
        keys[row * 4 + column].forceActiveFocus()
    }

    function handle(event) {
        const moves = { [Qt.Key_Left]: [-1, 0], [Qt.Key_Right]: [1, 0], [Qt.Key_Up]: [0, -1], [Qt.Key_Down]: [0, 1] }
        event.accepted = true
        if (moves[event.key])
            step(moves[event.key][0], moves[event.key][1])
        else if (/^[0-9]$/.test(event.text))
            type(event.text)
        else if (separator !== "" && (event.text === "." || event.text === "," || event.text === separator))
            type(separator)
        else if (event.text === "-" && hasSign)
            changeSign()
        else if (event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete)
            deleteLast()
        else
            event.accepted = false
    }

    objectName: "pad"
    parent: Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    padding: ControlsStyle.margin
    background: Rectangle {
        radius: ControlsStyle.radius + 4
        color: ControlsStyle.background
        border { width: 1; color: ControlsStyle.border }
    }

    contentItem: ColumnLayout {
        spacing: ControlsStyle.gap
        Keys.onPressed: pad.handle(event)

        Text {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            visible: text !== ""
            text: pad.label
            textFormat: Text.PlainText
            color: ControlsStyle.mutedText
            font.pixelSize: ControlsStyle.smallText
            elide: Text.ElideRight
        }
        EntryFrame {
            Layout.fillWidth: true
            Layout.preferredHeight: 56
            isInvalid: pad.isTried && pad.problem !== ""

            Text {
                id: display
                objectName: "padDisplay"
                anchors { fill: parent; leftMargin: 12; rightMargin: 12 }
                text: pad.text
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
                elide: Text.ElideLeft
                color: pad.isFresh ? ControlsStyle.mutedText : ControlsStyle.text
                font.pixelSize: ControlsStyle.padText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        Text {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.minimumHeight: 18
            text: pad.isTried && pad.problem !== "" ? pad.problem : pad.rangeText
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            color: pad.isTried && pad.problem !== "" ? ControlsStyle.invalid : ControlsStyle.mutedText
            font { pixelSize: ControlsStyle.smallText; bold: pad.isTried && pad.problem !== "" }
        }
        GridLayout {
            id: grid

            readonly property var keys: [key7, key8, key9, backKey, key4, key5, key6, clearKey,
                                         key1, key2, key3, cancelKey, signKey, key0, separatorKey, okKey]

            columns: 4
            columnSpacing: ControlsStyle.gap
            rowSpacing: ControlsStyle.gap

            PadKey { id: key7; text: "7"; onClicked: pad.type(types) }
            PadKey { id: key8; text: "8"; onClicked: pad.type(types) }
            PadKey { id: key9; text: "9"; onClicked: pad.type(types) }
            PadKey { id: backKey; text: "\u2190"; quiet: true; Accessible.name: qsTr("Delete"); onClicked: pad.deleteLast() }
            PadKey { id: key4; text: "4"; onClicked: pad.type(types) }
            PadKey { id: key5; text: "5"; onClicked: pad.type(types) }
            PadKey { id: key6; text: "6"; onClicked: pad.type(types) }
            PadKey {
                id: clearKey
                text: qsTr("Clear")
                quiet: true
                onClicked: {
                    pad.isFresh = true
                    pad.deleteLast()
                }
            }
            PadKey { id: key1; text: "1"; onClicked: pad.type(types) }
            PadKey { id: key2; text: "2"; onClicked: pad.type(types) }
            PadKey { id: key3; text: "3"; onClicked: pad.type(types) }
            PadKey { id: cancelKey; text: qsTr("Cancel"); quiet: true; onClicked: pad.close() }
            PadKey {
                id: signKey
                text: "+/\u2212"
                opacity: pad.hasSign ? 1 : 0
                enabled: pad.hasSign
                Accessible.name: qsTr("Change the sign")
                onClicked: pad.changeSign()
            }
            PadKey { id: key0; text: "0"; onClicked: pad.type(types) }
            PadKey {
                id: separatorKey
                text: pad.separator
                opacity: pad.separator !== "" ? 1 : 0
                enabled: pad.separator !== ""
                onClicked: pad.type(types)
            }
            PadKey { id: okKey; text: qsTr("OK"); filled: true; focus: true; onClicked: pad.finish() }
        }
    }
}
