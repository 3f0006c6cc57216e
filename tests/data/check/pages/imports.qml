import QtQuick 2.15
import QtQuick.Control 2.15
import Nothing 1.0
import "helpers"
import "partz.js" as Parts

Item {
    Loader { source: "Detail.qml" }
}
