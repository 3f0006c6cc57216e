import QtQuick 2.15

Hand {
    onArrived: type("Length", "500")
}
