import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0
import UiUtils.Inspector 1.0

// A service: its state, its pending changes, and what can be done to it where it lives in this process.
Card {
    id: card

    required property InspectedService service

    objectName: "card " + service.name
    title: service.name

    BodyText {
        objectName: "serviceState"
        Layout.fillWidth: true
        text: card.service.isAvailable ? qsTr("%n items", "", card.service.itemCount) : qsTr("Cannot be reached")
        muted: true
    }
    GridLayout {
        Layout.fillWidth: true
        visible: card.service.isOwn
        columns: width > ControlsStyle.mm(100) ? 3 : 1
        columnSpacing: ControlsStyle.gap
        rowSpacing: 0

        SwitchEntry {
            objectName: "slow " + card.service.name
            Layout.fillWidth: true
            label: qsTr("Slow")
            value: card.service.isSlow
            storeWith: isSlow => { card.service.isSlow = isSlow; return "" }
        }
        SwitchEntry {
            objectName: "refuse " + card.service.name
            Layout.fillWidth: true
            label: qsTr("Rejects every change")
            value: card.service.isRefusing
            storeWith: isRefusing => { card.service.isRefusing = isRefusing; return "" }
        }
        SwitchEntry {
            objectName: "away " + card.service.name
            Layout.fillWidth: true
            label: qsTr("Away")
            value: card.service.isAway
            storeWith: isAway => { card.service.isAway = isAway; return "" }
        }
    }
    BodyText {
        Layout.fillWidth: true
        visible: !card.service.isOwn
        text: qsTr("The service lives in another process. It can be watched and edited, not disturbed.")
        muted: true
    }
    ColumnLayout {
        objectName: "pendingChanges"
        Layout.fillWidth: true
        visible: card.service.isChanging || card.service.pending.length > 0
        spacing: 0

        HeadingText {
            Layout.fillWidth: true
            text: card.service.isChanging ? qsTr("A transaction runs") : qsTr("Not sent")
        }
        Repeater {
            model: card.service.pending

            ListRow {
                required property var modelData
                Layout.fillWidth: true
                title: modelData.name
                subtitle: qsTr("Now: %1").arg(modelData.from)
                value: modelData.to
            }
        }
        BodyText {
            Layout.fillWidth: true
            visible: card.service.pending.length === 0
            text: qsTr("Nothing is changed yet.")
            muted: true
        }
    }
}
