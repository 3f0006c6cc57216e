import QtQuick 2.15
import UiUtils 1.0

Column {
    Text { text: optical_cfg_wavelenght.valueString }
    Text { text: optical_res_losses.valueString }
    Text { text: optcal_cfg_mode.label }
    Text { visible: services.optcal.isAvailable; text: services.unit.isAvailabel }
    Text { text: services.workflow_manager_app.name }
    KIVSignal { service: "opticl" }
}
