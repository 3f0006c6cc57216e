import QtQuick 2.15
import UiUtils.Controls 1.0

Column {
    TouchButton { text: "Start"; onClicked: optical_act_start.invoke }
    TouchButton { text: "Reset"; onClicked: optical_cfg_range.invoke() }
    TouchButton { text: "Lose"; onClicked: optical_res_loss.invokeWithStringArg("now") }
    ItemEntry { item: optical_act_calibrate }
    TouchButton { text: "Apply"; onClicked: services.loopback_rtt.applyChanges() }
}
