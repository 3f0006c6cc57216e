import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

KitPage {
    title: qsTr("Choices and numbers")
    subtitle: qsTr("A gesture writes one value, within the limits of the item")

    RowLayout {
        Layout.fillWidth: true
        spacing: ControlsStyle.margin

        Card {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.alignment: Qt.AlignTop
            title: qsTr("Items of a service")

            SegmentedChoice { Layout.fillWidth: true; item: optical_cfg_mode }
            ItemStepper { Layout.fillWidth: true; item: optical_cfg_range }
            ItemSlider { Layout.fillWidth: true; item: optical_cfg_backscatter }
        }
        Card {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.alignment: Qt.AlignTop
            title: qsTr("Items of this page")

            UiData { id: repetitions; type: "int"; label: qsTr("Repetitions"); value: 10; minRange: 1; maxRange: 100 }
            UiData { id: brightness; type: "int"; label: qsTr("Brightness in per cent"); value: 70; minRange: 10; maxRange: 100 }

            ItemStepper { Layout.fillWidth: true; item: repetitions; step: 5 }
            ItemSlider { Layout.fillWidth: true; item: brightness; step: 10 }
            SegmentedChoice {
                id: shown
                Layout.fillWidth: true
                model: [{ label: qsTr("All"), value: 0 }, { label: qsTr("Only failures"), value: 1 }]
                value: 0
            }
            BodyText { Layout.fillWidth: true; muted: true; text: qsTr("Chosen: %1").arg(shown.plainText) }
        }
    }
}
