import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0

/// The line at the top of the screen: a title, the states of the instrument, the clock.
Rectangle {
    id: bar

    property string title
    /// Whether the clock is shown.
    property bool clock: true
    /// What stands at the end, before the clock: StatusItems.
    property alias items: rightRow.data
    default property alias content: leftRow.data

    implicitHeight: ControlsStyle.touch
    color: ControlsStyle.card
    Accessible.role: Accessible.StatusBar
    Accessible.name: title

    RowLayout {
        anchors { fill: parent; leftMargin: ControlsStyle.margin; rightMargin: ControlsStyle.margin }
        spacing: ControlsStyle.gap

        BodyText {
            Layout.maximumWidth: bar.width / 3
            visible: text !== ""
            text: bar.title
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
            font.weight: Font.DemiBold
        }
        RowLayout {
            id: leftRow
            spacing: 0
        }
        Item { Layout.fillWidth: true }
        RowLayout {
            id: rightRow
            Layout.fillWidth: false
            spacing: 0
        }
        BodyText {
            id: time

            property date now: new Date

            objectName: "clock"
            Layout.leftMargin: ControlsStyle.gap
            visible: bar.clock
            // Some locales have seconds in the short form.
            text: now.toLocaleTimeString(Qt.locale(), Qt.locale().timeFormat(Locale.ShortFormat).replace(/[:.]ss/, ""))
            wrapMode: Text.NoWrap
            font.weight: Font.DemiBold

            // Until the next minute begins.
            Timer {
                interval: 60 * 1000 - time.now.getTime() % (60 * 1000)
                running: bar.clock && bar.visible
                repeat: true
                onTriggered: time.now = new Date
            }
        }
    }
    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: ControlsStyle.line
        color: ControlsStyle.divider
    }
}
