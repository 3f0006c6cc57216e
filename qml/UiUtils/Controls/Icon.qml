import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Controls.impl 2.15
import QtQuick.Window 2.15
import UiUtils.Controls 1.0

/// One of the module's icons in one colour. Those that point along the text turn with the layout.
ColorImage {
    /// The icon's name, such as "home"; empty for none. The folder "icons" of the module has them all.
    property string name
    /// Width and height.
    property real size: ControlsStyle.mm(4.8)

    // In pixels of the screen.
    readonly property int side: Math.round(size * Screen.devicePixelRatio)
    readonly property bool turns: ["back", "forward", "drawer", "open", "results", "report"].includes(name)

    width: size
    height: size
    color: ControlsStyle.text
    source: name === "" ? "" : Qt.resolvedUrl((side > 48 ? "icons/" : "icons/small/") + name + ".png")
    sourceSize: Qt.size(side, side)
    mirror: turns && ControlsStyle.mirrored
    Accessible.ignored: true
}
