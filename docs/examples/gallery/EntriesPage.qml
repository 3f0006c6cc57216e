import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

KitPage {
    id: page

    // The examples/gallery.qml has every kind.
    readonly property var items: [optical_cfg_cable_1, optical_cfg_wavelength, optical_cfg_offset, optical_cfg_duration, optical_cfg_collector,
        optical_cfg_storeTraces, optical_cfg_backscatter, optical_cfg_calibration, optical_res_loss, optical_cfg_stages]

    title: qsTr("Entries")
    subtitle: qsTr("ItemEntry over items of the optical service")
    service: "optical"

    Card {
        Layout.fillWidth: true

        GridLayout {
            Layout.fillWidth: true
            columns: 2
            columnSpacing: 2 * ControlsStyle.margin
            rowSpacing: ControlsStyle.gap

            Repeater {
                model: page.items

                ItemEntry {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.alignment: Qt.AlignTop
                    item: modelData
                }
            }
        }
    }
}
