import QtQuick 2.15

Hand {
    onArrived: {
        console.log(type("Length", "500") + "|" + cable_cfg_length.valueString)
        console.log(type("Length", "60") + "|" + cable_cfg_length.valueString)
    }
}
