import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils 1.0
import UiUtils.Controls 1.0
import UiUtils.Demo 1.0

// One screenshot.
KitPage {
    id: page

    property PictureFiles files
    property string name
    property string path
    property url source

    title: name
    subtitle: question.getSanitizedPathName(path)
    scrolls: false
    actions: TouchButton {
        objectName: "deletePictureButton"
        danger: true
        iconName: "delete"
        text: qsTr("Delete")
        onClicked: question.sendNotificationDeleteRequest(page.path, {})
    }

    FileUtils {
        id: question
        onAccepted: {
            if (page.files.remove(page.path))
                page.stack.pop()
        }
    }
    Image {
        Layout.fillWidth: true
        Layout.fillHeight: true
        source: page.source
        sourceSize: Qt.size(width, height)
        fillMode: Image.PreserveAspectFit
        asynchronous: true
        Accessible.role: Accessible.Graphic
        Accessible.name: page.name
    }
}
