import QtQuick 2.15
import UiUtils 1.0
import "composed.js" as Composed

Text {
    property KivData item

    text: item.valueString + optical_res_lenght.valueString
    onTextChanged: Composed.note()
}
