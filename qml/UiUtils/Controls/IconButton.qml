import QtQuick 2.15
import UiUtils.Controls 1.0

/// A button with an icon only.
TouchButton {
    /// What a screen reader says.
    property string name

    quiet: true
    Accessible.name: name
}
