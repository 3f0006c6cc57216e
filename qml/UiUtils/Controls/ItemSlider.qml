import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0
import "steps.js" as Steps

/// A number on a line between the item's limits; written when the finger leaves the line. An item without both limits has
/// no line.
NumberFace {
    id: entry

    readonly property bool hasLine: isFinite(least) && isFinite(most) && least < most

    RowLayout {
        Layout.fillWidth: true
        spacing: ControlsStyle.margin

        T.Slider {
            id: slider
            // Keys press it, too.
            property bool isByKey: false

            objectName: "slider"
            Layout.fillWidth: true
            implicitHeight: ControlsStyle.touch
            focus: true
            enabled: entry.hasLine
            // From multiple to multiple of the step, of which the slider counts from its begin; what it sets stays within
            // the limits.
            from: entry.hasLine ? Math.floor(Steps.clean(entry.least / entry.stepSize)) * entry.stepSize : 0
            to: entry.hasLine ? Math.ceil(Steps.clean(entry.most / entry.stepSize)) * entry.stepSize : 1
            stepSize: entry.stepSize
            snapMode: T.Slider.SnapAlways
            Accessible.name: entry.label
            Accessible.description: [entry.numberText, entry.note].filter(part => part !== "").join(", ")
            onMoved: entry.draft = isByKey ? Steps.next(entry.number, value < entry.number ? -1 : 1, entry.stepSize, entry.least, entry.most)
                                           : Steps.nearest(value, entry.stepSize, entry.least, entry.most)
            onPressedChanged: {
                if (pressed)
                    return
                entry.commit()
                // What was beyond a limit did not change the number, so that the binding does not know of it.
                value = entry.number
            }
            Keys.onPressed: {
                isByKey = true
                event.accepted = false
            }
            onActiveFocusChanged: {
                if (!activeFocus)
                    entry.commit()
            }
            Keys.onReleased: {
                event.accepted = false
                if (event.isAutoRepeat)
                    return
                isByKey = false
                entry.commit()
            }

            // The user's gesture has ended the binding.
            Binding {
                target: slider
                property: "value"
                value: entry.number
            }

            background: Rectangle {
                x: slider.handle.width / 2
                y: (slider.height - height) / 2
                width: slider.width - slider.handle.width
                height: ControlsStyle.mm(1.4)
                radius: height / 2
                color: ControlsStyle.pressed
                border { width: ControlsStyle.line; color: ControlsStyle.border }

                Rectangle {
                    x: slider.mirrored ? parent.width - width : 0
                    width: slider.position * parent.width
                    height: parent.height
                    radius: parent.radius
                    color: slider.enabled ? ControlsStyle.primary : ControlsStyle.disabledText
                }
            }
            handle: Rectangle {
                x: slider.visualPosition * (slider.width - width)
                y: (slider.height - height) / 2
                width: ControlsStyle.mm(6)
                height: width
                radius: width / 2
                color: !slider.enabled ? ControlsStyle.disabledField : slider.pressed ? ControlsStyle.primaryPressed : ControlsStyle.primary
                border { width: 2 * ControlsStyle.line; color: ControlsStyle.field }

                FocusFrame {
                    control: slider
                    radius: height / 2
                }
            }
        }
        // As wide as the widest figure, so that the line does not change its length.
        BodyText {
            id: figure
            Layout.preferredWidth: Math.max(low.oneLine, high.oneLine)
            text: entry.hasNumber ? entry.numberText : "\u2013"
            horizontalAlignment: Text.AlignRight
            wrapMode: Text.NoWrap
            font.weight: Font.DemiBold
            Accessible.ignored: true

            NaturalWidth { id: low; font: figure.font; text: entry.hasLine ? entry.textOf(entry.least) + " " + entry.unit : "" }
            NaturalWidth { id: high; font: figure.font; text: entry.hasLine ? entry.textOf(entry.most) + " " + entry.unit : "" }
        }
    }
}
