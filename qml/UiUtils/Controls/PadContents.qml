import QtQuick 2.15
import UiUtils.Controls 1.0
import "padkeys.js" as PadKeys

// Label, display, note and keys of the pad, in either form.
FocusScope {
    id: contents

    property var pad
    property var form

    // Of the same height in all scripts.
    readonly property int smallLine: Math.ceil(1.3 * ControlsStyle.smallText)
    // The low form has the display beside the words.
    readonly property real half: form.isLow ? (width - ControlsStyle.touchGap) / 2 : width

    function keyAt(index) {
        return keys.itemAt(index)
    }

    function focusKey(name, reason) {
        const index = form.keys.findIndex(key => key.name === name)
        if (keyAt(index))
            keyAt(index).forceActiveFocus(reason)
    }

    // The next enabled key in the direction of an arrow key.
    function step(arrow) {
        const moves = { [Qt.Key_Left]: [-1, 0], [Qt.Key_Right]: [1, 0], [Qt.Key_Up]: [0, -1], [Qt.Key_Down]: [0, 1] }
        const from = form.keys.findIndex((key, i) => keyAt(i).activeFocus)
        if (!moves[arrow] || from < 0)
            return false
        const next = PadKeys.next(form.keys, from, moves[arrow][0], moves[arrow][1], i => keyAt(i).enabled)
        if (next >= 0)
            keyAt(next).forceActiveFocus(Qt.TabFocusReason)
        return true
    }

    // The digits keep their order; what changes sides is placed here.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: label.text

    Text {
        id: label
        // The field beside the pad has all of it.
        readonly property bool mayElide: true

        x: ControlsStyle.mirrored ? contents.width - width : 0
        width: contents.half
        height: contents.smallLine
        text: contents.pad.label
        textFormat: Text.PlainText
        color: ControlsStyle.mutedText
        font.pixelSize: ControlsStyle.smallText
        lineHeightMode: Text.FixedHeight
        lineHeight: contents.smallLine
        horizontalAlignment: ControlsStyle.mirrored ? Text.AlignRight : Text.AlignLeft
        elide: Text.ElideRight
    }
    EntryFrame {
        id: frame
        x: contents.form.isLow && !ControlsStyle.mirrored ? contents.width - width : 0
        y: contents.form.isLow ? 0 : contents.smallLine
        width: contents.half
        height: contents.form.rowHeight
        isInvalid: contents.pad.isWrong

        Text {
            objectName: "padDisplay"
            anchors { fill: parent; leftMargin: ControlsStyle.gap; rightMargin: ControlsStyle.gap }
            text: contents.pad.text
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignRight
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideLeft
            color: contents.pad.isFresh ? ControlsStyle.mutedText : ControlsStyle.text
            font.pixelSize: ControlsStyle.padText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
    Text {
        objectName: "padNote"
        x: label.x
        y: contents.form.isLow ? contents.smallLine : frame.y + frame.height + ControlsStyle.gap
        width: contents.half
        height: contents.form.isLow ? contents.form.rowHeight - contents.smallLine : 2 * contents.smallLine
        text: contents.pad.isWrong ? "! " + contents.pad.problem : contents.pad.rangeText
        textFormat: Text.PlainText
        lineHeightMode: Text.FixedHeight
        lineHeight: contents.smallLine
        wrapMode: Text.Wrap
        elide: Text.ElideRight
        color: contents.pad.isWrong ? ControlsStyle.invalid : ControlsStyle.mutedText
        font { pixelSize: ControlsStyle.smallText; weight: contents.pad.isWrong ? Font.DemiBold : Font.Normal }
        horizontalAlignment: label.horizontalAlignment
        Accessible.role: contents.pad.isWrong ? Accessible.AlertMessage : Accessible.StaticText
        Accessible.name: text
    }
    Item {
        y: contents.form.headHeight + (contents.form.isLow ? ControlsStyle.touchGap : ControlsStyle.gap)
        width: contents.form.keysWidth

        Repeater {
            id: keys
            model: contents.form.keys

            PadKey {
                x: contents.form.xOf(modelData.column)
                y: modelData.row * (height + ControlsStyle.touchGap)
                width: contents.form.xOf(modelData.column + modelData.span) - x - ControlsStyle.touchGap
                height: contents.form.rowHeight
                objectName: modelData.name
                text: contents.pad.words[modelData.name] || modelData.name
                filled: modelData.name === "OK"
                quiet: modelData.isAction
                enabled: contents.pad.accepts(modelData.name)
                Accessible.name: contents.pad.names[modelData.name] || text
                onClicked: contents.pad.press(modelData.name)
            }
        }
    }
}
