import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import UiUtils.Controls 1.0

/// The progress of a save whose controller handles events meanwhile (Report::setInteractive()). From the first moment
/// it blocks everything below, because the page must not change during a save. A window needs one of these for each
/// such controller.
ModalDialog {
    id: dialog

    /// The controller whose saves are shown, a Report.
    property var report: null

    /// Milliseconds after which a save is long enough to be shown: a flash would help nobody.
    property int delay: 200

    /// Whether a save runs, shown or not.
    readonly property bool isSaving: report ? report.saving : false
    /// How much of it is written, 0 to 1.
    readonly property real progress: isSaving ? report.progress : 0
    /// Whether the user has cancelled it.
    property bool isCancelled: false

    // An invisible button cannot be meant.
    function cancel() {
        if (!isInSight || isCancelled)
            return
        isCancelled = true
        report.cancel()
    }

    // The controller's name in place of an empty one contains the time, which passes during the save.
    function savedName() {
        const item = report.getSetting("reportName")
        return item && item.value ? item.value : report.title
    }

    // The click that started the save is not over, and the button would take the next one for its own, wherever that
    // is.
    function takePointerFromPage() {
        const page = overlay.parent
        page.enabled = false
        page.enabled = true
    }

    onAboutToShow: {
        takePointerFromPage()
        isCancelled = false
        isInSight = delay <= 0
    }
    onClosed: isInSight = false

    objectName: "saveProgress"
    visible: isSaving && overlay !== null
    isInSight: false
    enter: null
    exit: null

    contentItem: FocusScope {
        // A popup does not inherit it from the page.
        LayoutMirroring.enabled: ControlsStyle.mirrored
        LayoutMirroring.childrenInherit: true
        implicitHeight: column.implicitHeight
        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: titleText.text
        Accessible.description: nameText.text
        Keys.onEscapePressed: {
            if (!event.isAutoRepeat)
                dialog.cancel()
        }

        Column {
            id: column
            width: parent.width
            spacing: ControlsStyle.margin

            StyledText {
                id: titleText
                objectName: "progressTitle"
                width: parent.width
                text: dialog.isCancelled ? qsTr("Cancelling the save") : qsTr("Saving the report")
                wrapMode: Text.Wrap
                font { pixelSize: ControlsStyle.headingText; weight: Font.DemiBold }
            }
            StyledText {
                id: nameText
                objectName: "progressName"
                readonly property bool mayElide: true

                width: parent.width
                text: dialog.isSaving ? dialog.savedName() : ""
                // Similar names differ at their ends.
                elide: Text.ElideMiddle
                font.pixelSize: ControlsStyle.bodyText
            }
            Item {
                width: parent.width
                height: percentage.implicitHeight

                T.ProgressBar {
                    id: bar
                    objectName: "progressBar"
                    anchors { left: parent.left; right: percentage.left; rightMargin: ControlsStyle.margin; verticalCenter: parent.verticalCenter }
                    implicitHeight: ControlsStyle.mm(2.5)
                    value: dialog.progress
                    padding: 0
                    background: Rectangle {
                        radius: height / 2
                        color: ControlsStyle.field
                        border { width: ControlsStyle.line; color: ControlsStyle.border }
                    }
                    contentItem: Item {
                        Rectangle {
                            anchors.left: parent.left
                            visible: width > 0
                            width: bar.position * parent.width
                            height: parent.height
                            radius: height / 2
                            color: ControlsStyle.primary
                        }
                    }
                    Accessible.role: Accessible.ProgressBar
                    Accessible.name: percentage.text
                }
                Text {
                    id: percentage
                    anchors.right: parent.right
                    width: ControlsStyle.mm(12)
                    text: qsTr("%1 %").arg(Math.floor(100 * dialog.progress))
                    textFormat: Text.PlainText
                    horizontalAlignment: Text.AlignRight
                    color: ControlsStyle.text
                    font.pixelSize: ControlsStyle.bodyText
                    Accessible.ignored: true
                }
            }
            TouchButton {
                objectName: "cancelButton"
                anchors.right: parent.right
                focus: true
                enabled: dialog.isInSight && !dialog.isCancelled
                text: qsTr("Cancel")
                onClicked: dialog.cancel()
            }
        }
    }

    Timer {
        interval: dialog.delay
        running: dialog.visible && !dialog.isInSight
        onTriggered: dialog.isInSight = true
    }
    // Timers do not fire in a save that a timer has started.
    Connections {
        readonly property double start: dialog.isSaving ? Date.now() : 0

        target: dialog.isSaving ? dialog.report : null
        function onProgressChanged() {
            if (Date.now() - start >= dialog.delay)
                dialog.isInSight = true
        }
    }
}
