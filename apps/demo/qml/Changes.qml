import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Demo 1.0

// Settings that are changed together: what is entered is held back until all of it is applied, or none.
QtObject {
    id: changes

    // The services, the first of which gets the changes.
    property var manifests: []
    property var items: []
    // Why the services rejected what was last applied.
    property string refusal
    // One { item, label, before, after } for each setting that waits.
    property var pending: []

    readonly property Instantiator watchers: Instantiator {
        model: changes.items

        PendingItem {
            item: modelData
            onEdited: changes.begin()
            onRefused: changes.refusal = words
            onPendingChanged: Qt.callLater(changes.collect)
            onReported: Qt.callLater(changes.collect)
            onItemChanged: Qt.callLater(changes.collect)
        }
        onObjectAdded: Qt.callLater(changes.collect)
    }

    function watcherOf(item) {
        for (let i = 0; i < watchers.count; ++i) {
            if (watchers.objectAt(i).item === item)
                return watchers.objectAt(i)
        }
        return null
    }

    // For the `storeWith` of an entry.
    function enter(item, value) {
        watcherOf(item).enter(value)
        Qt.callLater(collect)
        return ""
    }

    function begin() {
        refusal = ""
        manifests.forEach(manifest => manifest.startChanges())
    }

    function apply() {
        refusal = ""
        manifests[0].applyChanges()
        if (refusal === "")
            manifests.slice(1).forEach(manifest => manifest.applyChanges())
        collect()
        return refusal === ""
    }

    function revert() {
        refusal = ""
        manifests.forEach(manifest => manifest.revertChanges())
        collect()
    }

    function textOf(item, value) {
        if (item.enumCount > 0)
            return item.enumLabelForValue(value)
        const text = typeof value === "number" ? value.toLocaleString(Qt.locale(), "f", item.type === "double" ? item.precision : 0)
                                               : String(value)
        return item.unitString === "" ? text : qsTr("%1 %2").arg(text).arg(item.unitString)
    }

    function collect() {
        const rows = []
        for (let i = 0; i < watchers.count; ++i) {
            const watcher = watchers.objectAt(i)
            if (watcher.item && watcher.pending)
                rows.push({ item: watcher.item, label: watcher.item.label, before: textOf(watcher.item, watcher.served),
                            after: textOf(watcher.item, watcher.item.value) })
        }
        pending = rows
    }
}
