import QtQuick 2.15
import UiUtils.Demo 1.0

// Marks an entry that is not applied yet.
Rectangle {
    implicitWidth: 12
    implicitHeight: 12
    radius: 6
    color: Theme.focus
}
