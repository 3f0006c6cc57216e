import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0

/// One of an enumeration's choices; written at once. Choices that are not applicable now are not offered, but a
/// selected one is shown all the same.
Entry {
    id: entry

    /// Choices of an entry without an item, as { label, value }.
    property var choices: face.choices

    readonly property int position: choices.findIndex(choice => choice.value === Number(currentValue))

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
        if (chosen && chosen.value !== Number(currentValue) && store(chosen.value) === "")
            committed(chosen.value)
        box.currentIndex = Qt.binding(() => entry.position)
    }

    isAcceptable: !mandatory || position >= 0 || !face.isApplicable
    rangeText: ""
    plainText: box.displayText

    ComboBox {
        id: box
        objectName: "box"
        Layout.fillWidth: true
        implicitHeight: ControlsStyle.touch
        focus: true
        model: entry.choices
        textRole: "label"
        currentIndex: entry.position
        displayText: entry.labelOf(entry.currentValue)
        leftPadding: 0
        font.pixelSize: ControlsStyle.bodyText
        Accessible.name: entry.label
        Accessible.description: entry.note
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

        contentItem: Text {
            leftPadding: ControlsStyle.margin
            text: box.displayText + (entry.unit !== "" && box.displayText !== "" ? " " + entry.unit : "")
            textFormat: Text.PlainText
            font: box.font
            color: box.enabled ? ControlsStyle.text : ControlsStyle.mutedText
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
        }
        indicator: Text {
            x: box.width - width - ControlsStyle.margin
            y: (box.height - height) / 2
            text: "\u25be"
            textFormat: Text.PlainText
            font.pixelSize: ControlsStyle.headingText
            color: box.enabled ? ControlsStyle.primary : ControlsStyle.border
        }
        background: EntryFrame {
            isFocused: box.activeFocus
            isInvalid: entry.isInvalid
            quality: entry.face.quality
        }
        delegate: ItemDelegate {
            id: choice
            width: box.width
            height: ControlsStyle.touch
            highlighted: box.highlightedIndex === index
            contentItem: Text {
                leftPadding: 4
                text: modelData.label
                textFormat: Text.PlainText
                color: ControlsStyle.text
                font { pixelSize: ControlsStyle.bodyText; bold: entry.position === index }
                verticalAlignment: Text.AlignVCenter
                elide: Text.ElideRight
            }
            background: Rectangle {
                color: choice.highlighted ? ControlsStyle.pressed : ControlsStyle.field
            }
        }
    }
}
