import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

KitPage {
    title: qsTr("Lists")
    subtitle: qsTr("Rows of 11 mm and more, which may touch")

    RowLayout {
        Layout.fillWidth: true
        spacing: ControlsStyle.margin

        Card {
            id: jobs

            property int chosen: 0

            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.alignment: Qt.AlignTop
            padding: 0
            topPadding: ControlsStyle.margin

            ColumnLayout {
                Layout.fillWidth: true
                spacing: 0

                Repeater {
                    model: [
                        { title: "Lindhof exchange", note: qsTr("JOB-4711, 3 tests"), value: "14:20", status: Status.Pass },
                        { title: "Trunk 12, manhole 4 to the bridge at the old brewery", note: qsTr("JOB-4712, 1 test"), value: "11:05", status: Status.Fail },
                        { title: "Harbour ring", note: qsTr("JOB-4713, 8 tests"), value: qsTr("yesterday"), status: Status.Marginal },
                        { title: "School, building C", note: "JOB-4714", value: "", status: Status.None }
                    ]

                    ListRow {
                        Layout.fillWidth: true
                        iconName: "jobs"
                        title: modelData.title
                        subtitle: modelData.note
                        value: modelData.value
                        status: modelData.status
                        selected: jobs.chosen === index
                        onClicked: jobs.chosen = index
                    }
                }
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.alignment: Qt.AlignTop
            spacing: ControlsStyle.margin

            Card {
                Layout.fillWidth: true

                Section {
                    Layout.fillWidth: true
                    title: qsTr("Files")
                    note: qsTr("A section whose contents fold away")
                    collapsible: true

                    ListRow {
                        Layout.fillWidth: true
                        leftPadding: 0
                        rightPadding: 0
                        iconName: "report"
                        title: "lindhof-17.pdf"
                        subtitle: "218 kB"
                        trailing: [
                            IconButton { iconName: "open"; name: qsTr("Open") },
                            IconButton { iconName: "delete"; name: qsTr("Delete"); danger: true }
                        ]
                    }
                    ListRow {
                        Layout.fillWidth: true
                        leftPadding: 0
                        rightPadding: 0
                        iconName: "report"
                        title: "lindhof-16.pdf"
                        enabled: false
                        value: qsTr("being copied")
                    }
                }
            }
            Card {
                Layout.fillWidth: true

                EmptyState {
                    Layout.fillWidth: true
                    iconName: "camera"
                    title: qsTr("No screenshots")
                    text: qsTr("Tap the camera at the top of a page to keep what it shows.")
                    actionText: qsTr("Take one")
                }
            }
        }
    }
}
