import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0

// A part of a date or time between two buttons, which turn it without an end.
FocusScope {
    id: line

    property string name
    property string text

    signal turned(int direction)

    implicitWidth: ControlsStyle.mm(40)
    implicitHeight: ControlsStyle.touch

    RowLayout {
        anchors.fill: parent
        spacing: ControlsStyle.gap

        TouchButton {
            objectName: "less"
            focusPolicy: Qt.NoFocus
            autoRepeat: true
            iconName: "back"
            Accessible.name: qsTr("%1 before").arg(line.name)
            onClicked: line.turned(-1)
        }
        BodyText {
            Layout.fillWidth: true
            Layout.fillHeight: true
            text: line.text
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.NoWrap
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: ControlsStyle.labelText
            font.weight: Font.DemiBold
            focus: true
            activeFocusOnTab: true
            Accessible.role: Accessible.SpinBox
            Accessible.name: line.name + " " + text
            Accessible.focusable: true
            Accessible.onIncreaseAction: line.turned(1)
            Accessible.onDecreaseAction: line.turned(-1)
            Keys.onUpPressed: line.turned(1)
            Keys.onDownPressed: line.turned(-1)
            Keys.onLeftPressed: line.turned(ControlsStyle.mirrored ? 1 : -1)
            Keys.onRightPressed: line.turned(ControlsStyle.mirrored ? -1 : 1)

            FocusWatch { within: true }
        }
        TouchButton {
            objectName: "more"
            focusPolicy: Qt.NoFocus
            autoRepeat: true
            iconName: "forward"
            Accessible.name: qsTr("%1 after").arg(line.name)
            onClicked: line.turned(1)
        }
    }
}
