import QtQuick 2.15
import UiUtils.Controls 1.0

// The measures of a form of the pad: high with four rows of keys, or low with two.
QtObject {
    id: form

    property bool isLow: false
    property var keys: []
    property real textHeight: 0
    property var words: ({})

    readonly property real keyWidth: isLow ? ControlsStyle.touch : ControlsStyle.padKeyWidth
    readonly property real actionWidth: Math.max(keyWidth, Math.ceil(Math.max(clearWord.width, cancelWord.width)) + 2 * ControlsStyle.gap)
    readonly property real rowHeight: ControlsStyle.padKeyHeight
    readonly property int rows: isLow ? 2 : 4
    // Above the keys: the text, and what is said about it; beside each other in the low form.
    readonly property real headHeight: isLow ? rowHeight : 3 * textHeight + rowHeight + 2 * ControlsStyle.gap
    readonly property real keysWidth: {
        const right = keys.reduce((most, key) => Math.max(most, xOf(key.column + key.span)), 0)
        return right - ControlsStyle.touchGap
    }
    readonly property size size: Qt.size(keysWidth + 2 * (isLow ? ControlsStyle.gap : ControlsStyle.margin),
                                         headHeight + (isLow ? ControlsStyle.touchGap : ControlsStyle.gap)
                                         + rows * (rowHeight + ControlsStyle.touchGap) - ControlsStyle.touchGap
                                         + 2 * (isLow ? ControlsStyle.gap : ControlsStyle.margin))

    // Where a column begins; columns of actions are wider.
    function xOf(column) {
        const widths = keys.reduce((found, key) => {
            for (let i = 0; i < key.span; ++i)
                found[key.column + i] = key.isAction ? actionWidth : keyWidth
            return found
        }, [])
        return widths.slice(0, column).reduce((sum, width) => sum + width + ControlsStyle.touchGap, 0)
    }

    readonly property TextMetrics clearWord: TextMetrics {
        text: form.words.Clear
        font { pixelSize: ControlsStyle.bodyText; weight: Font.DemiBold }
    }
    readonly property TextMetrics cancelWord: TextMetrics {
        text: form.words.Cancel
        font { pixelSize: ControlsStyle.bodyText; weight: Font.DemiBold }
    }
}
