import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0

// What the set-up will change, before it is applied.
KitPage {
    id: page

    property Session session
    readonly property Changes changes: session.setup

    title: qsTr("Review")
    subtitle: qsTr("All of it is applied together, or nothing.")
    footer: [
        InlineProblem {
            Layout.fillWidth: true
            text: page.changes.refusal
            keepsRoom: true
            lines: 2
        },
        TouchButton {
            objectName: "revertAllButton"
            text: qsTr("Revert all")
            onClicked: {
                page.changes.revert()
                page.stack.pop()
            }
        },
        TouchButton {
            objectName: "applyButton"
            filled: true
            enabled: page.changes.pending.length > 0
            text: qsTr("Apply")
            onClicked: {
                if (page.changes.apply())
                    page.stack.pop()
            }
        }
    ]

    Repeater {
        model: page.changes.pending

        ListRow {
            Layout.fillWidth: true
            title: modelData.label
            value: qsTr("%1 \u2192 %2").arg(page.session.isolated(modelData.before)).arg(page.session.isolated(modelData.after))
            enabled: true
        }
    }
}
