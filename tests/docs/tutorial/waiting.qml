import QtQuick 2.15

Hand {
    onArrived: {
        type("Site", "Mill")
        type("Length", "60")
    }
}
