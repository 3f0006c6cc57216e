import QtQuick 2.15
import QtQuick.Window 2.15

// With "--picture FILE" on the command line, the window is drawn into FILE as soon as there is something to see, and
// the program ends: a page can be looked at without a display.
Item {
    id: picture

    property bool isReady: true
    property bool isTaken: false
    readonly property int option: Qt.application.arguments.indexOf("--picture")

    function take() {
        isTaken = true
        Window.contentItem.grabToImage(image => Qt.exit(image.saveToFile(Qt.application.arguments[option + 1]) ? 0 : 1))
    }

    Connections {
        target: picture.option > 0 ? picture.Window.window : null
        function onFrameSwapped() {
            if (picture.isReady && !picture.isTaken)
                picture.take()
        }
    }
}
