import QtQuick 2.15

Column {
    Text { text: optical_res_loss }
    Text { visible: optical_cfg_storeTraces }
    Text { text: optical_res_events.value }
    Text { text: optical_cfg_limits.value }
    Text { visible: optical_cfg_range == 20 }
    Text { visible: optical_res_loss > 3 }
    Text { visible: optical_cfg_mode.value === "Manual" }
    ListView { model: optical_res_events }
}
