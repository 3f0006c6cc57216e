import QtQuick 2.15
import QtQuick.Window 2.15
import UiUtils.Controls 1.0
import "placing.js" as Placing

/// The on-screen keyboard, at the lower edge of the window; a window needs one of these, anywhere on its page. It is
/// made when a text field first gets the focus. It needs Qt Virtual Keyboard, and QT_IM_MODULE=qtvirtualkeyboard set
/// before the application object is created; without the module the log has one note, and nothing is shown. The field in
/// use is scrolled into sight above it, and fields of digits open no pad of their own while it serves.
Item {
    id: keyboard

    /// Whether the keyboard is open.
    readonly property bool isOpen: panel !== null && panel.active && Qt.inputMethod.visible
    /// How much of the window the open keyboard covers, in pixels.
    readonly property real covered: isOpen ? panel.height : 0
    /// By how much the field in use would still have to move up, in pixels, where nothing around it scrolls. A page that
    /// does not scroll moves up by this.
    property real shift: 0

    readonly property Item focused: Window.activeFocusItem
    readonly property bool isTyping: !!focused && focused.inputMethodHints !== undefined && focused.readOnly === false
    // Made when it is first needed; null where there is none.
    property Item panel: null
    property bool isTried: false
    // What scrolls farther than usual while the keyboard is open, and its usual margin.
    property var stretched: []

    function make() {
        isTried = true
        const component = Qt.createComponent("KeyboardPanel.qml")
        if (component.status === Component.Ready)
            panel = component.createObject(Window.contentItem)
        else
            console.info("There is no on-screen keyboard: Qt Virtual Keyboard is not installed, or QT_IM_MODULE is not \"qtvirtualkeyboard\".")
        if (panel)
            Qt.inputMethod.show()
    }

    function stretch() {
        const before = stretched
        stretched = []
        before.forEach(entry => { if (entry.view) entry.view.bottomMargin = entry.margin })
        if (!isOpen || !isTyping)
            return
        for (let view = focused.parent; view; view = view.parent) {
            // Areas of the kit do it themselves.
            if (view.contentHeight === undefined || view.bottomMargin === undefined || view.covered !== undefined)
                continue
            const hidden = view.mapToItem(null, 0, view.height).y - panel.y
            stretched.push({ view: view, margin: view.bottomMargin })
            view.bottomMargin = Math.max(view.bottomMargin, hidden)
        }
    }

    function showField() {
        stretch()
        if (isOpen && isTyping)
            Placing.reveal(focused, 0, panel.y - ControlsStyle.gap)
        const bottom = isOpen && isTyping ? focused.mapToItem(null, 0, focused.height).y + shift : 0
        shift = isOpen && isTyping ? Math.max(0, bottom + ControlsStyle.gap - panel.y) : 0
    }

    onIsTypingChanged: {
        if (isTyping && !isTried)
            make()
    }
    onFocusedChanged: Qt.callLater(showField)
    onIsOpenChanged: {
        // A field of digits has the digits of the keyboard.
        if (isOpen)
            ControlsStyle.padOnTap = false
        Qt.callLater(showField)
    }
    onCoveredChanged: Qt.callLater(showField)
    Component.onDestruction: {
        if (panel)
            panel.destroy()
    }
}
