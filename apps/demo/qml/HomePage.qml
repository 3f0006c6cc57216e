import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// The job in hand, what comes next, and the ways to everything else.
KitPage {
    id: page

    property Session session
    readonly property LoopbackMeasurement measurement: session.measurement
    readonly property var next: {
        if (!session.hasJob)
            return { page: "jobs", text: qsTr("Choose a job."), action: qsTr("Choose") }
        if (measurement.running)
            return { page: "run", text: measurement.stateText, action: qsTr("Look") }
        if (!session.hasResults)
            return { page: "run", text: qsTr("Measure. The set-up is ready."), action: qsTr("Measure") }
        if (!session.isSaved)
            return { page: "report", text: qsTr("Save the report of this run."), action: qsTr("Report") }
        return { page: "jobs", text: qsTr("The report is saved. Take the next job."), action: qsTr("Jobs") }
    }

    Accessible.name: qsTr("Home")
    scrolls: false

    RowLayout {
        Layout.fillWidth: true
        Layout.fillHeight: false
        spacing: ControlsStyle.margin

        Card {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            title: page.session.hasJob ? page.session.jobId : qsTr("No job")

            BodyText {
                Layout.fillWidth: true
                text: page.session.hasJob ? page.session.customer : qsTr("No job is open. Results are saved without one.")
                maximumLineCount: 2
                elide: Text.ElideRight
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: ControlsStyle.touchGap

                TouchButton {
                    objectName: "jobsButton"
                    Layout.fillWidth: true
                    iconName: "jobs"
                    text: qsTr("Jobs")
                    onClicked: page.session.pageWanted("jobs")
                }
                TouchButton {
                    objectName: "peopleButton"
                    Layout.fillWidth: true
                    iconName: "people"
                    text: qsTr("People")
                    onClicked: page.session.pageWanted("people")
                }
            }
        }
        // A draft that is offered takes the place of the next step, so that nothing moves.
        Card {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            title: page.session.draft.available ? qsTr("Not saved") : qsTr("Next")
            status: page.session.draft.available ? Status.None : page.measurement.status

            BodyText {
                Layout.fillWidth: true
                text: page.session.draft.available
                      ? qsTr("Results of %1 were not saved.").arg(page.session.draft.savedAt.toLocaleString(Qt.locale(), Locale.ShortFormat))
                      : page.next.text
                maximumLineCount: 2
                elide: Text.ElideRight
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: ControlsStyle.touchGap

                TouchButton {
                    objectName: "discardButton"
                    visible: page.session.draft.available
                    Layout.fillWidth: true
                    text: qsTr("Discard")
                    onClicked: page.session.draft.discard()
                }
                TouchButton {
                    objectName: "nextButton"
                    Layout.fillWidth: true
                    filled: true
                    text: page.session.draft.available ? qsTr("Open") : page.next.action
                    onClicked: page.session.draft.available ? page.session.draft.restore() : page.session.pageWanted(page.next.page)
                }
            }
        }
    }
    GridLayout {
        Layout.fillWidth: true
        Layout.fillHeight: true
        columns: 3
        columnSpacing: ControlsStyle.margin
        rowSpacing: ControlsStyle.margin

        Repeater {
            model: [
                { page: "setup", icon: "settings", title: qsTr("Set-up"), marked: page.session.setup.waiting > 0,
                  text: page.session.setup.waiting > 0 ? qsTr("Not applied yet") : qsTr("Applied") },
                { page: "run", icon: "run", title: qsTr("Run"), text: page.measurement.stateText },
                { page: "results", icon: "results", title: qsTr("Results"), status: page.measurement.status,
                  text: page.session.hasResults ? qsTr("%1 samples").arg(page.measurement.roundTrip.count + page.measurement.throughput.count)
                                                : qsTr("None yet") },
                { page: "report", icon: "report", title: qsTr("Report"),
                  text: !page.session.hasResults ? qsTr("Nothing to save") : page.session.isSaved ? qsTr("Saved") : qsTr("Not saved") },
                { page: "files", icon: "files", title: qsTr("Files"), text: qsTr("All that is saved") },
                { page: "settings", icon: "more", title: qsTr("Settings"), text: qsTr("Of the unit") }
            ]

            Tile {
                objectName: modelData.page + "Tile"
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                iconName: modelData.icon
                title: modelData.title
                note: modelData.text
                status: modelData.status || Status.None
                marked: modelData.marked === true
                onClicked: page.session.pageWanted(modelData.page)
            }
        }
    }
}
