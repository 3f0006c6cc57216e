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
    /// What a screen reader says in addition to the name: what is wrong, or the permitted values.
    readonly property string note: face.isMissing ? qsTr("Not available")
                                 : !isReady ? qsTr("Not ready")
                                 : readOnly ? ""
                                 : complaint !== "" ? complaint : compact ? "" : rangeText

    // What a screen reader says besides the name: what is shown, and the note.
    function spoken(shown) {
        return [shown, note].filter(text => text !== "").join(", ")
    }

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
    implicitWidth: ControlsStyle.mm(60)
    implicitHeight: column.implicitHeight

    ItemFace {
        id: face
        item: entry.item
    }

    // Not a layout: its height would follow the width of wrapped texts within one change, in an endless circle.
    Column {
        id: column
        width: parent.width
        spacing: ControlsStyle.gap / 2

        RowLayout {
            width: parent.width
            visible: !entry.compact && (entry.label !== "" || face.quality !== Status.None)
            spacing: ControlsStyle.gap / 2

            StyledText {
                readonly property bool mayElide: true

                Layout.maximumWidth: column.width - (quality.visible ? quality.implicitWidth + ControlsStyle.smallText : 0) - 2 * ControlsStyle.gap
                text: entry.label
                muted: true
                font.pixelSize: ControlsStyle.smallText
                elide: Text.ElideRight
            }
            StyledText {
                Layout.fillWidth: true
                text: entry.mandatory && !entry.readOnly ? "*" : ""
                color: ControlsStyle.text
                font { pixelSize: ControlsStyle.smallText; weight: Font.DemiBold }
                Accessible.name: text === "" ? "" : qsTr("Must be filled in")
            }
            Icon {
                visible: quality.visible
                name: ControlsStyle.qualityIcon(face.quality)
                color: quality.color
                size: ControlsStyle.smallText
            }
            StyledText {
                id: quality
                visible: face.quality !== Status.None
                text: ControlsStyle.qualityWord(face.quality)
                color: ControlsStyle.qualityColor(face.quality)
                font { pixelSize: ControlsStyle.smallText; weight: Font.DemiBold }
            }
        }

        ColumnLayout {
            id: slot
            width: parent.width
            visible: !entry.readOnly
            // A disabled item loses the focus; a hidden editor would still receive keys.
            enabled: entry.isReady && !entry.readOnly && face.isApplicable
            spacing: ControlsStyle.touchGap
        }

        Item {
            width: parent.width
            height: Math.max(ControlsStyle.touch, plain.implicitHeight)
            visible: entry.readOnly

            StyledText {
                id: plain
                anchors { left: parent.left; right: state.left; rightMargin: ControlsStyle.gap; verticalCenter: parent.verticalCenter }
                text: entry.plainText === "" ? "\u2013" : entry.plainText
                wrapMode: Text.Wrap
                color: !entry.isReady ? ControlsStyle.mutedText
                     : face.quality !== Status.None ? ControlsStyle.qualityColor(face.quality) : ControlsStyle.text
                font { pixelSize: ControlsStyle.headingText; weight: face.quality !== Status.None ? Font.DemiBold : Font.Normal }
                Accessible.name: entry.label + " " + text
            }
            // Beside the value, where it moves nothing.
            StyledText {
                id: state
                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                text: entry.readOnly ? entry.note : ""
                muted: true
                font.pixelSize: ControlsStyle.smallText
            }
        }
        EntryNote {
            id: noteLine
            width: parent.width
            visible: !entry.readOnly
            keepsRoom: !entry.compact
            text: entry.news === "" ? entry.note : entry.complaint === "" || !entry.isReady ? entry.news : entry.complaint + "\n" + entry.news
            usualText: entry.rangeText
            isProblem: entry.isInvalid && entry.isReady
            isNews: entry.news !== ""
            isActive: entry.activeFocus
            editor: slot
        }
    }
}
