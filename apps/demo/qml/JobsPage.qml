import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// The jobs that the service knows, recent first; one of them becomes the job in hand.
KitPage {
    id: page

    property Session session
    readonly property var states: ({ "planned": qsTr("Planned"), "in progress": qsTr("In progress"), "done": qsTr("Done") })
    readonly property bool isServed: services.jobs !== undefined && services.basemgr !== undefined

    function choose(job) {
        if (session.setup.waiting > 0)
            session.jobs.problem = qsTr("Apply or revert the set-up first: it would be applied with the job.")
        else if (session.jobs.open(job))
            session.pageWanted("home")
    }

    title: qsTr("Jobs")
    service: "jobs"
    subtitle: qsTr("%n jobs", "", list.count)
    scrolls: false
    actions: TouchButton {
        iconName: "people"
        text: qsTr("People")
        onClicked: page.session.pageWanted("people")
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: ControlsStyle.touchGap

        SearchField {
            id: search
            objectName: "jobSearch"
            Layout.fillWidth: true
            placeholderText: qsTr("Job, customer or circuit")
        }
        SegmentedChoice {
            id: kind
            objectName: "jobKind"
            model: [{ label: qsTr("Open"), value: 0 }, { label: qsTr("All"), value: 1 }]
            value: 0
        }
    }
    InlineProblem {
        Layout.fillWidth: true
        keepsRoom: true
        lines: 2
        text: page.session.jobs.problem
    }
    ListArea {
        id: list
        objectName: "jobList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        name: page.title
        model: RowFilter {
            sourceModel: page.isServed ? jobs_res_jobs.value : null
            text: search.text
            textRoles: ["jobId", "customer", "circuit", "task"]
            role: "state"
            values: kind.currentIndex === 0 ? ["planned", "in progress"] : []
            sortBy: "changed"
            descending: true
        }
        delegate: ListRow {
            objectName: "job " + model.jobId
            title: qsTr("%1, %2").arg(model.jobId).arg(model.customer)
            subtitle: qsTr("%1, %2").arg(model.task).arg(model.circuit)
            value: qsTr("%1\n%2").arg(page.states[model.state] || model.state)
                                 .arg(new Date(model.changed).toLocaleString(Qt.locale(), Locale.ShortFormat))
            selected: page.session.hasJob && model.jobId === page.session.jobId
            onClicked: page.choose(list.model.get(index))
        }

        EmptyState {
            anchors.fill: parent
            visible: list.count === 0 && (!page.isServed || services.jobs.isAvailable)
            iconName: "search"
            title: page.isServed ? qsTr("No job is found") : qsTr("There are no jobs")
            text: page.isServed ? qsTr("Other words, or all jobs, may find one.")
                                : qsTr("The services of jobs and of the unit are not published.")
        }
    }
}
