import QtQuick 2.15
import QtQuick.VirtualKeyboard 2.15
import QtQuick.VirtualKeyboard.Settings 2.15

// The keyboard of Qt Virtual Keyboard, in the language of the application and in English.
InputPanel {
    id: panel

    readonly property string wanted: {
        const locales = VirtualKeyboardSettings.availableLocales
        const language = Qt.locale().name.split("_")[0] + "_"
        return locales.find(name => name === Qt.locale().name) || locales.find(name => name.startsWith(language)) || "en_GB"
    }

    function follow() {
        VirtualKeyboardSettings.activeLocales = wanted.startsWith("en_") ? [wanted] : [wanted, "en_GB"]
        VirtualKeyboardSettings.locale = wanted
    }

    // Keys have their own order in every language.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true
    width: parent ? parent.width : 0
    y: parent ? parent.height - height : 0
    // Above dialogs, too: their fields are typed into.
    z: 10000000
    visible: active
    onWantedChanged: follow()
    Component.onCompleted: follow()
}
