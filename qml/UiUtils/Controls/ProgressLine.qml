import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

/// How far something is: a line, and below it a text with room of its own.
T.ProgressBar {
    id: bar

    /// What is being done, or how long it takes.
    property string text

    implicitWidth: ControlsStyle.mm(40)
    implicitHeight: implicitContentHeight
    Accessible.role: Accessible.ProgressBar
    Accessible.name: text
    // A value alone is not announced; in steps, so that it does not talk all the time.
    Accessible.description: indeterminate ? "" : Math.floor(10 * value) * 10 + " " + Qt.locale().percent

    contentItem: Item {
        implicitHeight: track.height + (note.text === "" ? 0 : note.y - track.height + note.implicitHeight)

        Rectangle {
            id: track
            width: parent.width
            height: ControlsStyle.mm(1.6)
            radius: height / 2
            color: ControlsStyle.pressed
            clip: true

            Rectangle {
                readonly property real at: bar.indeterminate ? 0.75 * run.at : 0
                x: (bar.mirrored ? 1 - at - width / track.width : at) * track.width
                width: track.width * (bar.indeterminate ? 0.25 : bar.position)
                height: track.height
                radius: track.radius
                color: ControlsStyle.primary
            }
        }
        LabelText {
            id: note
            y: track.height + ControlsStyle.gap / 2
            width: parent.width
            text: bar.text
            Accessible.ignored: true
        }
    }

    SequentialAnimation {
        id: run
        property real at: 0
        running: bar.indeterminate && bar.visible
        loops: Animation.Infinite
        NumberAnimation { target: run; property: "at"; from: 0; to: 1; duration: 900; easing.type: Easing.InOutQuad }
        NumberAnimation { target: run; property: "at"; from: 1; to: 0; duration: 900; easing.type: Easing.InOutQuad }
    }
}
