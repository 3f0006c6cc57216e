import QtQuick 2.15
import UiUtils 1.0

/// The name of a file, without a folder.
FieldEntry {
    // The rules have one home, which reports use as well.
    readonly property FileUtils rules: FileUtils {}

    function check(text) {
        return (text === "" ? "" : rules.fileNameProblem(text)) || checkLength(text)
    }

    rangeText: lengthText
    inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
}
