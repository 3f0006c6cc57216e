import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// The kind of a notification, readable without colour too.
Rectangle {
    id: mark

    property int kind: KIVNotification.Notice

    readonly property string word: kind === KIVNotification.Error ? qsTr("Error")
                                 : kind === KIVNotification.Request ? qsTr("Question") : qsTr("Notice")

    implicitWidth: 32
    implicitHeight: 32
    radius: width / 2
    color: kind === KIVNotification.Error ? ControlsStyle.fail : ControlsStyle.primary
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
