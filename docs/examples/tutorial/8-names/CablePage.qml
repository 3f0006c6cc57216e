import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import Instrument.Cable 1.0

KitPage {
    title: qsTr("Cable test")
    service: "cable"
    footer: [
        Item { Layout.fillWidth: true },
        TouchButton {
            text: qsTr("Revert")
            enabled: pending.count > 0
            onClicked: { pending.revertAll(); pending.begin() }
        },
        TouchButton {
            text: qsTr("Apply")
            filled: true
            enabled: pending.waiting > 0
            onClicked: { pending.apply(); pending.begin() }
        }
    ]

    FigureCard {
        Layout.fillWidth: true
        label: Cable.res_loss.label
        value: Cable.res_loss.isReady ? Cable.res_loss.valueString : ""
        status: Cable.res_loss.qualityCode
    }
    Card {
        Layout.fillWidth: true
        title: qsTr("Set-up")

        ItemEntry { Layout.fillWidth: true; item: Cable.cfg_site }
        ItemEntry { Layout.fillWidth: true; item: Cable.cfg_length }
    }
    PendingChanges {
        id: pending
        Component.onCompleted: begin()
    }
    Card {
        Layout.fillWidth: true
        title: qsTr("Changes")
        visible: pending.count > 0

        PendingChangesView { Layout.fillWidth: true; changes: pending }
    }
    Card {
        Layout.fillWidth: true
        title: qsTr("Report")

        FileNameEntry { Layout.fillWidth: true; item: report.getSetting("reportName") }
        ChoiceEntry { Layout.fillWidth: true; item: report.getSetting("reportFormat") }
        TouchButton { text: qsTr("Save"); enabled: Cable.res_loss.isReady; onClicked: report.save() }
        BodyText { id: saved }
    }
    PageReport {
        id: report
        folder: "cable"
        onContentWanted: {
            content.beginReport("cable")
            content.setKey("title", qsTr("Cable test, %1").arg(Cable.cfg_site.valueString))
            content.beginTable("results", qsTr("Results"))
            for (const item of [Cable.cfg_length, Cable.res_loss])
                content.addRow(item.name, item.label, item.valueString, { status: item.qualityCode })
            content.endTable()
            content.endReport()
        }
        onReportOverwriteAccepted: save(true)
        onReportGenerated: saved.text = qsTr("Saved: %1").arg(filename)
    }
    NotificationDialog { }
}
