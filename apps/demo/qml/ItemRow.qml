import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Demo 1.0

// A setting on a page: its name, the control of the derived row with the unit in it, and the permitted values. Hidden
// while the setting has no meaning.
ColumnLayout {
    id: row

    property KivData item: null
    readonly property bool applies: item !== null && item.applicable
    // Whether the service can accept the value in the control.
    property bool acceptable: true
    readonly property bool changed: applies && (entry.pending || !acceptable)
    readonly property alias entry: entry
    // Whether a rejection concerns this setting; when settings are applied together, all of them receive it.
    property bool blamed: true
    readonly property color frameColor: {
        if (!acceptable || blamed && entry.refusal)
            return Theme.fail
        return changed ? Theme.focus : Theme.border
    }
    readonly property color fillColor: !enabled ? Theme.background : changed ? Theme.notice : Theme.card
    // Width of the unit at the right end of the control.
    readonly property real unitRoom: unitText.text ? unitText.width + 2 * Theme.margin : Theme.gap
    default property alias control: controlPlace.data

    // The item is about to be changed.
    signal edited
    // The service rejected the change.
    signal refused(string words)

    // Shows the item's value again, whatever the control contains. Derived rows add to this.
    function reset() {}
    // Enters a text as a user does; returns the previous one.
    function enter(text) { return "" }

    spacing: 4
    visible: applies
    enabled: applies && item.isReady

    ItemEntry {
        id: entry
        item: row.item
        onEdited: row.edited()
        onRefused: row.refused(words)
    }
    RowLayout {
        spacing: 6

        Text {
            text: row.item ? row.item.label : ""
            textFormat: Text.PlainText
            color: Theme.mutedText
            font.pixelSize: Theme.smallText
        }
        ChangeMark { visible: row.changed }
        Text {
            Layout.fillWidth: true
            text: row.changed ? qsTr("not applied") : ""
            textFormat: Text.PlainText
            color: Theme.text
            font.pixelSize: Theme.smallText
        }
    }
    Item {
        id: controlPlace
        Layout.fillWidth: true
        implicitHeight: Theme.touch

        Text {
            id: unitText
            z: 1
            anchors { right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
            // The value has priority.
            width: Math.min(implicitWidth, parent.width / 3)
            text: row.item ? row.item.unitString : ""
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: Theme.mutedText
            font.pixelSize: Theme.bodyText
        }
    }
    Text {
        Layout.fillWidth: true
        readonly property string refusal: row.blamed ? row.entry.refusal : ""
        readonly property string range: row.item ? row.item.rangeDescription.trim() : ""
        // Without limits only the dash of the range would remain.
        text: refusal || (/\w/.test(range) ? range : "")
        textFormat: Text.PlainText
        visible: text
        color: refusal || !row.acceptable ? Theme.fail : Theme.mutedText
        font.pixelSize: Theme.smallText
        wrapMode: Text.Wrap
    }
}
