import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

/// Two to five choices beside each other: those of an item, written at once, or those of `model`. The arrow keys choose.
Entry {
    id: entry

    /// The choices without an item: texts, or { label, value }. A text is its own value.
    property var model: []
    readonly property var choices: face.hasItem ? face.choices
        : model.map(choice => choice.label !== undefined ? choice : { label: choice, value: choice })
    /// The position of the present choice; -1 for none.
    readonly property int currentIndex: choices.findIndex(choice => choice.value === presentValue)
    // No value is not the number 0.
    readonly property var presentValue: !face.hasItem ? currentValue
        : currentValue === null || currentValue === "" ? undefined : Number(currentValue)

    // Choices without a label, as in the header of a page, name themselves.
    readonly property string spokenName: !compact ? label
        : model.map(choice => choice.label !== undefined ? choice.label : choice).join(", ")

    function take(index) {
        const chosen = choices[index]
        if (chosen && index !== currentIndex && isReady && store(chosen.value) === "")
            committed(chosen.value)
    }

    function step(direction, event) {
        const next = currentIndex + (ControlsStyle.mirrored ? -direction : direction)
        event.accepted = next >= 0 && next < choices.length
        if (event.accepted)
            take(next)
    }

    implicitWidth: Math.max(compact ? 0 : ControlsStyle.mm(60), choices.length * row.widest)
    rangeText: ""
    compact: !face.hasItem && label === ""
    plainText: currentIndex >= 0 ? choices[currentIndex].label : face.valueString
    isAcceptable: !mandatory || currentIndex >= 0 || !face.isApplicable

    Rectangle {
        objectName: "segments"
        Layout.fillWidth: true
        radius: ControlsStyle.radius
        color: enabled ? ControlsStyle.field : ControlsStyle.disabledField
        border { width: ControlsStyle.line; color: entry.isInvalid ? ControlsStyle.invalid : ControlsStyle.border }
        focus: true
        activeFocusOnTab: true
        Accessible.role: Accessible.Grouping
        // Choices without a label, as in the header of a page, name themselves.
        Accessible.name: entry.spokenName
        Accessible.description: [entry.plainText, entry.note].filter(part => part !== "").join(", ")
        Keys.onLeftPressed: entry.step(-1, event)
        Keys.onRightPressed: entry.step(1, event)

        RowLayout {
            id: row
            // All are as wide as the widest wants to be.
            readonly property real widest: Array.from(children).reduce((width, child) => Math.max(width, child.implicitWidth), 0)
            anchors.fill: parent
            spacing: 0
            // As bindings they would be evaluated within themselves, when a text takes another line.
            onImplicitWidthChanged: parent.implicitWidth = implicitWidth
            onImplicitHeightChanged: parent.implicitHeight = implicitHeight

            Repeater {
                model: entry.choices

                Segment {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    Layout.preferredWidth: row.widest
                    text: modelData.label
                    checked: entry.currentIndex === index
                    isDivided: index > 0 && entry.currentIndex !== index && entry.currentIndex !== index - 1
                    // A button that is checked would uncheck itself.
                    onToggled: checked = Qt.binding(() => entry.currentIndex === index)
                    onClicked: entry.take(index)
                }
            }
        }
        FocusWatch {}
    }
}
