import QtQuick 2.15

/// Any text, of the length and form that the item requires.
FieldEntry {
    /// Characters that this text must not contain.
    property string forbidden

    function check(text) {
        for (const character of forbidden) {
            if (text.includes(character))
                return qsTr("\"%1\" cannot be used here").arg(character)
        }
        return checkLength(text)
    }

    rangeText: lengthText
}
