import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// Every word on this page comes from the service, and is translated by the catalogues beside the service file.
Rectangle {
    implicitWidth: 480
    implicitHeight: 460
    color: ControlsStyle.background

    LayoutMirroring.enabled: Languages.isRightToLeft
    LayoutMirroring.childrenInherit: true

    Column {
        anchors.fill: parent
        anchors.margins: ControlsStyle.margin
        spacing: ControlsStyle.margin

        FigureCard {
            width: parent.width
            label: powermeter_res_level.label
            value: powermeter_res_level.valueString
            status: powermeter_res_level.qualityCode
        }
        FigureCard { width: parent.width; label: powermeter_res_wave.label; value: powermeter_res_wave.valueString }
        ItemEntry { width: parent.width; item: powermeter_cfg_mode }
        ItemEntry { width: parent.width; item: powermeter_cfg_average }
        TouchButton { text: powermeter_act_start.label; onClicked: powermeter_act_start.invoke() }
        InlineProblem { width: parent.width; text: powermeter_act_start.error }
    }
}
