import QtQuick 2.15
import UiUtils.Demo 1.0

Rectangle {
    color: Theme.card
    radius: Theme.radius
    border { width: 1; color: Theme.border }
}
