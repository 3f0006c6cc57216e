import QtQuick 2.15
import QtQuick.Layouts 1.15
import UiUtils.Controls 1.0
import UiUtils.Inspector 1.0

// The items that the user looks for; the chosen one beside them, or in their place where there is no room.
Item {
    id: page

    required property Inspector inspector
    property QtObject chosen: null
    property bool isWide: false
    readonly property bool showsList: isWide || chosen === null
    signal chosenByUser(QtObject item)

    ColumnLayout {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: page.isWide ? page.width * 0.45 : page.width
        visible: page.showsList
        spacing: ControlsStyle.touchGap

        RowLayout {
            Layout.fillWidth: true
            Layout.margins: ControlsStyle.gap
            Layout.bottomMargin: 0
            spacing: ControlsStyle.touchGap

            SearchField {
                objectName: "itemSearch"
                Layout.fillWidth: true
                placeholderText: qsTr("Search items")
                onTextChanged: page.inspector.items.text = text
            }
            IconButton {
                objectName: "favouritesButton"
                iconName: page.inspector.items.favouritesOnly ? "favourite" : "favourite-off"
                checkable: true
                checked: page.inspector.items.favouritesOnly
                name: qsTr("Favourites only")
                onToggled: page.inspector.items.favouritesOnly = checked
            }
        }
        LabelText {
            Layout.fillWidth: true
            Layout.leftMargin: ControlsStyle.margin
            Layout.rightMargin: ControlsStyle.margin
            text: qsTr("%1 of %2 items").arg(page.inspector.items.count).arg(page.inspector.items.total)
        }
        ListArea {
            id: list
            objectName: "itemList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            name: qsTr("Items")
            model: page.inspector.items
            reuseItems: true

            delegate: ListRow {
                required property QtObject rowItem
                required property string rowId
                required property string rowName
                required property bool rowFavourite

                objectName: rowId
                title: glance.title
                subtitle: glance.trouble === "" ? rowName : rowName + " \u00b7 " + glance.trouble
                value: glance.text
                status: glance.quality
                selected: rowItem !== null && rowItem === page.chosen
                onClicked: page.chosenByUser(rowItem)

                readonly property ItemGlance glance: ItemGlance { item: rowItem }

                trailing: IconButton {
                    iconName: rowFavourite ? "favourite" : "favourite-off"
                    name: rowFavourite ? qsTr("Remove %1 from the favourites").arg(rowName) : qsTr("Add %1 to the favourites").arg(rowName)
                    onClicked: page.inspector.items.setFavourite(rowId, !rowFavourite)
                }
            }
            EmptyState {
                anchors { fill: parent; margins: ControlsStyle.margin }
                visible: list.count === 0
                iconName: "search"
                title: qsTr("No items")
                text: page.inspector.items.total === 0 ? qsTr("The items are shown when their services come.")
                                                       : qsTr("No item matches the search.")
            }
        }
    }
    ItemDetails {
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        width: page.isWide ? page.width * 0.55 : page.width
        visible: page.isWide || page.chosen !== null
        inspector: page.inspector
        item: page.chosen
        hasBack: !page.isWide
        onBack: page.chosenByUser(null)
    }
}
