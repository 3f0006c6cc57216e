import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0

// The text of a file.
KitPage {
    id: page

    property string text

    BodyText {
        Layout.fillWidth: true
        text: page.text
        font.family: "monospace"
        wrapMode: Text.Wrap
    }
}
