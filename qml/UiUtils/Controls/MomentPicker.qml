import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0
import "moments.js" as Moments

// Chooses a date, a time of day or both. It shows what is chosen itself, because it leaves no room for its field.
ModalDialog {
    id: picker

    property string label
    property bool hasDate: true
    property bool hasTime: true
    // In the form of values; empty for none.
    property string earliest
    property string latest

    property var parts: ({ year: 2000, month: 1, day: 1, hour: 0, minute: 0 })
    readonly property string iso: Moments.isoOf(parts, hasDate, hasTime)
    readonly property bool isPermitted: !(earliest !== "" && iso < earliest) && !(latest !== "" && iso > latest)

    signal accepted

    function start(initial, isByKey) {
        parts = initial || Moments.partsOf(new Date(), true, true)
        calendar.usesKeys = isByKey
        open()
        const first = hasDate ? calendar : hours
        first.forceActiveFocus(isByKey ? Qt.TabFocusReason : Qt.MouseFocusReason)
    }

    function move(months, days) {
        parts = Moments.moved(parts, months, days)
    }

    function turn(part, count, direction) {
        parts = Object.assign({}, parts, { [part]: (parts[part] + direction + count) % count })
    }

    function finish() {
        if (!isPermitted)
            return
        close()
        accepted()
    }

    objectName: "momentPicker"
    width: implicitContentWidth + leftPadding + rightPadding
    padding: ControlsStyle.margin

    contentItem: FocusScope {
        implicitWidth: columns.implicitWidth
        implicitHeight: columns.implicitHeight
        focus: true
        LayoutMirroring.enabled: ControlsStyle.mirrored
        LayoutMirroring.childrenInherit: true
        Accessible.role: Accessible.Dialog
        Accessible.name: picker.label
        Keys.onEscapePressed: picker.close()
        Keys.onReturnPressed: picker.finish()
        Keys.onEnterPressed: picker.finish()

        RowLayout {
            id: columns
            anchors.fill: parent
            spacing: ControlsStyle.margin

            ColumnLayout {
                Layout.preferredWidth: ControlsStyle.mm(52)
                Layout.maximumWidth: ControlsStyle.mm(52)
                Layout.alignment: Qt.AlignTop
                spacing: ControlsStyle.touchGap

                LabelText { Layout.fillWidth: true; text: picker.label }
                HeadingText {
                    objectName: "pickedText"
                    Layout.fillWidth: true
                    wrapMode: Text.NoWrap
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: ControlsStyle.bodyText
                    text: Moments.written(picker.parts, Qt.locale(), picker.hasDate, picker.hasTime)
                    color: picker.isPermitted ? ControlsStyle.text : ControlsStyle.invalid
                }
                TurnLine {
                    Layout.fillWidth: true
                    visible: picker.hasDate
                    name: qsTr("Year")
                    text: Moments.writtenDate(picker.parts, Qt.locale(), "yyyy")
                    onTurned: picker.move(12 * direction, 0)
                }
                TurnLine {
                    objectName: "monthLine"
                    Layout.fillWidth: true
                    visible: picker.hasDate
                    name: qsTr("Month")
                    text: Qt.locale().standaloneMonthName(picker.parts.month - 1, Locale.LongFormat)
                    onTurned: picker.move(direction, 0)
                }
                TurnLine {
                    id: hours
                    objectName: "hourLine"
                    Layout.fillWidth: true
                    visible: picker.hasTime
                    name: qsTr("Hour")
                    text: Moments.writtenTime(picker.parts, Qt.locale(), Moments.hourFormat(Qt.locale()))
                    onTurned: picker.turn("hour", 24, direction)
                }
                TurnLine {
                    objectName: "minuteLine"
                    Layout.fillWidth: true
                    visible: picker.hasTime
                    name: qsTr("Minute")
                    text: Moments.writtenTime(picker.parts, Qt.locale(), "mm")
                    onTurned: picker.turn("minute", 60, direction)
                }
                Item { Layout.fillHeight: true }
                RowLayout {
                    Layout.fillWidth: true
                    spacing: ControlsStyle.touchGap

                    TouchButton {
                        Layout.fillWidth: true
                        text: qsTr("Cancel")
                        onClicked: picker.close()
                    }
                    TouchButton {
                        objectName: "pickButton"
                        Layout.fillWidth: true
                        filled: true
                        enabled: picker.isPermitted
                        text: qsTr("Choose")
                        onClicked: picker.finish()
                    }
                }
            }
            CalendarGrid {
                id: calendar
                visible: picker.hasDate
                parts: picker.parts
                earliest: picker.earliest.slice(0, 10)
                latest: picker.latest.slice(0, 10)
                onMoved: picker.move(0, days)
                onTurned: picker.move(months, 0)
                onPicked: picker.parts = Object.assign({}, picker.parts, day)
            }
        }
    }
}
