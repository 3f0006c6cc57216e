import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

/// What waits to be applied: each change with the value before and after, a button that reverts it, and why it was
/// rejected. A change that the service has overtaken can be dismissed or set again. Applying is up to the page.
FocusScope {
    id: view

    /// The changes; null for none.
    property PendingChanges changes: null
    /// Whether rows name the service, for changes of several ones.
    property bool showsServices: false
    /// What stands there when nothing waits.
    property string emptyTitle: qsTr("Nothing waits")
    property string emptyText: qsTr("Settings that you change are listed here until they are applied.")

    // Of all rows. Later than the list knows it: a list that is given the height of its rows makes rows meanwhile.
    property real rowsHeight: 0

    function measure() {
        rowsHeight = list.contentHeight
    }

    implicitWidth: ControlsStyle.mm(90)
    implicitHeight: column.implicitHeight

    ColumnLayout {
        id: column
        anchors.fill: parent
        spacing: ControlsStyle.gap

        InlineProblem {
            objectName: "batchProblem"
            Layout.fillWidth: true
            Layout.leftMargin: ControlsStyle.margin
            Layout.rightMargin: ControlsStyle.margin
            text: view.changes ? view.changes.problem : ""
        }
        ListArea {
            id: list
            objectName: "pendingList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            implicitHeight: view.rowsHeight
            onContentHeightChanged: Qt.callLater(view.measure)
            visible: count > 0
            focus: true
            name: qsTr("Changes that wait")
            model: view.changes

            delegate: PendingChangeRow {
                label: model.label
                service: view.showsServices ? model.service : ""
                oldText: model.oldText
                newText: model.newText
                state: model.state
                problem: model.problem
                onReverted: view.changes.revert(model.index)
                onDismissed: view.changes.dismiss(model.index)
                onSetAgain: view.changes.setAgain(model.index)
            }
        }
        EmptyState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: !list.visible
            iconName: "check"
            title: view.emptyTitle
            text: view.emptyText
        }
    }
}
