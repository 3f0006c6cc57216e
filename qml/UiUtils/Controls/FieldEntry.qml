import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0
import "formats.js" as Formats

/// An entry of one line. Typed text belongs to the user until it is committed or reverted: no report of the service, no
/// rejection and no loss of the service changes it.
Entry {
    id: entry

    property int inputMethodHints: Qt.ImhNone
    property int echoMode: TextInput.Normal
    /// What the empty field shows.
    property string placeholderText
    // A pad of digits with this key beside the 0.
    property bool hasPad: false
    property string padSeparator
    property bool padHasSign: false
    /// Whether an empty text may be committed. A form's field may stay empty; a service decides for itself.
    property bool acceptsEmpty: !mandatory && (!face.hasItem || face.isLocal)

    // The limits of a text in words: the item's own, if it has both.
    readonly property string lengthText: face.minimum !== undefined && face.maximum !== undefined
                                         ? face.tidyRange : Formats.rangeText(minimum, maximum, String, qsTr("chars"))
    /// The text as it was typed.
    readonly property string text: field.text
    /// What is wrong with the text; empty when it can be committed.
    readonly property string problem: problemOf(field.text)
    readonly property string shownText: textOf(currentValue)
    /// Whether the typed text is not committed yet.
    property bool isEdited: false
    // A commit of this text has failed, so that the error is shown.
    property bool isTried: false
    property bool hasNews: false

    // --- Implemented by each kind of entry ---

    // The value as the field shows it.
    function textOf(value) {
        return value === undefined || value === null ? "" : String(value)
    }
    // The value of a text; called only for acceptable texts.
    function parsed(text) {
        return text
    }
    // What is wrong with a text, in words.
    function check(text) {
        return ""
    }

    function problemOf(text) {
        if (text === "" && mandatory)
            return qsTr("This must be filled in")
        return text === "" && acceptsEmpty ? "" : check(text)
    }

    // The limits of a text limit its length; a form's item leaves them to its entry.
    function checkLength(text) {
        if (text.length < Number(minimum || 0) || text.length > (maximum === undefined ? Infinity : Number(maximum)))
            return lengthText
        if (face.matches(text))
            return ""
        return Formats.lengthProblem(face.item ? face.item.regex : "", text) || qsTr("This does not have the required form")
    }

    // --- Commit and restore ---

    /// Writes the typed text; false when it is rejected, in which case it stays in the field.
    function commit() {
        if (!isEdited)
            return true
        if (!isReady || readOnly)
            return false
        if (field.inputMethodComposing)
            Qt.inputMethod.commit()
        isTried = true
        if (problem !== "")
            return false
        const typed = field.text
        if (typed === shownText) {
            restore()
            return true
        }
        const newValue = parsed(typed)
        isEdited = false
        if (store(newValue) !== "") {
            isEdited = true
            field.text = typed
            return false
        }
        settle()
        committed(newValue)
        return true
    }

    /// Reverts the typed text; false when there was none.
    function restore() {
        const hadSomething = isEdited || face.refusal !== ""
        face.refusal = ""
        settle()
        return hadSomething
    }

    function settle() {
        isEdited = false
        isTried = false
        hasNews = false
        field.text = shownText
    }

    function takeTyping() {
        face.refusal = ""
        isTried = false
        isEdited = field.text !== shownText
        if (!isEdited)
            hasNews = false
    }

    /// Opens the pad of digits, if the entry has one.
    function openPad() {
        if (!hasPad || !isReady || readOnly)
            return
        padLoader.active = true
        padLoader.item.start(field.text)
    }

    function takePad(text) {
        field.text = text
        takeTyping()
        commit()
    }

    isAcceptable: problem === "" || !face.isApplicable
    complaint: face.refusal !== "" ? face.refusal : isEdited ? problem : ""
    isInvalid: face.refusal !== "" || isEdited && isTried && problem !== ""
    news: hasNews ? qsTr("Changed meanwhile to %1").arg(echoMode === TextInput.Normal ? shownText : qsTr("another value")) : ""
    plainText: face.hasItem && echoMode === TextInput.Normal ? face.valueString : "\u2022".repeat(shownText.length)

    onShownTextChanged: {
        if (!isEdited || field.text === shownText)
            settle()
        else
            hasNews = true
    }
    Connections {
        target: face
        function onReplaced() {
            // The content of the pad was meant for the other item.
            if (padLoader.item)
                padLoader.item.close()
            entry.settle()
        }
        // A hidden field would still receive keys.
        function onIsApplicableChanged() { field.focus = face.isApplicable }
    }
    onVisibleChanged: {
        if (!visible && padLoader.item)
            padLoader.item.close()
    }
    Component.onCompleted: settle()

    EntryFrame {
        Layout.fillWidth: true
        Layout.preferredHeight: ControlsStyle.touch
        isFocused: field.activeFocus
        isInvalid: entry.isInvalid
        quality: face.quality

        RowLayout {
            anchors.fill: parent
            spacing: 0

            TextField {
                id: field
                objectName: "field"
                Layout.fillWidth: true
                Layout.fillHeight: true
                focus: true
                leftPadding: ControlsStyle.margin
                rightPadding: 4
                selectByMouse: true
                color: enabled ? ControlsStyle.text : ControlsStyle.mutedText
                selectionColor: ControlsStyle.primary
                selectedTextColor: ControlsStyle.primaryText
                font.pixelSize: ControlsStyle.bodyText
                echoMode: entry.echoMode
                inputMethodHints: entry.inputMethodHints
                background: null
                Accessible.name: entry.label
                Accessible.description: entry.note
                Keys.onEscapePressed: event.accepted = entry.restore()
                onTextEdited: entry.takeTyping()
                onAccepted: entry.commit()
                onActiveFocusChanged: {
                    // The user has not left a field that loses its meaning.
                    if (!activeFocus && entry && face.isApplicable && !(padLoader.item && padLoader.item.visible))
                        entry.commit()
                }

                TapHandler {
                    acceptedDevices: PointerDevice.TouchScreen
                    enabled: entry.hasPad && ControlsStyle.padOnTap
                    onTapped: entry.openPad()
                }
                // The field's own placeholder would interpret markup.
                Text {
                    anchors { fill: parent; leftMargin: field.leftPadding; rightMargin: field.rightPadding }
                    visible: field.length === 0 && field.preeditText === ""
                    text: entry.placeholderText
                    textFormat: Text.PlainText
                    color: ControlsStyle.border
                    font: field.font
                    verticalAlignment: Text.AlignVCenter
                    elide: Text.ElideRight
                }
            }
            Text {
                Layout.rightMargin: 10
                // The value has priority.
                Layout.maximumWidth: parent.width / 3
                visible: text !== ""
                text: entry.unit
                textFormat: Text.PlainText
                elide: Text.ElideRight
                color: ControlsStyle.mutedText
                font.pixelSize: ControlsStyle.bodyText
            }
            EntryButton {
                objectName: "revealButton"
                visible: entry.echoMode !== TextInput.Normal || isRevealing
                property bool isRevealing: false
                text: isRevealing ? qsTr("Hide") : qsTr("Show")
                Accessible.name: isRevealing ? qsTr("Hide %1").arg(entry.label) : qsTr("Show %1").arg(entry.label)
                onClicked: {
                    isRevealing = !isRevealing
                    field.echoMode = isRevealing ? TextInput.Normal : Qt.binding(() => entry.echoMode)
                }
            }
            EntryButton {
                objectName: "padButton"
                visible: entry.hasPad
                Accessible.name: qsTr("Number pad for %1").arg(entry.label)
                onClicked: entry.openPad()

                Grid {
                    anchors.centerIn: parent
                    columns: 3
                    spacing: 4
                    opacity: parent.enabled ? 1 : 0.4

                    Repeater {
                        model: 9
                        Rectangle {
                            width: 5
                            height: 5
                            radius: 1
                            color: ControlsStyle.primary
                        }
                    }
                }
            }
        }
    }

    Loader {
        id: padLoader
        active: false
        visible: false
        sourceComponent: NumberPad {
            label: entry.unit !== "" ? "%1 (%2)".arg(entry.label).arg(entry.unit) : entry.label
            rangeText: entry.rangeText
            problem: entry.isReady ? entry.problemOf(text) : qsTr("Not ready")
            separator: entry.padSeparator
            hasSign: entry.padHasSign
            onAccepted: {
                close()
                entry.takePad(text)
            }
            onClosed: field.forceActiveFocus()
        }
    }
}
