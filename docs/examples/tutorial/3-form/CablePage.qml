import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

KitPage {
    title: qsTr("Cable test")

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
}
