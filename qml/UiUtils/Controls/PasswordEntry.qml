import QtQuick 2.15

/// A text that is shown only on demand.
FieldEntry {
    function check(text) {
        return checkLength(text)
    }

    rangeText: lengthText
    echoMode: TextInput.Password
    inputMethodHints: Qt.ImhHiddenText | Qt.ImhSensitiveData | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
}
