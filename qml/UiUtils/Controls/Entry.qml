import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

/// What all entries have in common: label, quality, the editor, and the line with the error or the permitted values.
FocusScope {
    id: entry

    /// The service item or local item that is edited. Without one an entry works on `value` alone.
    property var item
    /// The value of an entry without an item.
    property var value
    /// What stands above the editor; the item's label.
    property string label: face.label
    /// The unit of the value; the item's.
    property string unit: face.unit
    /// Whether the value is shown as text; the item's.
    property bool readOnly: face.readOnly
    /// Whether the entry must not be empty; the item's.
    property bool mandatory: face.mandatory
    /// The type of the value, as items name it; the item's.
    property string type: face.type
    /// The smallest value, or the length of the shortest text; undefined for none; the item's.
    property var minimum: face.minimum
    /// The largest value, or the length of the longest text; undefined for none; the item's.
    property var maximum: face.maximum
    /// The line about the permitted values.
    property string rangeText: face.rangeDescription
    /// In a row of a list: without label and range.
    property bool compact: false
    /// Replaces writing to the item; takes the value and returns why it was rejected, or an empty text.
    property var storeWith: null

    /// Whether the entry accepts input.
    property bool isReady: face.isReady
    /// The item's value, or `value` without an item.
    readonly property var currentValue: face.hasItem ? face.value : value
    readonly property alias face: face
    /// What a screen reader says in addition to the name.
    readonly property alias note: noteText.text

    // Set by the editors.
    property string plainText: face.valueString
    property string complaint: face.refusal
    /// Whether the entry shows an error.
    property bool isInvalid: complaint !== ""
    /// A line about what has happened meanwhile, such as another value from the service.
    property string news
    // Whether the content of the editor could be committed.
    property bool isAcceptable: true

    default property alias content: slot.data

    /// A value was written; emitted after every commit.
    signal committed(var value)

    function store(newValue) {
        if (storeWith)
            return storeWith(newValue)
        if (face.hasItem)
            return face.write(newValue)
        value = newValue
        return ""
    }

    // The item to which this entry reported content that is not acceptable.
    property var blockedItem: null

    // A container checks `valueOk` only when a value is reported.
    function tellWhetherOk() {
        if (!face.isLocal || !item)
            return
        if (item.valueOk !== isAcceptable)
            item.valueOk = isAcceptable
        blockedItem = isAcceptable ? null : item
        UiDataContainer.slotValueUpdated()
    }

    // The typed text is removed with the entry, so that the item's own value counts again.
    function releaseItem() {
        const left = blockedItem
        blockedItem = null
        if (!left || left.valueOk)
            return
        const isEmpty = left.value === undefined || left.value === null || left.value === ""
        left.valueOk = !(left.mandatory && isEmpty)
        UiDataContainer.slotValueUpdated()
    }

    onIsAcceptableChanged: tellWhetherOk()
    onMandatoryChanged: tellWhetherOk()
    onItemChanged: {
        if (blockedItem !== item)
            releaseItem()
        // When everything here describes the new one.
        Qt.callLater(tellWhetherOk)
    }
    Component.onCompleted: tellWhetherOk()
    Component.onDestruction: releaseItem()

    Connections {
        target: face
        function onIsLocalChanged() { entry.tellWhetherOk() }
    }

    visible: face.isApplicable
    implicitWidth: 320
    implicitHeight: column.implicitHeight

    ItemFace {
        id: face
        item: entry.item
    }

    // Not a layout: its height would follow the width of wrapped texts within one change, in an endless circle.
    Column {
        id: column
        width: parent.width
        spacing: 3

        RowLayout {
            width: parent.width
            visible: !entry.compact && (entry.label !== "" || face.quality !== Status.None)
            spacing: 4

            Text {
                Layout.maximumWidth: column.width - qualityWord.implicitWidth - 24
                text: entry.label
                textFormat: Text.PlainText
                color: ControlsStyle.mutedText
                font.pixelSize: ControlsStyle.smallText
                elide: Text.ElideRight
            }
            Text {
                Layout.fillWidth: true
                text: entry.mandatory && !entry.readOnly ? "*" : ""
                textFormat: Text.PlainText
                color: ControlsStyle.invalid
                font { pixelSize: ControlsStyle.smallText; bold: true }
            }
            Text {
                id: qualityWord
                text: ControlsStyle.qualityWord(face.quality)
                textFormat: Text.PlainText
                color: ControlsStyle.qualityColor(face.quality)
                font { pixelSize: ControlsStyle.smallText; bold: true }
            }
        }

        ColumnLayout {
            id: slot
            width: parent.width
            visible: !entry.readOnly
            // A disabled item loses the focus; a hidden editor would still receive keys.
            enabled: entry.isReady && !entry.readOnly && face.isApplicable
            spacing: ControlsStyle.gap
        }

        Text {
            width: parent.width
            height: Math.max(ControlsStyle.touch, implicitHeight)
            visible: entry.readOnly
            text: entry.plainText === "" ? "\u2013" : entry.plainText
            textFormat: Text.PlainText
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.Wrap
            color: !entry.isReady ? ControlsStyle.mutedText
                 : face.quality !== Status.None ? ControlsStyle.qualityColor(face.quality) : ControlsStyle.text
            font { pixelSize: ControlsStyle.headingText; bold: face.quality !== Status.None }
            Accessible.role: Accessible.StaticText
            Accessible.name: entry.label + " " + text
        }
        Text {
            id: noteText
            width: parent.width
            visible: text !== ""
            text: face.isMissing ? qsTr("Not available")
                : !entry.isReady ? qsTr("Not ready")
                : entry.readOnly ? ""
                : entry.complaint !== "" ? entry.complaint
                : entry.compact ? "" : entry.rangeText
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            color: entry.isInvalid && entry.isReady ? ControlsStyle.invalid : ControlsStyle.mutedText
            font { pixelSize: ControlsStyle.smallText; bold: entry.isInvalid && entry.isReady }
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Text {
            width: parent.width
            visible: text !== "" && !entry.readOnly
            text: entry.news
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            color: ControlsStyle.news
            font.pixelSize: ControlsStyle.smallText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
