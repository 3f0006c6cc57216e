import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
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
        text: [card.service.isAvailable ? qsTr("%n items", "", card.service.itemCount) : qsTr("Cannot be reached"),
               card.service.isSlow ? qsTr("answers slowly") : "",
               card.service.isRefusing ? qsTr("rejects every change") : ""].filter(part => part !== "").join(" \u00b7 ")
        muted: true
    }
    Flow {
        Layout.fillWidth: true
        visible: card.service.isOwn
        spacing: ControlsStyle.touchGap

        TouchButton {
            objectName: "slow " + card.service.name
            text: card.service.isSlow ? qsTr("Fast") : qsTr("Slow")
            onClicked: card.service.isSlow = !card.service.isSlow
        }
        TouchButton {
            objectName: "refuse " + card.service.name
            text: card.service.isRefusing ? qsTr("Accept") : qsTr("Refuse")
            onClicked: card.service.isRefusing = !card.service.isRefusing
        }
        TouchButton {
            objectName: "away " + card.service.name
            text: card.service.isAway ? qsTr("Return") : qsTr("Vanish")
            onClicked: card.service.isAway = !card.service.isAway
        }
    }
    BodyText {
        objectName: "elsewhere"
        Layout.fillWidth: true
        visible: !card.service.isOwn
        text: qsTr("The service lives in another process. It can be watched and edited, not disturbed.")
        muted: true
    }
    ColumnLayout {
        objectName: "pendingChanges"
        Layout.fillWidth: true
        visible: card.service.pending.isChanging || card.service.pending.count > 0
        spacing: 0

        HeadingText {
            Layout.fillWidth: true
            text: card.service.pending.isChanging ? qsTr("A transaction runs") : qsTr("Not sent")
        }
        ListArea {
            Layout.fillWidth: true
            Layout.preferredHeight: Math.min(contentHeight, ControlsStyle.mm(60))
            visible: count > 0
            name: qsTr("Pending changes")
            model: card.service.pending

            delegate: ListRow {
                title: card.service.nameOf(model.item) || model.label
                subtitle: qsTr("Now: %1").arg(model.oldText) + (model.problem === "" ? "" : "\n" + model.problem)
                value: model.newText
                iconName: model.state === PendingChanges.Waiting ? "" : "warning"
            }
        }
        BodyText {
            Layout.fillWidth: true
            visible: card.service.pending.count === 0
            text: qsTr("Nothing is changed yet.")
            muted: true
        }
    }
}
