import QtQuick 2.15

FieldEntry {
    function check(text) {
        return checkLength(text)
    }

    rangeText: lengthText
    echoMode: TextInput.Password
    inputMethodHints: Qt.ImhHiddenText | Qt.ImhSensitiveData | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
}
