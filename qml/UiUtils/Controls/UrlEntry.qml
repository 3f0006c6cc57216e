import QtQuick 2.15
import "formats.js" as Formats

/// scheme://host and what may follow.
FieldEntry {
    function check(text) {
        return Formats.urlProblem(text) || checkLength(text)
    }

    rangeText: face.tidyRange
    placeholderText: "https://host/path"
    inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhPreferLowercase | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
}
