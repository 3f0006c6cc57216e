import QtQuick 2.15
import UiUtils.Controls 1.0
import "moments.js" as Moments

// The days of a month, in weeks that begin as the locale says. The arrow keys go from day to day, Page Up and Page Down
// from month to month.
FocusScope {
    id: calendar

    // The chosen day, whose month is shown.
    property var parts
    // The first and the last permitted day as ISO texts; empty for none.
    property string earliest
    property string latest

    readonly property int firstDay: Qt.locale().firstDayOfWeek
    readonly property var days: Moments.weeks(parts.year, parts.month, firstDay)

    // Whether the short names of the days fit.
    readonly property bool hasRoom: [0, 1, 2, 3, 4, 5, 6].every(column => labelMetrics.advanceWidth(dayName(column, Locale.ShortFormat)) <= ControlsStyle.touch)
    // Whether the user is at the keys, and should see where they lead.
    property bool usesKeys: false

    signal moved(int days)
    signal turned(int months)
    signal picked(var day)

    function dayName(column, format) {
        return Qt.locale().standaloneDayName((firstDay + column) % 7, format)
    }

    function isPermitted(day) {
        const iso = Moments.isoOf(day, true, false)
        return !(earliest !== "" && iso < earliest) && !(latest !== "" && iso > latest)
    }

    function handle(event) {
        const ahead = ControlsStyle.mirrored ? -1 : 1
        const steps = { [Qt.Key_Left]: -ahead, [Qt.Key_Right]: ahead, [Qt.Key_Up]: -7, [Qt.Key_Down]: 7 }[event.key]
        const months = { [Qt.Key_PageUp]: -1, [Qt.Key_PageDown]: 1 }[event.key]
        event.accepted = steps !== undefined || months !== undefined
        usesKeys = usesKeys || event.accepted
        if (steps !== undefined)
            moved(steps)
        else if (months !== undefined)
            turned(months)
    }

    implicitWidth: grid.implicitWidth
    implicitHeight: grid.implicitHeight
    activeFocusOnTab: true
    Accessible.role: Accessible.Table
    Accessible.name: Moments.toDate(parts).toLocaleDateString(Qt.locale(), Locale.LongFormat)
    Accessible.focusable: true
    Keys.onPressed: handle(event)

    FontMetrics {
        id: labelMetrics
        font.pixelSize: ControlsStyle.labelText
    }
    Grid {
        id: grid
        columns: 7
        columnSpacing: ControlsStyle.touchGap
        rowSpacing: ControlsStyle.touchGap

        Repeater {
            model: 7

            LabelText {
                width: ControlsStyle.touch
                text: calendar.dayName(index, calendar.hasRoom ? Locale.ShortFormat : Locale.NarrowFormat)
                elide: Text.ElideNone
                horizontalAlignment: Text.AlignHCenter
            }
        }
        Repeater {
            model: 42

            CalendarDay {
                readonly property var day: calendar.days[index]

                objectName: Moments.isoOf(day, true, false)
                checked: day.month === calendar.parts.month && day.day === calendar.parts.day
                isWithin: day.month === calendar.parts.month
                enabled: calendar.isPermitted(day)
                text: Moments.writtenDate(day, Qt.locale(), "d")
                Accessible.name: Moments.toDate(day).toLocaleDateString(Qt.locale(), Locale.LongFormat)
                onClicked: calendar.picked(day)

                FocusFrame {
                    control: calendar
                    visible: parent.checked && calendar.activeFocus && (calendar.usesKeys || !ControlsStyle.keyFocus)
                }
            }
        }
    }
}
