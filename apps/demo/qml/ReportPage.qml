import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// Names and saves the report of the last run. What is wrong is said where it is.
KitPage {
    id: page

    property Session session
    readonly property Report report: session.report
    readonly property bool canSave: session.hasResults && titleEntry.problem === "" && !report.nameProblem && !report.formatProblem
    readonly property string state: !session.hasResults ? report.cannotGenerateReportMessage()
                                  : session.isSaved ? qsTr("Saved in %1").arg(report.saveLocation)
                                  : qsTr("Will be saved in %1").arg(report.saveLocation)

    // False when nothing was saved: a question or an error is open, or the page says what is missing.
    function save() {
        return titleEntry.commit() && nameEntry.commit() && canSave && report.save()
    }

    // A tap that bounces off a glove does not ask whether to overwrite what it has saved.
    Timer {
        id: secondTap
        interval: Qt.styleHints.mouseDoubleClickInterval
    }

    Accessible.name: qsTr("Report")
    footer: [
        BodyText {
            objectName: "reportState"
            Layout.fillWidth: true
            text: page.report.formatProblem || page.report.nameProblem || page.state
            muted: true
            maximumLineCount: 2
            elide: Text.ElideMiddle
            Accessible.role: Accessible.AlertMessage
        },
        TouchButton {
            objectName: "previewButton"
            iconName: "preview"
            enabled: page.session.hasResults
            text: qsTr("Preview")
            onClicked: {
                if (!titleEntry.commit())
                    return
                // Who is quicker than the loader waits for it.
                preview.asynchronous = false
                preview.item.show()
            }
        },
        TouchButton {
            objectName: "saveButton"
            iconName: "save"
            filled: true
            enabled: page.canSave && !secondTap.running
            text: qsTr("Save")
            onClicked: {
                page.save()
                secondTap.restart()
            }
        }
    ]

    // Made when it is first used.
    Loader {
        id: preview
        active: page.visible
        asynchronous: true
        sourceComponent: PreviewDialog { report: page.report }
    }

    GridLayout {
        Layout.fillWidth: true
        columns: 2
        columnSpacing: ControlsStyle.margin
        rowSpacing: ControlsStyle.gap

        FileNameEntry {
            id: nameEntry
            objectName: "nameEntry"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            item: page.report.getSetting("reportName")
            // The name that is used when the field is empty.
            placeholderText: page.session.hasResults ? page.report.proposedFileName() : ""
        }
        TextEntry {
            id: titleEntry
            objectName: "titleEntry"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            item: page.report.getSetting("reportTitle")
        }
        ChoiceEntry {
            objectName: "formatEntry"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            item: page.report.getSetting("reportFormat")
        }
        ChoiceEntry {
            objectName: "locationEntry"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            item: typeof basemgr_cfg_saveLocation === "undefined" ? null : basemgr_cfg_saveLocation
            news: page.session.missesDrive ? qsTr("There is no USB drive: files stay on the unit.") : ""
        }
        SwitchEntry {
            objectName: "compressionEntry"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            item: page.report.getSetting("reportCompression")
        }
        SwitchEntry {
            objectName: "syncEntry"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            item: page.report.getSetting("reportSync_SS")
        }
    }
    Section {
        Layout.fillWidth: true
        title: qsTr("On the report")

        ListRow {
            Layout.fillWidth: true
            iconName: "jobs"
            title: page.session.hasJob ? page.report.jobSummary : qsTr("No job")
            subtitle: page.session.customer
            value: page.session.user
            onClicked: page.session.pageWanted("jobs")
            chevron: true
        }
    }
}
