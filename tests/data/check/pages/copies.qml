import QtQuick 2.15

Column {
    property int count: 1
    property int count: 2
    Text { id: first; text: optical_res_loss.valueString }
    Text { id: first; text: optical_res_state.label; text: optical_res_state.valueString }
    Text { id: Second }
    Rectangle { colour: "red"; anchors.fill: parent; anchors.fill: parent }
    Timer { intervall: 500; itme: 1 }
}
