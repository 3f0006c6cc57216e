import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
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
    // A button of the kind of entry, at the end of the field.
    property Component tool: null
    // A pad of these digits, with a key for each of the separators.
    property bool hasPad: false
    property string padDigits: "0123456789"
    property string padSeparator
    property bool padHasSign: false
    property bool padHasExponent: false
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
        const problem = Formats.limitsProblem(minimum, maximum, text.length)
        if (problem !== "")
            return problem
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
        openPadFor(Qt.OtherFocusReason)
    }

    function openPadFor(reason) {
        if (!hasPad || !isReady || readOnly)
            return
        padLoader.active = true
        padLoader.item.start(field.text, frame, reason)
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
        id: frame
        Layout.fillWidth: true
        Layout.preferredHeight: ControlsStyle.touch
        isFocused: field.activeFocus
        isInvalid: entry.isInvalid
        quality: face.quality

        RowLayout {
            anchors.fill: parent
            spacing: ControlsStyle.touchGap

            T.TextField {
                id: field
                objectName: "field"
                Layout.fillWidth: true
                Layout.fillHeight: true
                focus: true
                leftPadding: ControlsStyle.mirrored ? 0 : ControlsStyle.margin
                rightPadding: ControlsStyle.mirrored ? ControlsStyle.margin : 0
                // Where the layout begins, whatever is typed.
                horizontalAlignment: TextInput.AlignLeft
                verticalAlignment: TextInput.AlignVCenter
                selectByMouse: true
                color: enabled ? ControlsStyle.text : ControlsStyle.disabledText
                selectionColor: ControlsStyle.primary
                selectedTextColor: ControlsStyle.primaryText
                font.pixelSize: ControlsStyle.bodyText
                echoMode: entry.echoMode
                inputMethodHints: entry.inputMethodHints
                Accessible.name: entry.label
                // The name of a password's field is not said.
                Accessible.description: (entry.echoMode === TextInput.Normal ? "" : entry.label + ", ")
                                        + entry.spoken(length === 0 ? entry.placeholderText : "")
                // From here the template takes the description when a screen reader comes; it is not shown.
                placeholderText: Accessible.description
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
                    onTapped: entry.openPadFor(Qt.MouseFocusReason)
                }
                // The field's own placeholder would interpret markup.
                StyledText {
                    anchors { fill: parent; leftMargin: ControlsStyle.margin }
                    visible: field.length === 0 && field.preeditText === ""
                    text: entry.placeholderText
                    muted: true
                    font: field.font
                    verticalAlignment: Text.AlignVCenter
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }
            }
            // Where no line below says so.
            Icon {
                objectName: "invalidMark"
                visible: entry.compact && entry.isInvalid
                name: "warning"
                color: ControlsStyle.invalid
            }
            StyledText {
                readonly property bool mayElide: true

                Layout.rightMargin: padButton.visible ? 0 : ControlsStyle.margin
                // The value has priority.
                Layout.maximumWidth: parent.width / 3
                visible: text !== ""
                text: entry.unit
                elide: Text.ElideRight
                muted: true
                font.pixelSize: ControlsStyle.bodyText
            }
            IconButton {
                objectName: "revealButton"
                visible: entry.echoMode !== TextInput.Normal || isRevealing
                property bool isRevealing: false
                iconName: isRevealing ? "hide" : "preview"
                name: isRevealing ? qsTr("Hide %1").arg(entry.label) : qsTr("Show %1").arg(entry.label)
                onClicked: {
                    isRevealing = !isRevealing
                    field.echoMode = isRevealing ? TextInput.Normal : Qt.binding(() => entry.echoMode)
                }
            }
            IconButton {
                id: padButton
                objectName: "padButton"
                visible: entry.hasPad
                iconName: "keypad"
                name: qsTr("Number pad for %1").arg(entry.label)
                onClicked: entry.openPadFor(visualFocus ? Qt.TabFocusReason : Qt.MouseFocusReason)
            }
            Loader {
                visible: item !== null
                sourceComponent: entry.tool
            }
        }
        FocusWatch { control: field }
    }

    Loader {
        id: padLoader
        active: false
        visible: false
        sourceComponent: NumberPad {
            label: entry.unit !== "" ? "%1 (%2)".arg(entry.label).arg(entry.unit) : entry.label
            rangeText: entry.rangeText
            problem: entry.isReady ? entry.problemOf(text) : qsTr("Not ready")
            digits: entry.padDigits
            separators: entry.padSeparator
            hasSign: entry.padHasSign
            hasExponent: entry.padHasExponent
            onAccepted: {
                close()
                entry.takePad(text)
            }
            onClosed: field.forceActiveFocus(reason)
        }
    }
}
