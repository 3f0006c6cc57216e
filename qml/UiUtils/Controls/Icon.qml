import QtQuick 2.15
import UiUtils.Controls 1.0

/// One of the module's icons in one colour. `name` is the icon's name, such as "home", empty for none; `size` its width and
/// height; `color` its colour. Those that point along the text turn with the layout.
IconPicture {
    size: ControlsStyle.mm(4.8)
    color: ControlsStyle.text
}
