import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// How the next run measures. Entries are held back until all of them are applied together.
KitPage {
    id: page

    property Session session
    readonly property PendingChanges changes: session.setup

    Accessible.name: qsTr("Set-up")
    service: "loopback"
    footer: [
        BodyText {
            Layout.fillWidth: true
            text: page.changes.waiting > 0 ? qsTr("%n changes are not applied yet.", "", page.changes.waiting)
                : page.changes.overtaken > 0 ? qsTr("%n settings were changed meanwhile.", "", page.changes.overtaken)
                                             : qsTr("Everything is applied.")
            muted: page.changes.count === 0
            Accessible.role: Accessible.AlertMessage
        },
        TouchButton {
            objectName: "revertButton"
            enabled: page.changes.waiting > 0
            text: qsTr("Revert")
            onClicked: page.changes.revertAll()
        },
        TouchButton {
            objectName: "reviewButton"
            enabled: page.changes.count > 0
            filled: true
            text: qsTr("Review")
            onClicked: page.stack.push("ReviewPage.qml", { session: page.session })
        }
    ]

    Loader {
        Layout.fillWidth: true
        active: services.loopback !== undefined
        sourceComponent: fields
    }
    EmptyState {
        Layout.fillWidth: true
        visible: services.loopback === undefined
        title: qsTr("There is no set-up")
        text: qsTr("The service loopback is not published.")
    }

    component Step: ItemStepper {
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        objectName: item.name
        storeWith: value => page.changes.enter(item, value)
    }

    Component {
        id: fields

        GridLayout {
            columns: 2
            columnSpacing: ControlsStyle.margin
            rowSpacing: ControlsStyle.margin

            Section {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.alignment: Qt.AlignTop
                title: qsTr("Limits")
                note: qsTr("What passes, and what fails.")

                Step { item: loopback_cfg_maximumRtt; step: 1 }
                Step { item: loopback_cfg_minimumThroughput; step: 100 }
            }
            Section {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.alignment: Qt.AlignTop
                title: qsTr("Run")
                note: page.session.measurement.rangeText

                Step { item: loopback_cfg_rttSamples; step: 10 }
                Step { item: loopback_cfg_throughputSamples; step: 10 }
                Step { item: loopback_cfg_messageSize; step: 64 }
            }
        }
    }
}
