import QtQuick 2.15
import UiUtils.Controls 1.0

/// The pages of a program, one upon the other. A page is made when it is first shown, and deleted when the user leaves it,
/// unless the stack keeps it. The keys Escape and Back lead back.
FocusScope {
    id: stack

    /// The page at the bottom, which is always kept: a file in `folder`, a URL or a component. Later changes have no effect.
    property var initialPage
    /// Where the files of the pages are.
    property url folder
    /// The number of pages, one upon the other.
    readonly property int depth: pages.length
    /// The page that is shown; null for none.
    readonly property Item currentPage: depth > 0 ? pages[depth - 1].item : null

    // Each page is in a loader, which deletes it without evaluating its bindings.
    property var pages: []
    // What has been made of the pages that are kept; null for those that were not shown yet.
    property var kept: ({})

    /// From now on the page of that name is made once: when it is shown again, it is as the user left it.
    function keep(name) {
        if (!(name in kept))
            kept[name] = null
    }

    /// Shows a page, with these values of its properties, upon the present one, and returns it; null when it cannot be
    /// made. A kept page that is in the stack is shown by going back to it.
    function push(page, properties) {
        return show(page, properties, pages)
    }

    /// Shows a page in place of all others, as tabs do, and returns it; null when it cannot be made.
    function open(page, properties) {
        return show(page, properties, [])
    }

    /// Leads back to the page below; false when there is none.
    function pop() {
        if (depth < 2)
            return false
        change(pages.slice(0, -1))
        return true
    }

    /// Leads back to the initial page.
    function home() {
        open(initialPage)
    }

    function show(page, properties, below) {
        const known = kept[page]
        const shown = known || make(page, properties || {})
        if (shown === null)
            return null
        if (known)
            Object.assign(shown.item, properties)
        const position = below.indexOf(shown)
        change(position < 0 ? below.concat([shown]) : below.slice(0, position + 1))
        return currentPage
    }

    function make(page, properties) {
        const made = loaderComponent.createObject(place)
        if (typeof page === "string")
            made.setSource(folder + page, properties)
        else
            made.sourceComponent = page
        if (made.status !== Loader.Ready) {
            made.destroy()
            return null
        }
        if (typeof page !== "string")
            Object.assign(made.item, properties)
        if (page in kept)
            kept[page] = made
        return made
    }

    function change(newPages) {
        const before = depth > 0 ? pages[depth - 1] : null
        const left = pages.filter(page => !newPages.includes(page))
        const shown = newPages[newPages.length - 1]
        pages = newPages
        shown.visible = true
        shown.focus = true
        if (before !== null && before !== shown)
            before.visible = false
        left.filter(page => !Object.values(kept).includes(page)).forEach(page => page.destroy())
    }

    function goBack(event) {
        event.accepted = !event.isAutoRepeat && pop()
    }

    Keys.onEscapePressed: goBack(event)
    Keys.onBackPressed: goBack(event)
    Component.onCompleted: {
        keep(initialPage)
        if (initialPage)
            home()
    }

    Item {
        id: place
        anchors.fill: parent

        Component {
            id: loaderComponent
            Loader {
                readonly property Item pageStack: stack
                width: place.width
                height: place.height
                onLoaded: item.focus = true
            }
        }
    }
}
