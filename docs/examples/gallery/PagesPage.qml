import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

KitPage {
    id: page

    title: qsTr("Pages")
    subtitle: qsTr("Page %1 of the stack").arg(stack ? stack.depth : 1)
    footer: [
        BodyText { Layout.fillWidth: true; text: qsTr("The footer stays where it is."); muted: true },
        TouchButton { text: qsTr("Home"); iconName: "home"; onClicked: page.stack.home() },
        TouchButton {
            text: qsTr("Next page")
            filled: true
            onClicked: page.stack.push(Qt.resolvedUrl("PagesPage.qml"))
        }
    ]

    Card {
        Layout.fillWidth: true
        padding: 0

        TouchTabs {
            Layout.fillWidth: true
            model: [qsTr("Overview"), qsTr("Events"), { text: qsTr("Curve"), icon: "plot" }]
        }
        BodyText {
            Layout.fillWidth: true
            Layout.margins: ControlsStyle.margin
            text: qsTr("Tabs above the contents. The arrow keys go from tab to tab.")
        }
    }
    Card {
        Layout.fillWidth: true
        padding: 0

        BodyText {
            Layout.fillWidth: true
            Layout.margins: ControlsStyle.margin
            text: qsTr("Tabs below the contents are the navigation of a program.")
        }
        TouchTabs {
            Layout.fillWidth: true
            navigation: true
            currentIndex: 2
            model: [{ text: qsTr("Home"), icon: "home" }, { text: qsTr("Set-up"), icon: "settings" }, { text: qsTr("Run"), icon: "run" },
                { text: qsTr("Results"), icon: "results", marked: true }, { text: qsTr("Report"), icon: "report" }, { text: qsTr("Files"), icon: "files" }]
        }
    }
}
