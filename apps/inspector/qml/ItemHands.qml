import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Inspector 1.0

// What a service reports of an item, set by hand in place of the service.
Section {
    id: hands

    property InspectedService service: null
    property QtObject item: null
    property string type
    readonly property bool isPossible: service !== null && service.isOwn
    readonly property bool hasLimits: ["int", "uint", "double", "std::string"].includes(type)

    function set(operation) {
        if (item !== null && service !== null)
            operation(item.id)
    }

    // Limits are not announced.
    function showLimits() {
        const textOf = limit => limit === undefined || limit === null ? "" : String(limit)
        minimum.value = item === null ? "" : textOf(item.minRange)
        maximum.value = item === null ? "" : textOf(item.maxRange)
    }

    function setLimits(entry, low, high) {
        const problem = service.setLimits(item.id, low, high)
        if (problem === "") {
            Qt.callLater(showLimits)
            limitsChanged()
        }
        return told(entry, problem)
    }

    // An entry without an item shows what is set here.
    function told(entry, problem) {
        entry.face.refusal = problem
        return problem
    }

    signal limitsChanged

    title: qsTr("By hand")
    note: isPossible ? "" : qsTr("What a service reports can be set by hand where the service lives in this process. This one lives in another.")
    onItemChanged: {
        showLimits()
        report.restore()
    }
    Component.onCompleted: showLimits()

    ColumnLayout {
        Layout.fillWidth: true
        visible: hands.isPossible
        spacing: ControlsStyle.gap

        SegmentedChoice {
            objectName: "qualityHand"
            Layout.fillWidth: true
            visible: hands.type !== "action"
            label: qsTr("Quality")
            model: [{ label: qsTr("None"), value: 0 }, { label: qsTr("Pass"), value: Status.Pass },
                    { label: qsTr("Warning"), value: Status.Marginal }, { label: qsTr("Fail"), value: Status.Fail }]
            value: hands.item === null ? 0 : hands.item.qualityCode
            storeWith: code => { hands.set(id => hands.service.setQuality(id, code)); return "" }
        }
        SwitchEntry {
            objectName: "readyHand"
            Layout.fillWidth: true
            label: qsTr("Ready")
            value: hands.item !== null && hands.item.isReady
            storeWith: isReady => { hands.set(id => hands.service.setReady(id, isReady)); return "" }
        }
        SwitchEntry {
            id: applicable
            objectName: "applicableHand"
            Layout.fillWidth: true
            label: qsTr("Applicable")
            value: hands.item !== null && hands.item.applicable
            storeWith: isApplicable => {
                let isDone = false
                hands.set(id => { isDone = hands.service.setApplicable(id, isApplicable) })
                return hands.told(applicable, isDone ? "" : qsTr("The service decides by an expression."))
            }
        }
        TextEntry {
            id: report
            objectName: "valueHand"
            Layout.fillWidth: true
            visible: hands.type !== "action"
            label: qsTr("Value that the service reports")
            value: ""
            storeWith: text => text === "" || hands.item === null ? "" : hands.told(report, hands.service.setValue(hands.item.id, text))
        }
        RowLayout {
            Layout.fillWidth: true
            visible: hands.hasLimits
            spacing: ControlsStyle.gap

            TextEntry {
                id: minimum
                objectName: "minimumHand"
                Layout.fillWidth: true
                label: hands.type === "std::string" ? qsTr("Shortest") : qsTr("Minimum")
                storeWith: text => hands.setLimits(minimum, text, maximum.text)
            }
            TextEntry {
                id: maximum
                objectName: "maximumHand"
                Layout.fillWidth: true
                label: hands.type === "std::string" ? qsTr("Longest") : qsTr("Maximum")
                storeWith: text => hands.setLimits(maximum, minimum.text, text)
            }
        }
    }
}
