import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// All samples of the run: one quantity, all or only what failed, in three orders.
KitPage {
    id: page

    property Session session
    readonly property SampleModel quantity: kind.currentIndex === 0 ? session.measurement.roundTrip
                                                                    : session.measurement.throughput

    Accessible.name: qsTr("Results")
    scrolls: false

    RowLayout {
        Layout.fillWidth: true
        spacing: ControlsStyle.margin

        SegmentedChoice {
            id: kind
            objectName: "quantityChoice"
            Layout.fillWidth: true
            model: [{ label: page.session.measurement.roundTrip.title, value: 0 }, { label: page.session.measurement.throughput.title, value: 1 }]
            value: 0
        }
        StatusMark {
            status: page.quantity.status
            large: true
        }
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: ControlsStyle.margin

        SegmentedChoice {
            id: which
            objectName: "failuresChoice"
            Layout.fillWidth: true
            Layout.preferredWidth: 2
            model: [{ label: qsTr("All"), value: 0 }, { label: qsTr("Only failures"), value: 1 }]
            value: 0
        }
        SegmentedChoice {
            id: order
            objectName: "orderChoice"
            Layout.fillWidth: true
            Layout.preferredWidth: 3
            model: [{ label: qsTr("In order"), value: 0 }, { label: qsTr("Smallest"), value: 1 }, { label: qsTr("Largest"), value: 2 }]
            value: 0
        }
    }
    LabelText {
        Layout.fillWidth: true
        text: page.quantity.count === 0 ? ""
            : qsTr("Median %1, limit %2").arg(page.quantity.text(page.quantity.median)).arg(page.quantity.limitText)
        wrapMode: Text.Wrap
    }
    ListArea {
        id: list
        objectName: "sampleList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        name: page.quantity.title
        model: RowFilter {
            sourceModel: page.quantity
            role: "status"
            values: which.currentIndex === 0 ? [] : [Status.Fail]
            sortBy: order.currentIndex === 0 ? "" : "value"
            descending: order.currentIndex === 2
        }
        delegate: ListRow {
            title: qsTr("Sample %1").arg(model.number)
            value: model.text
            status: model.status
        }

        EmptyState {
            anchors.fill: parent
            visible: list.count === 0
            iconName: page.quantity.count === 0 ? "run" : "pass"
            title: page.quantity.count === 0 ? qsTr("No samples yet") : qsTr("Nothing failed")
            text: page.quantity.count === 0 ? "" : qsTr("All samples meet the limit.")
            actionText: page.quantity.count === 0 ? qsTr("Go to Run") : ""
            onActionTriggered: page.session.pageWanted("run")
        }
    }
}
