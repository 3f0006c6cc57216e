import QtQuick 2.15
import UiUtils 1.0

/// The entry that suits an item of any kind. Hidden while the item has no meaning, and without an item.
FocusScope {
    id: root

    /// The item; null for none.
    property var item: null
    /// What stands above the editor; the item's label.
    property string label: face.label
    /// The entry in use, for its additional properties.
    readonly property alias entry: loader.item

    readonly property bool isRecord: face.type === "aggregate" || face.type === "listAggregate"

    readonly property string kind: {
        const ofInput = {
            [KivData.INPUT_IP]: "IpEntry", [KivData.INPUT_IPV4]: "Ipv4Entry", [KivData.INPUT_IPV6]: "Ipv6Entry",
            [KivData.INPUT_MAC]: "MacEntry", [KivData.INPUT_HEX]: "HexEntry", [KivData.INPUT_OCTAL]: "OctalEntry",
            [KivData.INPUT_BINARY]: "BinaryEntry", [KivData.INPUT_ALPHANUMERIC]: "TextEntry",
            [KivData.INPUT_INT]: "NumberEntry", [KivData.INPUT_POSITIVE_INT]: "NumberEntry",
            [KivData.INPUT_FLOAT]: "NumberEntry", [KivData.INPUT_POSITIVE_FLOAT]: "NumberEntry",
            [KivData.INPUT_DURATIO]: "DurationEntry", [KivData.INPUT_FILENAME]: "FileNameEntry",
            [KivData.INPUT_URL]: "UrlEntry", [KivData.INPUT_FULL]: "TextEntry",
            [KivData.INPUT_PASSWORD]: "PasswordEntry", [KivData.INPUT_DIGITS]: "DigitsEntry",
            [KivData.INPUT_PHONE_NUMBER]: "PhoneEntry"
        }
        if (!face.hasItem)
            return ""
        if (face.type.startsWith("std::vector"))
            return "ListEntry"
        if (face.isChoice)
            return "ChoiceEntry"
        if (face.type === "bool")
            return "SwitchEntry"
        const isNumber = ["int", "uint", "qint64", "quint64", "double"].includes(face.type)
        return ofInput[face.inputType] || (isNumber ? "NumberEntry" : "TextEntry")
    }

    visible: face.hasItem && face.isApplicable
    implicitWidth: loader.implicitWidth
    implicitHeight: loader.implicitHeight

    ItemFace {
        id: face
        item: root.item
    }
    Loader {
        id: loader
        width: parent.width
        focus: true
        source: root.kind === "" ? "" : Qt.resolvedUrl(root.kind + ".qml")
        onLoaded: item.focus = true
    }
    Binding {
        target: loader.item
        property: "item"
        value: root.item
    }
    Binding {
        target: loader.item
        property: "label"
        value: root.label
    }
    // An aggregate has an entry for each member, not one.
    Binding {
        target: loader.item
        property: "readOnly"
        value: true
        when: root.isRecord
    }
}
