import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

/// One of an enumeration's choices; written at once. Choices that are not applicable now are not offered, but a
/// selected one is shown all the same.
Entry {
    id: entry

    /// Choices of an entry without an item, as { label, value }.
    property var choices: face.choices

    readonly property int position: choices.findIndex(choice => choice.value === numberOf(currentValue))

    // No value is not the number 0.
    function numberOf(value) {
        return value === null || value === "" ? NaN : Number(value)
    }

    // For a value that is not offered the item gives the label.
    function labelOf(value) {
        if (position >= 0)
            return choices[position].label
        if (value === undefined || value === null || value === "")
            return ""
        return (face.hasItem ? item.enumLabelForValue(value) : "") || lastLabel || String(value)
    }

    // Remains while the service, which has the labels, is away.
    property string lastLabel

    function take(index) {
        const chosen = choices[index]
        if (chosen && chosen.value !== numberOf(currentValue) && store(chosen.value) === "")
            committed(chosen.value)
        box.currentIndex = Qt.binding(() => entry.position)
    }

    isAcceptable: !mandatory || position >= 0 || !face.isApplicable
    rangeText: ""
    plainText: box.displayText

    T.ComboBox {
        id: box
        objectName: "box"
        Layout.fillWidth: true
        implicitHeight: ControlsStyle.touch
        focus: true
        model: entry.choices
        textRole: "label"
        currentIndex: entry.position
        displayText: entry.labelOf(entry.currentValue)
        font.pixelSize: ControlsStyle.bodyText
        Accessible.name: entry.label
        Accessible.description: entry.spoken(contentItem.text)
        Accessible.onPressAction: popup.open()
        Keys.onReturnPressed: event.accepted = openByKey()
        Keys.onEnterPressed: event.accepted = openByKey()
        // The same key would close the box again.
        Keys.onReleased: {
            event.accepted = isOpening && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            isOpening = false
        }

        property bool isOpening: false

        // False when it was open: then the key selects.
        function openByKey() {
            isOpening = !popup.visible
            if (isOpening)
                popup.open()
            return isOpening
        }

        // A new list resets the position.
        onModelChanged: currentIndex = Qt.binding(() => entry.position)
        onActivated: entry.take(index)

        contentItem: StyledText {
            readonly property bool mayElide: true

            leftPadding: ControlsStyle.mirrored ? ControlsStyle.margin + sign.width : ControlsStyle.margin
            rightPadding: ControlsStyle.mirrored ? ControlsStyle.margin : ControlsStyle.margin + sign.width
            text: box.displayText + (entry.unit !== "" && box.displayText !== "" ? " " + entry.unit : "")
            font: box.font
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        indicator: Icon {
            id: sign
            x: ControlsStyle.mirrored ? ControlsStyle.gap : box.width - width - ControlsStyle.gap
            y: (box.height - height) / 2
            name: "down"
            color: box.enabled ? ControlsStyle.primary : ControlsStyle.disabledText
        }
        background: EntryFrame {
            // Not box.popup, which would be made at once.
            isFocused: box.down
            isInvalid: entry.isInvalid
            quality: entry.face.quality

            FocusWatch { control: box }
        }
        popup: ChoiceList { box: box }
        delegate: ChoiceRow {
            width: ListView.view ? ListView.view.width : 0
            text: modelData.label
            isPresent: entry.position === index
            highlighted: box.highlightedIndex === index
        }
    }
}
