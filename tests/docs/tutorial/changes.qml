import QtQuick 2.15

Hand {
    onArrived: {
        type("Length", "60")
        type("Site", "Mill")
        console.log(cable_cfg_site.valueString + "|" + cable_cfg_length.valueString)
        press("Apply")
        console.log(cable_cfg_site.valueString + "|" + cable_cfg_length.valueString)
        type("Length", "70")
        press("Revert")
        console.log(cable_cfg_length.value)
    }
}
