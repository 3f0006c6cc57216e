import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0
import "formats.js" as Formats

/// The elements of an array, one below the other, and a line for a new one.
Entry {
    id: entry

    /// Number of visible rows; more are scrolled.
    property int visibleRows: 3
    /// Decimals of the elements; -1 for any.
    property int decimals: face.decimals

    readonly property bool isText: type === "std::vector<string>"
    /// Number of elements.
    readonly property int count: rows.count

    // Called with the number of reports, so that a binding is evaluated again after each.
    function element(index, reports) {
        return face.hasItem && index >= 0 ? item.at(index) : undefined
    }

    function labelOfRow(index) {
        return index < 0 ? qsTr("New element of %1").arg(label) : qsTr("Element %1 of %2").arg(index + 1).arg(label)
    }

    function storeRow(index, newValue) {
        // A row that is being disabled loses the focus before it learns the reason.
        if (!face.item || !face.item.isReady || !face.isApplicable || readOnly)
            return qsTr("Not ready")
        return index < 0 ? append(newValue) : replace(index, newValue)
    }

    function write(change, local) {
        return face.writeWith(() => {
            if (face.isLocal) {
                local()
                return
            }
            const list = face.elements()
            change(list)
            item.value = list
        })
    }

    function replace(index, newValue) {
        return write(list => list[index] = newValue, () => item.setAt(index, newValue))
    }

    function append(newValue) {
        const refusal = write(list => list.push(newValue), () => item.insertAt(item.valueCount, newValue))
        if (refusal === "")
            committed(newValue)
        return refusal
    }

    function remove(index) {
        // The row is removed first, so that the rows after it keep their typed text.
        rows.remove(index)
        if (write(list => list.splice(index, 1), () => item.removeAt(index)) !== "")
            rows.insert(index, { unused: 0 })
        follow()
    }

    function follow() {
        const source = face.item
        const count = source ? source.valueCount : 0
        // All at once, because the view receives each change of the model.
        if (rows.count < count)
            rows.append(new Array(count - rows.count).fill({ unused: 0 }))
        else if (rows.count > count)
            rows.remove(count, rows.count - count)
    }

    function focusRow(index) {
        view.positionViewAtIndex(index, ListView.Contain)
        const row = view.itemAtIndex(index)
        if (row)
            row.forceActiveFocus()
        else
            adder.forceActiveFocus()
    }

    isAcceptable: !mandatory || count > 0 || !face.isApplicable
    plainText: face.hasItem ? allText(face.reports) : ""

    function allText(reports) {
        return face.elements().map(textOf).join(", ")
    }

    function textOf(element) {
        return isText ? element : String(element).replace(".", Qt.locale().decimalPoint)
    }

    rangeText: Formats.rangeText(minimum, maximum, textOf, isText ? qsTr("chars") : unit)
    readonly property bool isLong: rows.count > visibleRows

    Connections {
        target: entry.face
        function onReportsChanged() { entry.follow() }
        function onTypeChanged() { entry.follow() }
    }
    Component.onCompleted: follow()

    ListModel { id: rows }

    ListView {
        id: view
        objectName: "rows"
        Layout.fillWidth: true
        // A row that is cut off shows that there are more.
        Layout.preferredHeight: entry.isLong ? entry.visibleRows * (ControlsStyle.touch + spacing) + ControlsStyle.touch / 2 : contentHeight
        visible: count > 0
        model: rows
        clip: true
        spacing: ControlsStyle.touchGap
        // Rows keep their typed text while they are scrolled out of view.
        cacheBuffer: 4000
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: ScrollMark {}

        delegate: FocusScope {
            id: row

            width: view.width - (entry.isLong ? ControlsStyle.margin : 0)
            height: line.implicitHeight
            Keys.onUpPressed: entry.focusRow(Math.max(0, index - 1))
            Keys.onDownPressed: entry.focusRow(index + 1)
            onActiveFocusChanged: {
                if (activeFocus && entry.face.hasItem)
                    entry.item.arraySelection = index
            }

            RowLayout {
                id: line
                width: parent.width
                spacing: ControlsStyle.touchGap

                StyledText {
                    Layout.preferredWidth: ControlsStyle.mm(5)
                    text: index + 1
                    horizontalAlignment: Text.AlignRight
                    muted: true
                    font.pixelSize: ControlsStyle.smallText
                }
                ListElementEntry {
                    Layout.fillWidth: true
                    list: entry
                    row: index
                }
                IconButton {
                    objectName: "removeButton"
                    iconName: "delete"
                    name: qsTr("Remove element %1 of %2").arg(index + 1).arg(entry.label)
                    onClicked: entry.remove(index)
                }
            }
        }
    }
    RowLayout {
        Layout.fillWidth: true
        Layout.leftMargin: ControlsStyle.mm(5) + ControlsStyle.touchGap
        Layout.rightMargin: entry.isLong ? ControlsStyle.margin : 0
        spacing: ControlsStyle.touchGap

        ListElementEntry {
            id: adder
            list: entry
            objectName: "adder"
            Layout.fillWidth: true
            Keys.onUpPressed: {
                if (rows.count > 0)
                    entry.focusRow(rows.count - 1)
            }
        }
        IconButton {
            objectName: "addButton"
            iconName: "add"
            name: qsTr("Add to %1").arg(entry.label)
            onClicked: {
                if (adder.item)
                    adder.item.commit()
            }
        }
    }
}
