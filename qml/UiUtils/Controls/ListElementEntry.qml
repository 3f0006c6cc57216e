import QtQuick 2.15

// The editor of one element of a list; without a row it is the line for the next one.
Loader {
    id: editor

    // A ListEntry, which cannot be said: each would need the other to be known first.
    property var list
    property int row: -1

    focus: true
    sourceComponent: !list ? null : list.isText ? textElement : numberElement
    onLoaded: item.focus = true

    Component {
        id: textElement
        TextEntry {
            forbidden: editor.list.face.isLocal ? "," : ""
            type: "std::string"
            compact: true
            label: editor.list.labelOfRow(editor.row)
            unit: editor.list.unit
            minimum: editor.list.minimum
            maximum: editor.list.maximum
            rangeText: editor.list.rangeText
            acceptsEmpty: editor.row < 0
            value: editor.list.element(editor.row, editor.list.face.reports)
            storeWith: newValue => editor.list.storeRow(editor.row, newValue)
        }
    }
    Component {
        id: numberElement
        NumberEntry {
            type: editor.list.type === "std::vector<double>" ? "double" : "int"
            decimals: editor.list.decimals
            compact: true
            label: editor.list.labelOfRow(editor.row)
            unit: editor.list.unit
            minimum: editor.list.minimum
            maximum: editor.list.maximum
            rangeText: editor.list.rangeText
            acceptsEmpty: editor.row < 0
            value: editor.list.element(editor.row, editor.list.face.reports)
            storeWith: newValue => editor.list.storeRow(editor.row, newValue)
        }
    }
}
