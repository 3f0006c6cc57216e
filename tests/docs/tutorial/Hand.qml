import QtQuick 2.15

// A user of the page of a step: finds what the page shows, and prints what comes of using it.
Item {
    id: hand

    readonly property alias page: loader.item

    signal arrived()

    function all(item) {
        const found = [item]
        for (let i = 0; i < item.children.length; ++i)
            found.push(...all(item.children[i]))
        return found
    }
    // Every text that is shown, as an eye finds them.
    function texts() {
        all(page).filter(item => item.forceLayout !== undefined).forEach(item => item.forceLayout())
        return all(page).filter(item => item.visible && item.opacity > 0 && typeof item.text === "string" && item.font !== undefined
                                        && item.clicked === undefined && item.text !== "").map(item => item.text)
    }
    // Of several, the one at the lower edge.
    function button(text) {
        return all(page).filter(item => item.clicked !== undefined && item.text === text).pop()
    }
    function entry(label) {
        return all(page).find(item => item.storeWith !== undefined && item.label === label)
    }
    function type(label, text) {
        const found = entry(label)
        const field = all(found).find(item => item.objectName === "field")
        field.text = text
        field.textEdited()
        found.commit()
        return found.problem
    }
    function press(text) {
        const found = button(text)
        if (found.enabled)
            found.clicked()
        return found.enabled
    }

    Loader {
        id: loader
        anchors.fill: parent
        source: Qt.resolvedUrl("CablePage.qml")
    }
    Component.onCompleted: arrived()
}
