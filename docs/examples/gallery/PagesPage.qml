import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0

KitPage {
    id: page

    title: "Pages"
    subtitle: "Page %1 of the stack".arg(stack ? stack.depth : 1)
    footer: [
        BodyText { Layout.fillWidth: true; text: "The footer stays where it is."; muted: true },
        TouchButton { text: "Home"; iconName: "home"; onClicked: page.stack.home() },
        TouchButton {
            text: "Next page"
            filled: true
            onClicked: page.stack.push(Qt.resolvedUrl("PagesPage.qml"))
        }
    ]

    Card {
        Layout.fillWidth: true
        padding: 0

        TouchTabs {
            Layout.fillWidth: true
            model: ["Overview", "Events", { text: "Curve", icon: "plot" }]
        }
        BodyText {
            Layout.fillWidth: true
            Layout.margins: ControlsStyle.margin
            text: "Tabs above the contents. The arrow keys go from tab to tab."
        }
    }
    Card {
        Layout.fillWidth: true
        padding: 0

        BodyText {
            Layout.fillWidth: true
            Layout.margins: ControlsStyle.margin
            text: "Tabs below the contents are the navigation of a program."
        }
        TouchTabs {
            Layout.fillWidth: true
            navigation: true
            currentIndex: 2
            model: [{ text: "Home", icon: "home" }, { text: "Set-up", icon: "settings" }, { text: "Run", icon: "run" },
                { text: "Results", icon: "results", marked: true }, { text: "Report", icon: "report" }, { text: "Files", icon: "files" }]
        }
    }
}
