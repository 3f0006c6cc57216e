import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

/// Tabs of equal width. The arrow keys go from tab to tab.
T.TabBar {
    id: tabs

    /// The tabs: texts, or { text, icon, marked, name }. A marked one needs attention; the name is an objectName.
    property var model: []
    /// What a screen reader calls the tabs.
    property string name: qsTr("Pages")
    /// Whether the tabs are the navigation below the pages of a program: icons with a word.
    property bool navigation: false
    // Such as a tap on the tab that is shown already.
    /// A tab was tapped or chosen by a key, perhaps the present one.
    signal chosen(int index)

    function step(direction, event) {
        const next = currentIndex + (mirrored ? -direction : direction)
        event.accepted = next >= 0 && next < count
        if (!event.accepted)
            return
        currentIndex = next
        chosen(next)
    }

    implicitWidth: contentItem.implicitWidth
    implicitHeight: navigation ? ControlsStyle.mm(11) : ControlsStyle.mm(10)
    activeFocusOnTab: true
    Accessible.role: Accessible.PageTabList
    Accessible.name: name
    Keys.onLeftPressed: step(-1, event)
    Keys.onRightPressed: step(1, event)

    contentItem: ListView {
        model: tabs.contentModel
        currentIndex: tabs.currentIndex
        orientation: ListView.Horizontal
        interactive: false
        implicitWidth: tabs.count * ControlsStyle.mm(20)
        boundsBehavior: Flickable.StopAtBounds
    }
    background: Rectangle {
        color: tabs.navigation ? ControlsStyle.card : "transparent"

        Rectangle {
            y: tabs.navigation ? 0 : parent.height - height
            width: parent.width
            height: ControlsStyle.line
            color: ControlsStyle.divider
        }
    }

    Repeater {
        // The tabs stay when only their texts or marks change; new ones would begin with the first again.
        model: tabs.model.length

        TouchTab {
            readonly property var entry: tabs.model[index] || ""

            objectName: entry.name || ""
            bar: tabs
            text: entry.text !== undefined ? entry.text : entry
            iconName: entry.icon || ""
            isMarked: !!entry.marked
            onClicked: tabs.chosen(index)
        }
    }
}
