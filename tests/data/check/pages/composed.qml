import QtQuick 2.15

Column {
    ComposedPart { item: optical_res_loss }
}
