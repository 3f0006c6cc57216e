import QtQuick 2.15

// How wide a text is in one line. A text that got its width from its own implicit one would go in circles.
TextMetrics {
    readonly property int oneLine: text === "" ? 0 : Math.ceil(Math.max(advanceWidth, boundingRect.width)) + 2
}
