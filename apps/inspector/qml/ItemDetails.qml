import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0
import UiUtils.Inspector 1.0

// One item: what it is now, its past, its own entry, and what can be done to it.
Item {
    id: details

    required property Inspector inspector
    property QtObject item: null
    property bool hasBack: false
    // The entry describes an item when it gets the item.
    property bool isDescribed: true
    signal back

    EmptyState {
        anchors { fill: parent; margins: ControlsStyle.margin }
        visible: details.item === null
        iconName: "information"
        title: qsTr("No item chosen")
        text: qsTr("Choose one in the list.")
    }
    ItemGlance {
        id: glance
        item: details.item
    }
    ColumnLayout {
        anchors.fill: parent
        visible: details.item !== null
        spacing: 0

        RowLayout {
            Layout.fillWidth: true
            Layout.margins: ControlsStyle.gap
            spacing: ControlsStyle.gap

            IconButton {
                objectName: "detailsBack"
                visible: details.hasBack
                iconName: "back"
                name: qsTr("Back")
                onClicked: details.back()
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 0

                HeadingText {
                    Layout.fillWidth: true
                    text: glance.title
                }
                LabelText {
                    readonly property bool mayElide: true
                    Layout.fillWidth: true
                    text: glance.name + " \u00b7 " + glance.type
                }
            }
        }
        ScrollArea {
            Layout.fillWidth: true
            Layout.fillHeight: true
            padding: ControlsStyle.margin

            BodyText {
                readonly property bool mayElide: true
                objectName: "liveValue"
                Layout.fillWidth: true
                visible: text !== ""
                text: [glance.text, glance.trouble, ControlsStyle.qualityWord(glance.quality)].filter(part => part !== "").join(" \u00b7 ")
                font { pixelSize: ControlsStyle.headingText; weight: Font.DemiBold }
            }
            Loader {
                Layout.fillWidth: true
                active: details.item !== null && glance.type === "action"
                visible: active
                sourceComponent: ActionForm { item: details.item }
            }
            ItemEntry {
                objectName: "itemEntry"
                Layout.fillWidth: true
                // Results are shown above.
                item: details.isDescribed && details.item !== null && glance.type !== "action" && !details.item.readOnly ? details.item : null
                label: qsTr("Setting")
            }
            Loader {
                objectName: "historyLoader"
                Layout.fillWidth: true
                Layout.preferredHeight: ControlsStyle.mm(45)
                active: details.item !== null && glance.isNumber
                visible: active
                sourceComponent: ItemHistory {
                    inspector: details.inspector
                    item: details.item
                    title: glance.title
                }
            }
            ItemHands {
                objectName: "hands"
                Layout.fillWidth: true
                service: details.item === null ? null : details.inspector.serviceOf(details.item)
                item: details.item
                type: glance.type
                onLimitsChanged: {
                    details.isDescribed = false
                    Qt.callLater(() => { details.isDescribed = true })
                }
            }
            LabelText {
                Layout.fillWidth: true
                text: details.item === null ? "" : details.item.id
                wrapMode: Text.WrapAnywhere
            }
        }
    }
}
