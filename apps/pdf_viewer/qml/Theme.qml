pragma Singleton
import QtQuick 2.15

CommonTheme {
    readonly property color desk: "#d5dee4"

    readonly property int bar: 60
    readonly property int signText: 28
}
