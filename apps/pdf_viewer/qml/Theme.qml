pragma Singleton
import QtQuick 2.15

// The measures and colours of the kit; the viewer does without its module.
Measures {
    readonly property color desk: divider
    readonly property int signText: headingText
}
