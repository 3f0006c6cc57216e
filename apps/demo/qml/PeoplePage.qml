import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

// Who measures, and for whom. Entries are written at once; a customer can be taken over from those of earlier jobs.
KitPage {
    id: page

    property Session session
    readonly property bool isServed: services.basemgr !== undefined

    title: qsTr("People")
    service: "basemgr"
    scrolls: false
    padding: 0

    TouchTabs {
        id: tabs
        objectName: "peopleTabs"
        Layout.fillWidth: true
        model: [qsTr("Technician"), qsTr("Customer"), qsTr("Known customers")]
    }
    Loader {
        Layout.fillWidth: true
        Layout.fillHeight: true
        active: page.isServed
        sourceComponent: [technician, customer, customers][tabs.currentIndex]
    }

    component Fields: ScrollArea {
        property var items: []

        padding: ControlsStyle.margin

        GridLayout {
            Layout.fillWidth: true
            columns: 2
            columnSpacing: ControlsStyle.margin
            rowSpacing: ControlsStyle.gap

            Repeater {
                model: items

                // The service writes "default" where nothing is set.
                TextEntry {
                    function textOf(value) { return value === undefined || value === "default" ? "" : String(value) }
                    function parsed(text) { return text === "" ? "default" : text }

                    objectName: modelData.name
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    item: modelData
                    placeholderText: qsTr("not set")
                }
            }
        }
    }

    Component {
        id: technician
        Fields {
            items: [basemgr_cfg_userInfo_firstName, basemgr_cfg_userInfo_lastName, basemgr_cfg_userInfo_techID,
                    basemgr_cfg_userInfo_phone]
        }
    }
    Component {
        id: customer
        Fields {
            items: [basemgr_cfg_customerInfo_name, basemgr_cfg_customerInfo_address, basemgr_cfg_customerInfo_circuitID,
                    basemgr_cfg_customerInfo_contact]
        }
    }
    Component {
        id: customers

        ColumnLayout {
            spacing: ControlsStyle.gap

            SearchField {
                id: search
                objectName: "customerSearch"
                Layout.fillWidth: true
                Layout.margins: ControlsStyle.margin
                Layout.bottomMargin: 0
                placeholderText: qsTr("Name, address or circuit")
            }
            InlineProblem {
                Layout.fillWidth: true
                Layout.leftMargin: ControlsStyle.margin
                keepsRoom: true
                text: page.session.jobs.problem
            }
            ListArea {
                id: list
                objectName: "customerList"
                Layout.fillWidth: true
                Layout.fillHeight: true
                name: qsTr("Known customers")
                model: RowFilter {
                    sourceModel: services.jobs === undefined ? null : jobs_res_customers.value
                    text: search.text
                    textRoles: ["customer", "address", "circuit"]
                    sortBy: "changed"
                    descending: true
                }
                delegate: ListRow {
                    title: model.customer
                    subtitle: qsTr("%1, %2").arg(model.address).arg(model.circuit)
                    value: qsTr("%n jobs", "", model.jobs)
                    selected: model.customer === page.session.customer
                    onClicked: page.session.jobs.takeCustomer(list.model.get(index))
                }
            }
        }
    }
}
