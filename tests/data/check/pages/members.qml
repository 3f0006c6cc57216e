import QtQuick 2.15
import UiUtils 1.0

Column {
    Text { text: optical_cfg_range.vlaue }
    Text { text: optical_cfg_range.label() }
    Text { text: optical_cfg_range.maximum }
    Text { visible: optical_cfg_mode.value === optical_cfg_mode.enums.Manuel }
    Text { visible: optical_cfg_range.value === optical_cfg_range.enums.Short }
    Row {
        readonly property KivData attenuation: optical_res_loss

        Text { id: figure; text: figure.parent.attenuation.valueString }
        Component.onCompleted: console.log(attenuation.valueText)
    }
    Connections {
        target: optical_res_state
        function onVlaueChanged() { console.log("moved") }
    }
}
