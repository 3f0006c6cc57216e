import QtQuick 2.15
import "formats.js" as Formats

/// The name of a file, without a folder.
FieldEntry {
    function check(text) {
        return (text === "" ? "" : Formats.fileNameProblem(text)) || checkLength(text)
    }

    rangeText: lengthText
    inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
}
