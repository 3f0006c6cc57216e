import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

/// A verdict by icon, word and colour; without a verdict nothing is shown.
Row {
    id: mark

    /// A code of Status.
    property int status: Status.None
    /// The word; by default that of the code.
    property string text: ControlsStyle.qualityWord(status)
    /// Where the word takes a second line.
    property real maximumWidth: Infinity
    /// In the size of headings.
    property bool large: false

    visible: status !== Status.None && text !== ""
    spacing: ControlsStyle.gap / 2
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    readonly property NaturalWidth natural: NaturalWidth {
        font: word.font
        text: mark.text
    }

    Icon {
        id: icon
        anchors.verticalCenter: parent.verticalCenter
        name: ControlsStyle.qualityIcon(mark.status)
        color: ControlsStyle.qualityColor(mark.status)
        size: mark.large ? ControlsStyle.mm(6) : ControlsStyle.mm(4)
    }
    StyledText {
        id: word
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(mark.natural.oneLine, mark.maximumWidth - icon.width - mark.spacing)
        wrapMode: Text.Wrap
        text: mark.text
        color: ControlsStyle.qualityColor(mark.status)
        font { pixelSize: mark.large ? ControlsStyle.headingText : ControlsStyle.bodyText; weight: Font.DemiBold }
        Accessible.ignored: true
    }
}
