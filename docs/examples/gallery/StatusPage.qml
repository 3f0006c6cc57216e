import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

KitPage {
    title: qsTr("Status and messages")

    RowLayout {
        Layout.fillWidth: true
        spacing: ControlsStyle.margin

        Repeater {
            model: [
                { label: qsTr("Round-trip time"), figure: "14.2 ms", status: Status.Pass, note: "\u2264 20 ms" },
                { label: qsTr("Throughput"), figure: "8.9 Gbit/s", status: Status.Marginal, note: "\u2265 9 Gbit/s" },
                { label: qsTr("Attenuation"), figure: "-31.7 dB", status: Status.Fail, note: "\u2265 -28 dB" },
                { label: qsTr("Length"), figure: "2.41 km", status: Status.None, note: "" }
            ]

            FigureCard {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                label: modelData.label
                value: modelData.figure
                status: modelData.status
                note: modelData.note
            }
        }
    }
    ServiceBanner {
        id: banner
        Layout.fillWidth: true
        service: away.checked ? "not there" : ""
    }
    TouchButton {
        id: away
        checkable: true
        checked: true
        text: checked ? qsTr("Let the service return") : qsTr("Let the service vanish")
    }
    Card {
        Layout.fillWidth: true
        title: qsTr("Progress")

        ProgressLine { Layout.fillWidth: true; value: 0.42; text: qsTr("42 of 100 samples, 12 s left") }
        ProgressLine { Layout.fillWidth: true; indeterminate: true; text: qsTr("Waiting for the far end") }
    }
    Card {
        Layout.fillWidth: true
        title: qsTr("Problems, where they are")

        InlineProblem { Layout.fillWidth: true; text: qsTr("The name may have 50 characters, it has 86.") }
        InlineProblem { Layout.fillWidth: true; text: qsTr("The drive is full. Delete files, or save to the USB drive; what was measured is kept as a draft until then.") }
    }
}
