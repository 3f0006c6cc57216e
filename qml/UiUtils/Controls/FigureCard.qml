import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

/// A measured figure and its verdict. The room for the verdict is there before the verdict is.
Card {
    id: card

    property string label
    /// The figure with its unit; empty for none yet.
    property string value
    /// A line below, such as the limit.
    property string note

    spacing: 0
    showsVerdict: false
    Accessible.role: Accessible.StaticText
    Accessible.name: [label, value === "" ? "\u2013" : value, ControlsStyle.qualityWord(status)].filter(part => part !== "").join(" ")
    Accessible.description: note

    LabelText {
        Layout.fillWidth: true
        text: card.label
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    FigureText {
        Layout.fillWidth: true
        Layout.preferredHeight: metrics.height
        verticalAlignment: Text.AlignVCenter
        text: card.value === "" ? "\u2013" : card.value
        color: card.status === Status.None ? ControlsStyle.text : ControlsStyle.qualityColor(card.status)
        Accessible.ignored: true

        FontMetrics {
            id: metrics
            font { pixelSize: ControlsStyle.figureText; weight: Font.DemiBold }
        }
    }
    Item {
        Layout.fillWidth: true
        // Room for any verdict: two lines where the longest word needs them.
        implicitHeight: longest.oneLine + ControlsStyle.mm(4.8) > card.availableWidth ? 2 * ControlsStyle.mm(4) : ControlsStyle.mm(4.8)

        NaturalWidth {
            id: longest
            font { pixelSize: ControlsStyle.bodyText; weight: Font.DemiBold }
            text: [Status.Pass, Status.Marginal, Status.Fail].map(ControlsStyle.qualityWord).sort((a, b) => b.length - a.length)[0]
        }
        StatusMark {
            anchors.verticalCenter: parent.verticalCenter
            maximumWidth: parent.width
            status: card.status
            Accessible.ignored: true
        }
    }
    LabelText {
        Layout.fillWidth: true
        visible: text !== ""
        text: card.note
        Accessible.ignored: true
    }
}
