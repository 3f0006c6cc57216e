import QtQuick 2.15

Column {
    id: page
    property real loss: 1

    Text { text: page.los }
    Text { text: "" + pgae.loss; onCliked: page.loss = 2 }
}
