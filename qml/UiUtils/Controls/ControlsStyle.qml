pragma Singleton
import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Controls 1.0

/// Colours and measures of everything in the kit. A program sets density and theme, or single colours, before its first
/// page; a theme that is set later shows at once.
Measures {
    /// Whether a frame shows the focus only when it came by a key. Turn it off for an instrument without a touch screen.
    property bool keyFocus: true
    /// Whether a tap on a field of digits opens the pad. False while an on-screen keyboard serves.
    property bool padOnTap: true
    /// Whether the focus of an item came by a key, so that a frame shows it.
    function isByKey(item) {
        return [Qt.TabFocusReason, Qt.BacktabFocusReason, Qt.ShortcutFocusReason].includes(item.focusReason)
    }

    /// The colour of a code of Status; transparent for Status.None.
    function qualityColor(quality) {
        const colors = { [Status.Pass]: pass, [Status.Marginal]: warning, [Status.Fail]: fail }
        return colors[quality] || "transparent"
    }

    /// The word for a code of Status; empty for Status.None.
    function qualityWord(quality) {
        const words = { [Status.Pass]: qsTr("Pass"), [Status.Marginal]: qsTr("Warning"), [Status.Fail]: qsTr("Fail") }
        return words[quality] || ""
    }

    /// The name of the icon for a code of Status; empty for Status.None.
    function qualityIcon(quality) {
        const names = { [Status.Pass]: "pass", [Status.Marginal]: "warning", [Status.Fail]: "fail" }
        return names[quality] || ""
    }
}
