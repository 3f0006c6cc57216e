import QtQuick 2.15
import Instrument.Optical 1.0
import Instrument.WorkflowManager 1.0

Column {
    Text { text: Optical.cfg_mdoe.label }
    Text { text: Optical.cfg_mode.vlaue }
    Text { visible: Optical.cfg_mode.value === Optical.cfg_mode_Auto && Optical.service.isAvailable }
    MouseArea { onClicked: Optical.res_loss.value = 1 }
}
