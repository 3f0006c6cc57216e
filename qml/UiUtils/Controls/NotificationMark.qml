import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// The kind of a notification, readable without colour too.
Rectangle {
    id: mark

    property int kind: KIVNotification.Notice

    readonly property string word: kind === KIVNotification.Error ? qsTr("Error")
                                 : kind === KIVNotification.Request ? qsTr("Question") : qsTr("Notice")

    implicitWidth: ControlsStyle.mm(6)
    implicitHeight: implicitWidth
    radius: width / 2
    color: kind === KIVNotification.Error ? ControlsStyle.invalid : ControlsStyle.information
    Accessible.role: Accessible.StaticText
    Accessible.name: word

    Text {
        anchors.centerIn: parent
        text: mark.kind === KIVNotification.Error ? "!" : mark.kind === KIVNotification.Request ? "?" : "i"
        textFormat: Text.PlainText
        color: ControlsStyle.primaryText
        font { pixelSize: ControlsStyle.headingText; bold: true }
        Accessible.ignored: true
    }
}
