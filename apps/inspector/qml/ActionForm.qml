import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0

// Carries an action out, with an argument where it takes one.
ColumnLayout {
    id: form

    required property QtObject item
    property string reply
    property string error

    spacing: ControlsStyle.gap
    onItemChanged: reply = error = ""

    TextEntry {
        id: argument
        objectName: "argumentEntry"
        Layout.fillWidth: true
        label: qsTr("Argument")
    }
    TouchButton {
        objectName: "runButton"
        text: qsTr("Carry out")
        iconName: "run"
        filled: true
        onClicked: {
            form.error = ""
            form.reply = form.item.invokeWithStringArg(argument.text)
        }
    }
    Connections {
        target: form.item
        function onErrorChanged(id, error) { form.error = error }
    }
    BodyText {
        objectName: "actionReply"
        Layout.fillWidth: true
        visible: text !== ""
        text: form.reply
    }
    InlineProblem {
        objectName: "actionError"
        Layout.fillWidth: true
        text: form.error
    }
}
