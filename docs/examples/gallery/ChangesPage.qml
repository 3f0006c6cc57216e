import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// Settings of a service that are applied together.
KitPage {
    id: page

    title: qsTr("Changes that wait")
    subtitle: qsTr("Nothing is sent before Apply")
    footer: [
        Item { Layout.fillWidth: true },
        TouchButton {
            text: qsTr("Revert all")
            enabled: pending.waiting > 0
            onClicked: pending.revertAll()
        },
        TouchButton {
            filled: true
            text: qsTr("Apply")
            enabled: pending.waiting > 0
            onClicked: pending.apply()
        }
    ]
    Component.onCompleted: pending.enter(optical_cfg_offset, 100)

    PendingChanges { id: pending; manifests: [services.optical] }

    RowLayout {
        spacing: ControlsStyle.margin

        Card {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            title: qsTr("Settings")

            SegmentedChoice { Layout.fillWidth: true; item: optical_cfg_mode; storeWith: value => pending.enter(item, value) }
            ItemStepper { Layout.fillWidth: true; item: optical_cfg_offset; step: 50; storeWith: value => pending.enter(item, value) }
        }
        Card {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            title: qsTr("Review")

            PendingChangesView { Layout.fillWidth: true; changes: pending }
        }
    }
}
