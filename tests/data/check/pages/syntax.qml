import QtQuick 2.15

Column {
    Text { text: "Loss: + optical_res_loss.valueString }
    Text { text: "Length" }
}
