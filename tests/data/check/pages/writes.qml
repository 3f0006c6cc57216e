import QtQuick 2.15
import UiUtils 1.0

MouseArea {
    onClicked: {
        optical_res_loss.value = 3
        optical_act_start.value = true
        optical_cfg_mode = 1
        optical_cfg_range.label = "Range"
        optical_cfg_range.value = 500
        optical_cfg_mode.value = 7
        optical_cfg_mode.value = "Manual"
        optical_res_progress.value += 10
        const mode = optical_cfg_mode
        mode.readOnly = true
        optical_res_events.setAt(0, 1)
    }
}
