import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

/// A number between two buttons, which step within the item's limits and repeat while they are held. The arrow keys and
/// Page Up and Page Down do the same.
NumberFace {
    id: entry

    component StepButton: TouchButton {
        id: button

        property int direction
        // A release after repeats is not another step.
        property int repeats: 0

        function act() {
            if (pressed)
                ++repeats
            if (pressed || repeats === 0)
                entry.advance(direction)
            if (pressed)
                return
            repeats = 0
            entry.commit()
        }

        focusPolicy: Qt.NoFocus
        autoRepeat: true
        implicitWidth: ControlsStyle.mm(11)
        // A gesture that reaches the limit goes on until the finger is lifted.
        enabled: entry.draft !== undefined || (direction < 0 ? entry.number > entry.least : entry.number < entry.most)
        onClicked: act()
        onCanceled: {
            repeats = 0
            entry.commit()
        }
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: ControlsStyle.touchGap

        StepButton {
            objectName: "lessButton"
            direction: -1
            iconName: "remove"
            Accessible.name: qsTr("Less: %1").arg(entry.label)
        }
        EntryFrame {
            id: frame

            // What assistive technology reads of a control with a range.
            readonly property real value: entry.number
            readonly property real minimumValue: entry.least
            readonly property real maximumValue: entry.most
            readonly property real stepSize: entry.stepSize

            objectName: "stepper"
            Layout.fillWidth: true
            Layout.minimumWidth: ControlsStyle.mm(14)
            Layout.preferredHeight: ControlsStyle.touch
            focus: true
            activeFocusOnTab: true
            isInvalid: entry.isInvalid
            quality: entry.face.quality
            Accessible.role: Accessible.SpinBox
            Accessible.name: entry.label
            Accessible.description: [entry.numberText, entry.note].filter(part => part !== "").join(", ")
            Accessible.focusable: true
            Accessible.onIncreaseAction: { entry.advance(1); entry.commit() }
            Accessible.onDecreaseAction: { entry.advance(-1); entry.commit() }
            Keys.onPressed: {
                const steps = { [Qt.Key_Up]: 1, [Qt.Key_Down]: -1, [Qt.Key_PageUp]: 10, [Qt.Key_PageDown]: -10 }[event.key]
                event.accepted = steps !== undefined
                if (event.accepted)
                    entry.advance(steps)
            }
            Keys.onReleased: {
                if (!event.isAutoRepeat)
                    entry.commit()
            }
            onActiveFocusChanged: {
                if (!activeFocus)
                    entry.commit()
            }

            BodyText {
                anchors { fill: parent; margins: ControlsStyle.gap }
                text: entry.hasNumber ? entry.numberText : "\u2013"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                wrapMode: Text.NoWrap
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: ControlsStyle.labelText
                font.weight: Font.DemiBold
                Accessible.ignored: true
            }
            FocusWatch {}
        }
        StepButton {
            objectName: "moreButton"
            direction: 1
            iconName: "add"
            Accessible.name: qsTr("More: %1").arg(entry.label)
        }
    }
}
