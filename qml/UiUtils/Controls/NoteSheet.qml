import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0
import "placing.js" as Placing

// The words of an EntryNote for which its line is too short: below the editor, or above it where there is no room. In a
// layer of its own, because cards and views would cut them off or cover them. A tap takes them away.
T.Popup {
    id: sheet

    property Item owner

    readonly property Item page: T.Overlay.overlay
    // What scrolls around the note; null for nothing.
    readonly property Item view: {
        let around = owner.parent
        while (around && (around.contentY === undefined || around.contentItem === undefined))
            around = around.parent
        return around
    }
    property bool isInSight: true

    function arrange() {
        if (!page || !owner.editor)
            return
        const edge = ControlsStyle.gap
        const field = owner.editor.mapToItem(page, 0, 0, owner.editor.width, owner.editor.height)
        const keyboard = Qt.inputMethod.keyboardRectangle
        const bottom = Qt.inputMethod.visible && keyboard.height > 0 ? Math.min(page.height, keyboard.y) : page.height
        const place = Placing.placeList(field, implicitHeight, Qt.rect(edge, edge, page.width - 2 * edge, bottom - 2 * edge), edge / 2)
        const left = owner.mapToItem(page, 0, 0).x
        x = Math.max(edge, Math.min(left - padding, page.width - edge - width)) - left
        y = place.y - owner.mapToItem(page, 0, 0).y
        const top = view ? view.mapToItem(page, 0, 0).y : 0
        isInSight = field.y + field.height > top && (!view || field.y < top + view.height)
    }

    objectName: "noteSheet"
    parent: owner
    width: owner.width + 2 * padding
    implicitHeight: Math.max(ControlsStyle.touch, implicitContentHeight + 2 * padding)
    padding: ControlsStyle.gap / 2
    focus: false
    closePolicy: T.Popup.NoAutoClose
    opacity: isInSight ? 1 : 0
    onImplicitHeightChanged: arrange()
    Component.onCompleted: {
        arrange()
        open()
    }
    background: Rectangle {
        radius: ControlsStyle.radius / 2
        color: ControlsStyle.field
        border { width: ControlsStyle.line; color: sheet.owner.ink }
    }

    contentItem: Item {
        implicitHeight: words.implicitHeight
        LayoutMirroring.enabled: ControlsStyle.mirrored
        LayoutMirroring.childrenInherit: true

        Icon {
            id: mark
            anchors { left: parent.left; top: words.top }
            visible: sheet.owner.isProblem
            name: "warning"
            size: Math.ceil(1.1 * ControlsStyle.smallText)
            color: sheet.owner.ink
        }
        StyledText {
            id: words
            objectName: "noteText"
            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; leftMargin: mark.visible ? mark.width + ControlsStyle.gap / 2 : 0 }
            text: sheet.owner.text
            color: sheet.owner.ink
            font { pixelSize: ControlsStyle.smallText; weight: sheet.owner.isProblem ? Font.DemiBold : Font.Normal }
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        TapHandler {
            margin: sheet.padding
            onTapped: sheet.owner.dismissed = sheet.owner.text
        }
    }

    Connections {
        target: sheet.view
        function onContentYChanged() { sheet.arrange() }
    }
    Connections {
        target: Qt.inputMethod
        function onKeyboardRectangleChanged() { sheet.arrange() }
    }
}
