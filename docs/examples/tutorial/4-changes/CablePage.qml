import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

KitPage {
    title: qsTr("Cable test")
    footer: [
        Item { Layout.fillWidth: true },
        TouchButton {
            text: qsTr("Revert")
            enabled: pending.count > 0
            onClicked: { pending.revertAll(); pending.begin() }
        },
        TouchButton {
            text: qsTr("Apply")
            filled: true
            enabled: pending.waiting > 0
            onClicked: { pending.apply(); pending.begin() }
        }
    ]

    FigureCard {
        Layout.fillWidth: true
        label: cable_res_loss.label
        value: cable_res_loss.valueString
    }
    Card {
        Layout.fillWidth: true
        title: qsTr("Set-up")

        ItemEntry { Layout.fillWidth: true; item: cable_cfg_site }
        ItemEntry { Layout.fillWidth: true; item: cable_cfg_length }
    }
    PendingChanges {
        id: pending
        Component.onCompleted: begin()
    }
    Card {
        Layout.fillWidth: true
        title: qsTr("Changes")
        visible: pending.count > 0

        PendingChangesView { Layout.fillWidth: true; changes: pending }
    }
}
