import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

/// A list of rows that scrolls. The arrow keys go from row to row; the row that has the focus handles all other keys.
ListView {
    id: list

    /// What a screen reader calls the list.
    property string name

    clip: true
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    // Rows that are made ahead may be gone when they are finished, of which Qt complains.
    cacheBuffer: 0
    T.ScrollBar.vertical: ScrollMark {}
    Accessible.role: Accessible.List
    Accessible.name: name
}
