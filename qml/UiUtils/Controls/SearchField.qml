import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

/// A field for a text that is looked for: `text` changes with every key, so that a list can follow. Escape and the button
/// at the end clear it.
FocusScope {
    id: search

    property alias text: field.text
    property string placeholderText: qsTr("Search")
    /// Enter was pressed.
    signal accepted

    /// Removes the text; false when there was none.
    function clear() {
        const hadText = field.text !== ""
        field.clear()
        return hadText
    }

    implicitWidth: ControlsStyle.mm(50)
    implicitHeight: ControlsStyle.touch

    EntryFrame {
        anchors.fill: parent
        isFocused: field.activeFocus
    }
    T.TextField {
        id: field
        objectName: "searchField"
        anchors { left: mark.right; right: clearButton.left; top: parent.top; bottom: parent.bottom; leftMargin: ControlsStyle.gap; rightMargin: ControlsStyle.touchGap }
        focus: true
        selectByMouse: true
        verticalAlignment: TextInput.AlignVCenter
        horizontalAlignment: TextInput.AlignLeft
        color: ControlsStyle.text
        selectionColor: ControlsStyle.primary
        selectedTextColor: ControlsStyle.primaryText
        font.pixelSize: ControlsStyle.bodyText
        inputMethodHints: Qt.ImhNoPredictiveText
        Accessible.role: Accessible.EditableText
        Accessible.searchEdit: true
        Accessible.name: search.placeholderText
        Keys.onEscapePressed: event.accepted = search.clear()
        onAccepted: search.accepted()
    }
    Icon {
        id: mark
        anchors { left: parent.left; leftMargin: ControlsStyle.gap; verticalCenter: parent.verticalCenter }
        name: "search"
        color: ControlsStyle.mutedText
    }
    // The field's own placeholder would interpret markup.
    BodyText {
        anchors.fill: field
        visible: field.length === 0 && field.preeditText === ""
        text: search.placeholderText
        muted: true
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    IconButton {
        id: clearButton
        objectName: "clearButton"
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        // Hidden, its room stays.
        opacity: field.length > 0 ? 1 : 0
        enabled: field.length > 0
        focusPolicy: Qt.NoFocus
        iconName: "close"
        name: qsTr("Clear the search")
        onClicked: {
            search.clear()
            field.forceActiveFocus()
        }
    }
}
