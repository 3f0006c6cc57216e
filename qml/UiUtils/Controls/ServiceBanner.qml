import QtQuick 2.15
import UiUtils.Controls 1.0

/// Says that a service is away, over whatever stands in its place: nothing moves when it comes and goes. A KitPage with
/// `service` has one over its title.
Rectangle {
    id: banner

    /// The name of the service, as in `services.NAME`.
    property string service
    property string text: qsTr("\"%1\" does not answer. What is shown may be old; the page goes on by itself when the service is back.").arg(service)
    /// Whether the service is away.
    readonly property bool isAway: service !== "" && !(manifest && manifest.isAvailable)
    readonly property var manifest: typeof services !== "undefined" ? services[service] : undefined

    implicitWidth: ControlsStyle.mm(60)
    implicitHeight: Math.max(ControlsStyle.touch, words.implicitHeight + ControlsStyle.gap)
    opacity: isAway ? 1 : 0
    enabled: isAway
    z: 5
    color: ControlsStyle.notice
    radius: ControlsStyle.radius
    border { width: ControlsStyle.line; color: ControlsStyle.warning }
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text
    Accessible.ignored: !isAway

    Icon {
        id: mark
        anchors { left: parent.left; leftMargin: ControlsStyle.gap; verticalCenter: parent.verticalCenter }
        name: "warning"
        color: ControlsStyle.warning
    }
    BodyText {
        id: words
        anchors { left: mark.right; right: parent.right; leftMargin: ControlsStyle.gap; rightMargin: ControlsStyle.gap; verticalCenter: parent.verticalCenter }
        text: banner.text
        maximumLineCount: 2
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
