import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

// One of TouchTabs.
T.TabButton {
    id: tab

    property Item bar
    property string iconName
    property bool isMarked: false
    readonly property bool isStacked: bar.navigation && iconName !== ""
    readonly property color ink: !enabled ? ControlsStyle.disabledText : checked ? ControlsStyle.primary : ControlsStyle.mutedText

    implicitHeight: bar.height
    focusPolicy: Qt.NoFocus
    font { pixelSize: isStacked ? ControlsStyle.labelText : ControlsStyle.bodyText; weight: checked ? Font.DemiBold : Font.Normal }
    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.description: isMarked ? qsTr("Needs attention") : ""
    Accessible.selected: checked
    Accessible.onPressAction: {
        bar.currentIndex = T.TabBar.index
        clicked()
    }

    contentItem: Item {
        Grid {
            anchors.centerIn: parent
            columns: tab.isStacked ? 1 : 2
            columnSpacing: ControlsStyle.gap
            horizontalItemAlignment: Grid.AlignHCenter
            verticalItemAlignment: Grid.AlignVCenter

            Icon {
                visible: name !== ""
                name: tab.iconName
                color: tab.ink
                size: ControlsStyle.mm(4.8)

                Loader {
                    anchors { left: parent.right; leftMargin: -width / 2; top: parent.top; topMargin: -height / 3 }
                    active: tab.isMarked
                    sourceComponent: Rectangle {
                        implicitWidth: ControlsStyle.mm(2.2)
                        implicitHeight: implicitWidth
                        radius: width / 2
                        color: ControlsStyle.news
                        border { width: ControlsStyle.line; color: ControlsStyle.card }
                    }
                }
            }
            StyledText {
                width: Math.min(natural.oneLine, tab.width - ControlsStyle.gap - (tab.iconName !== "" && !tab.isStacked ? ControlsStyle.mm(6.3) : 0))
                text: tab.text
                color: tab.ink
                font: tab.font
                horizontalAlignment: Text.AlignHCenter
                wrapMode: tab.isStacked ? Text.NoWrap : Text.Wrap
                maximumLineCount: tab.isStacked ? 1 : 2
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
        NaturalWidth {
            id: natural
            font: tab.font
            text: tab.text
        }
    }
    background: Rectangle {
        color: tab.down ? ControlsStyle.pressed : "transparent"

        Rectangle {
            y: tab.bar.navigation ? 0 : parent.height - height
            width: parent.width
            height: ControlsStyle.mm(0.7)
            visible: tab.checked
            color: ControlsStyle.primary
        }
    }

    FocusWatch {
        control: tab.bar
        active: tab.checked
        within: true
    }
}
