import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Demo 1.0

// Settings of the unit, its user, the job and the measurement. Entries are held back until all of them are applied
// together.
FocusScope {
    id: page

    property LoopbackMeasurement measurement
    readonly property bool isServed: services.basemgr !== undefined && services.loopback !== undefined
    readonly property var cards: form.item ? form.item.cards : []
    readonly property int changed: cards.reduce((sum, card) => sum + card.changed, 0)
    readonly property bool acceptable: cards.every(card => card.acceptable)
    // Why the service rejected what was last applied.
    property string refusal

    function begin() {
        refusal = ""
        services.basemgr.startChanges()
        services.loopback.startChanges()
    }

    // Returns the reason when the settings were rejected, and an empty text when they were accepted.
    function apply() {
        refusal = ""
        if (changed === 0)
            return ""
        // One action carries the pending changes of every service; the other transaction only has to be ended, unless
        // the changes were rejected and would be sent again.
        services.basemgr.applyChanges()
        if (!refusal)
            services.loopback.applyChanges()
        else
            blame()
        return refusal
    }

    // The reason is shown at the settings that it names, and at all changed ones when it names none.
    function blame() {
        const rows = cards.reduce((all, card) => all.concat(card.rows), []).filter(row => row.changed)
        const named = rows.filter(row => refusal.indexOf(row.item.label) >= 0)
        rows.forEach(row => row.blamed = named.length === 0 || named.indexOf(row) >= 0)
        if (rows.length > 0)
            view.reveal(named.length > 0 ? named[0] : rows[0])
    }

    function revert() {
        refusal = ""
        services.basemgr.revertChanges()
        services.loopback.revertChanges()
        cards.forEach(card => card.reset())
    }

    // Enters a text for the setting with that id as a user does; returns the previous text, or nothing without such a
    // setting.
    function enter(id, text) {
        for (const card of cards) {
            for (const row of card.rows) {
                if (row.item && row.item.id === id)
                    return row.enter(text)
            }
        }
    }

    ColumnLayout {
        anchors { fill: parent; margins: Theme.margin }
        visible: page.isServed
        spacing: Theme.margin

        ScrollArea {
            id: view

            Layout.fillWidth: true
            Layout.fillHeight: true
            contentHeight: form.height

            Loader {
                id: form
                width: view.width - Theme.margin
                focus: true
                active: page.isServed
                sourceComponent: formComponent
            }
        }
        Card {
            Layout.fillWidth: true
            Layout.preferredHeight: 72
            color: page.changed > 0 ? Theme.notice : Theme.card
            border { width: page.changed > 0 ? 2 : 1; color: page.refusal || !page.acceptable ? Theme.fail
                                                            : page.changed > 0 ? Theme.focus : Theme.border }

            RowLayout {
                anchors { fill: parent; leftMargin: Theme.margin; rightMargin: Theme.margin }
                spacing: Theme.margin

                ChangeMark { visible: page.changed > 0 }
                Text {
                    Layout.fillWidth: true
                    text: {
                        if (page.refusal)
                            return page.refusal
                        if (!page.acceptable)
                            return qsTr("An entry is not acceptable. Correct it, or revert.")
                        if (page.changed === 0)
                            return qsTr("All settings are applied.")
                        return page.changed === 1 ? qsTr("1 change is not applied yet.")
                                                  : qsTr("%1 changes are not applied yet.").arg(page.changed)
                    }
                    textFormat: Text.PlainText
                    color: page.refusal || !page.acceptable ? Theme.fail
                                                            : page.changed > 0 ? Theme.text : Theme.mutedText
                    font.pixelSize: page.refusal ? Theme.smallText : Theme.bodyText
                    wrapMode: Text.Wrap
                    maximumLineCount: page.refusal ? 3 : 2
                    elide: Text.ElideRight
                    Accessible.role: Accessible.AlertMessage
                    Accessible.name: text
                }
                ActionButton {
                    Layout.preferredWidth: 140
                    filled: false
                    enabled: page.changed > 0
                    text: qsTr("Revert")
                    onClicked: page.revert()
                }
                ActionButton {
                    Layout.preferredWidth: 140
                    enabled: page.changed > 0 && page.acceptable
                    text: qsTr("Apply")
                    onClicked: page.apply()
                }
            }
        }
    }

    EmptyNote {
        anchors { fill: parent; margins: Theme.margin }
        visible: !page.isServed
        text: qsTr("There are no settings, because the services basemgr and loopback are not published.")
    }

    Component {
        id: formComponent

        RowLayout {
            readonly property var cards: [technician, customer, measurement, reports]

            spacing: Theme.margin

            ColumnLayout {
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                spacing: Theme.margin

                SettingsCard {
                    id: technician
                    Layout.fillWidth: true
                    title: qsTr("Technician")
                    onEdited: page.begin()
                    onRefused: page.refusal = words

                    ItemField { Layout.fillWidth: true; item: basemgr_cfg_userInfo_firstName; unset: "default" }
                    ItemField { Layout.fillWidth: true; item: basemgr_cfg_userInfo_lastName; unset: "default" }
                    ItemField { Layout.fillWidth: true; item: basemgr_cfg_userInfo_techID; unset: "default" }
                    ItemField { Layout.fillWidth: true; item: basemgr_cfg_userInfo_phone; unset: "default" }
                }
                SettingsCard {
                    id: customer
                    Layout.fillWidth: true
                    title: qsTr("Customer")
                    onEdited: page.begin()
                    onRefused: page.refusal = words

                    ItemField { Layout.fillWidth: true; item: basemgr_cfg_customerInfo_name; unset: "default" }
                    ItemField { Layout.fillWidth: true; item: basemgr_cfg_customerInfo_address; unset: "default" }
                    ItemField { Layout.fillWidth: true; item: basemgr_cfg_customerInfo_circuitID; unset: "default" }
                    ItemField { Layout.fillWidth: true; item: basemgr_cfg_customerInfo_contact; unset: "default" }
                }
            }
            ColumnLayout {
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                spacing: Theme.margin

                SettingsCard {
                    id: measurement
                    Layout.fillWidth: true
                    title: qsTr("Measurement")
                    note: page.measurement.rangeText
                    onEdited: page.begin()
                    onRefused: page.refusal = words

                    ItemField { Layout.fillWidth: true; item: loopback_cfg_maximumRtt }
                    ItemField { Layout.fillWidth: true; item: loopback_cfg_minimumThroughput }
                    ItemField { Layout.fillWidth: true; item: loopback_cfg_rttSamples }
                    ItemField { Layout.fillWidth: true; item: loopback_cfg_throughputSamples }
                    ItemField { Layout.fillWidth: true; item: loopback_cfg_messageSize }
                }
                SettingsCard {
                    id: reports
                    Layout.fillWidth: true
                    title: qsTr("Reports")
                    onEdited: page.begin()
                    onRefused: page.refusal = words

                    ItemChoice { Layout.fillWidth: true; item: basemgr_cfg_saveLocation }
                }
            }
        }
    }
}
