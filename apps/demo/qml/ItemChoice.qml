import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils.Demo 1.0

// One of the choices of a service's setting.
ItemRow {
    id: row

    // Selects the choice with that label; returns the previous label.
    function enter(text) {
        const before = box.displayText
        for (let i = 0; i < item.enumCount; ++i) {
            if (item.enumLabel(i) === text)
                entry.enter(item.enumValue(i))
        }
        return before
    }

    ComboBox {
        id: box
        anchors.fill: parent
        activeFocusOnTab: true
        font.pixelSize: Theme.bodyText
        model: row.item ? row.item.enumCount : 0
        currentIndex: row.item ? row.item.enumIndex(row.item.value) : -1
        displayText: row.item ? row.item.enumLabelForValue(row.item.value) : ""
        Accessible.name: row.item ? row.item.label : ""
        onActivated: {
            if (row.item.applicableAt(index))
                row.entry.enter(row.item.enumValue(index))
            // The user's selection has ended the binding of the index to the item.
            currentIndex = Qt.binding(() => row.item ? row.item.enumIndex(row.item.value) : -1)
        }

        contentItem: Text {
            leftPadding: Theme.gap
            text: box.displayText
            textFormat: Text.PlainText
            font: box.font
            color: box.enabled ? Theme.text : Theme.disabled
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
        }
        indicator: Text {
            anchors { right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
            text: "\u25be"
            textFormat: Text.PlainText
            color: Theme.mutedText
            font.pixelSize: Theme.headingText
        }
        background: Rectangle {
            radius: Theme.radius
            color: row.fillColor
            border { width: row.changed ? 2 : 1; color: row.frameColor }

            FocusFrame { visible: box.activeFocus }
        }
        delegate: ItemDelegate {
            width: box.width
            height: Theme.touch
            enabled: row.item.applicableAt(index)
            highlighted: box.highlightedIndex === index
            text: row.item.enumLabel(index)

            contentItem: Text {
                text: parent.text
                textFormat: Text.PlainText
                font { pixelSize: Theme.bodyText; bold: index === box.currentIndex }
                color: parent.enabled ? Theme.text : Theme.disabled
                verticalAlignment: Text.AlignVCenter
            }
            background: Rectangle {
                color: parent.highlighted ? Theme.background : Theme.card
            }
        }
    }
}
