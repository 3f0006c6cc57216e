import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0
import UiUtils.Inspector 1.0

// Services and their items, beside a page, below a demo or in a window of its own.
Rectangle {
    id: panel

    required property Inspector inspector
    // The item whose details are shown; null for none.
    property QtObject chosen: null
    readonly property bool isWide: width > ControlsStyle.mm(170)

    // Shows the details of an item.
    function show(item) {
        chosen = item
        tabs.currentIndex = 0
    }

    implicitWidth: ControlsStyle.mm(100)
    implicitHeight: ControlsStyle.mm(110)
    color: ControlsStyle.background
    LayoutMirroring.enabled: ControlsStyle.mirrored
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Inspector")

    // Where the page beside it ends.
    Rectangle {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: ControlsStyle.line
        color: ControlsStyle.border
        z: 1
    }
    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        TouchTabs {
            id: tabs
            objectName: "inspectorTabs"
            Layout.fillWidth: true
            name: qsTr("Inspector")
            model: [{ name: "items", text: qsTr("Items") }, { name: "services", text: qsTr("Services") }, { name: "log", text: qsTr("Changes") }]
        }
        StackLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            currentIndex: tabs.currentIndex

            ItemsPage { inspector: panel.inspector; chosen: panel.chosen; isWide: panel.isWide; onChosenByUser: panel.show(item) }
            // What nobody looks at costs nothing.
            Loader { active: tabs.currentIndex === 1; sourceComponent: ServicesPage { inspector: panel.inspector } }
            Loader {
                active: tabs.currentIndex === 2
                sourceComponent: LogPage {
                    log: panel.inspector.log
                    recording: panel.inspector.recording
                    onChosen: panel.show(panel.inspector.item(id))
                }
            }
        }
    }
}
