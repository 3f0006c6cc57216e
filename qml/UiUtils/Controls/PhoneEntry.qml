import QtQuick 2.15
import "formats.js" as Formats

/// A telephone number: digits, a leading +, blanks and ( ) / - * #.
FieldEntry {
    function check(text) {
        return Formats.phoneProblem(text) || checkLength(text)
    }

    rangeText: lengthText
    placeholderText: "+1 555 0100"
    inputMethodHints: Qt.ImhDialableCharactersOnly
}
