import QtQuick 2.15
import UiUtils.Controls 1.0

Column {
    NumberEnrty { width: 100 }
    Label { text: "Loss" }
    LossPlot {}
}
