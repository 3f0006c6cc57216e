import QtQuick 2.15
import QtQuick.Controls 2.15
import UiUtils 1.0
import UiUtils.Demo 1.0

// An entry field for a text or a number of a service.
ItemRow {
    id: row

    // The value that an empty field stands for.
    property string unset
    readonly property bool isNumber: item !== null && ["int", "uint", "double"].indexOf(item.type) >= 0
    // The value that the field shows, or that was written to it.
    property var known

    // Numbers have no group separators, which would move during typing.
    function shown(value) {
        if (value === undefined)
            return ""
        if (!isNumber)
            return value === unset ? "" : String(value)
        const locale = Qt.locale()
        const decimals = item.type === "double" ? item.precision : 0
        return Number(value).toLocaleString(locale, "f", decimals).split(locale.groupSeparator).join("")
    }

    function take() {
        if (!field.acceptableInput)
            return
        known = isNumber ? Number.fromLocaleString(Qt.locale(), field.text) : field.text || unset
        entry.enter(known)
    }

    function reset() {
        known = item ? item.value : undefined
        field.text = shown(known)
    }

    function enter(text) {
        const before = field.text
        field.text = text
        take()
        return before
    }

    function inputHints() {
        if (item === null)
            return Qt.ImhNone
        if (item.inputType === KivData.INPUT_PHONE_NUMBER)
            return Qt.ImhDialableCharactersOnly
        return isNumber ? Qt.ImhFormattedNumbersOnly : Qt.ImhNoPredictiveText
    }

    // A value from the service is not the user's mistake.
    acceptable: !applies || field.acceptableInput || field.text === shown(entry.served)
    onItemChanged: reset()

    Connections {
        target: row.entry

        // Typed text stays while the item's value does not change.
        function onReported() {
            if (row.item.value !== row.known)
                row.reset()
        }
    }

    TextField {
        id: field
        anchors.fill: parent
        leftPadding: Theme.gap
        rightPadding: row.unitRoom
        activeFocusOnTab: true
        // A swipe that begins on a field scrolls the page.
        selectByMouse: false
        validator: row.item ? row.item.validator : null
        inputMethodHints: row.inputHints()
        color: enabled ? Theme.text : Theme.disabled
        font.pixelSize: Theme.bodyText
        Accessible.name: row.item ? row.item.label : ""
        Accessible.description: row.item ? row.item.rangeDescription : ""
        onTextEdited: row.take()
        onAccepted: nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)

        background: Rectangle {
            radius: Theme.radius
            color: row.fillColor
            border { width: row.changed ? 2 : 1; color: row.frameColor }

            FocusFrame { visible: field.activeFocus }
        }

        // The field's own placeholder would interpret markup.
        Text {
            anchors { left: parent.left; leftMargin: field.leftPadding; verticalCenter: parent.verticalCenter }
            visible: row.unset !== "" && field.length === 0 && field.preeditText === ""
            text: qsTr("not set")
            textFormat: Text.PlainText
            color: Theme.disabled
            font: field.font
        }
    }
}
