import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

KitPage {
    title: qsTr("Date and time")
    subtitle: qsTr("Typed as the locale writes them, or picked; passed on as ISO 8601")

    GridLayout {
        Layout.fillWidth: true
        columns: 2
        columnSpacing: ControlsStyle.margin
        rowSpacing: ControlsStyle.margin

        Card {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.alignment: Qt.AlignTop
            title: qsTr("Items of this page")

            UiData { id: due; type: "std::string"; label: qsTr("Due"); value: "" + "2026-11-22" }
            UiData { id: begin; type: "std::string"; label: qsTr("Begin"); value: "" + "14:20" }

            DateEntry { objectName: "due"; Layout.fillWidth: true; item: due }
            TimeEntry { Layout.fillWidth: true; item: begin }
        }
        Card {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.alignment: Qt.AlignTop
            title: qsTr("Values of this page")

            DateTimeEntry { id: next; Layout.fillWidth: true; label: qsTr("Next calibration"); value: "2027-03-01T09:00" }
            DateEntry {
                Layout.fillWidth: true
                label: qsTr("In this year")
                value: "2026-06-30"
                earliest: "2026-01-01"
                latest: "2026-12-31"
            }
            BodyText { Layout.fillWidth: true; muted: true; text: qsTr("Passed on: %1").arg(next.value) }
        }
    }
}
