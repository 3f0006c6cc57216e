import QtQuick 2.15

// The editor of one element of a list; without a row it is the line for the next one.
Loader {
    id: elementEntry

    // A ListEntry; the type cannot be declared, because each of the two would need the other first.
    property var list
    property int row: -1

    focus: true
    sourceComponent: !list ? null : list.isText ? textElement : numberElement
    onLoaded: item.focus = true

    Component {
        id: textElement
        TextEntry {
            forbidden: elementEntry.list.face.isLocal ? "," : ""
            type: "std::string"
            compact: true
            isReady: elementEntry.list.isReady
            label: elementEntry.list.labelOfRow(elementEntry.row)
            unit: elementEntry.list.unit
            minimum: elementEntry.list.minimum
            maximum: elementEntry.list.maximum
            rangeText: elementEntry.list.rangeText
            acceptsEmpty: elementEntry.row < 0
            value: elementEntry.list.element(elementEntry.row, elementEntry.list.face.reports)
            storeWith: newValue => elementEntry.list.storeRow(elementEntry.row, newValue)
        }
    }
    Component {
        id: numberElement
        NumberEntry {
            type: elementEntry.list.type === "std::vector<double>" ? "double" : "int"
            decimals: elementEntry.list.decimals
            compact: true
            isReady: elementEntry.list.isReady
            label: elementEntry.list.labelOfRow(elementEntry.row)
            unit: elementEntry.list.unit
            minimum: elementEntry.list.minimum
            maximum: elementEntry.list.maximum
            rangeText: elementEntry.list.rangeText
            acceptsEmpty: elementEntry.row < 0
            value: elementEntry.list.element(elementEntry.row, elementEntry.list.face.reports)
            storeWith: newValue => elementEntry.list.storeRow(elementEntry.row, newValue)
        }
    }
}
