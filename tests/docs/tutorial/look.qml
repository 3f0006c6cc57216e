import QtQuick 2.15

Hand {
    onArrived: texts().forEach(text => console.log(text))
}
