import QtQuick 2.15
import UiUtils.Controls 1.0

/// A problem where it is: an icon and words, below what is wrong. Without a text nothing is shown; with `keepsRoom` the
/// room for `lines` lines stays, so that nothing moves when a problem comes.
Item {
    id: problem

    property string text
    property bool keepsRoom: false
    /// The lines that `keepsRoom` keeps; a text that needs more is higher.
    property int lines: 1

    // Of the same height in all scripts.
    readonly property int lineHeight: Math.ceil(1.3 * ControlsStyle.labelText)
    readonly property real room: Math.max(mark.height, lines * lineHeight)

    implicitWidth: words.x + words.implicitWidth
    implicitHeight: Math.max(keepsRoom ? room : 0, text === "" ? 0 : Math.max(mark.height, words.implicitHeight))
    visible: text !== "" || keepsRoom
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text
    Accessible.ignored: text === ""

    Row {
        id: row
        width: parent.width
        visible: problem.text !== ""
        spacing: ControlsStyle.gap / 2

        Icon {
            id: mark
            name: "warning"
            size: ControlsStyle.mm(3.6)
            color: ControlsStyle.invalid
        }
        StyledText {
            id: words
            width: row.width - mark.width - row.spacing
            // An anchor that is given up would leave the text where it was.
            y: lineCount === 1 ? (mark.height - height) / 2 : 0
            text: problem.text
            color: ControlsStyle.invalid
            lineHeightMode: Text.FixedHeight
            lineHeight: problem.lineHeight
            wrapMode: Text.Wrap
            font { pixelSize: ControlsStyle.labelText; weight: Font.DemiBold }
            Accessible.ignored: true
        }
    }
}
