import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// What the set-up will change, before it is applied.
KitPage {
    id: page

    property Session session
    readonly property PendingChanges changes: session.setup

    title: qsTr("Review")
    subtitle: qsTr("All of it is applied together, or nothing.")
    scrolls: false
    footer: [
        Item { Layout.fillWidth: true },
        TouchButton {
            objectName: "revertAllButton"
            text: qsTr("Revert all")
            enabled: page.changes.waiting > 0
            onClicked: {
                page.changes.revertAll()
                page.leave()
            }
        },
        TouchButton {
            objectName: "applyButton"
            filled: true
            enabled: page.changes.waiting > 0
            text: qsTr("Apply")
            onClicked: {
                if (page.changes.apply())
                    page.leave()
            }
        }
    ]

    // What the service has changed meanwhile is still to be looked at.
    function leave() {
        if (changes.count === 0)
            stack.pop()
    }

    PendingChangesView {
        Layout.fillWidth: true
        Layout.fillHeight: true
        focus: true
        changes: page.changes
    }
}
