import QtQuick 2.15

// Digits that are no number, such as a code: zeros at the beginning count. An item of a number's type gets a number.
FieldEntry {
    readonly property bool isNumber: type !== "" && type !== "std::string"

    function check(text) {
        if (!/^[0-9]*$/.test(text) || (text === "" && isNumber))
            return qsTr("Only digits can be used here")
        if (!isNumber)
            return checkLength(text)
        return Number(text) < Number(minimum || 0) || Number(text) > Number(maximum || Number.MAX_SAFE_INTEGER) ? rangeText : ""
    }
    function parsed(text) {
        return !isNumber ? text : text === "" ? undefined : Number(text)
    }

    rangeText: face.textRange
    inputMethodHints: Qt.ImhDigitsOnly
    hasPad: true
}
