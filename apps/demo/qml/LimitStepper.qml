import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Demo 1.0

// The limit of a quantity, between buttons that lower and raise it.
RowLayout {
    id: stepper

    property SampleModel quantity
    // One press moves the limit to the next step of this ladder.
    property var steps: []

    function neighbour(direction) {
        const above = steps.filter(step => direction > 0 ? step > quantity.limit : step < quantity.limit)
        return direction > 0 ? above[0] : above[above.length - 1]
    }

    spacing: Theme.gap

    Text {
        Layout.fillWidth: true
        text: qsTr("Limit: %1").arg(stepper.quantity.limitText)
        textFormat: Text.PlainText
        color: Theme.text
        font.pixelSize: Theme.bodyText
        wrapMode: Text.WordWrap
    }
    ActionButton {
        Layout.preferredWidth: Theme.touch + 8
        filled: false
        text: "\u2212"
        Accessible.name: qsTr("Lower the limit of %1").arg(stepper.quantity.title)
        enabled: stepper.neighbour(-1) !== undefined
        onClicked: stepper.quantity.limit = stepper.neighbour(-1)
    }
    ActionButton {
        Layout.preferredWidth: Theme.touch + 8
        filled: false
        text: "+"
        Accessible.name: qsTr("Raise the limit of %1").arg(stepper.quantity.title)
        enabled: stepper.neighbour(1) !== undefined
        onClicked: stepper.quantity.limit = stepper.neighbour(1)
    }
}
