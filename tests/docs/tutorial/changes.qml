import QtQuick 2.15

Hand {
    function tell() {
        console.log([cable_cfg_site.valueString, cable_cfg_length.valueString, button("Apply").enabled].join("|"))
    }

    onArrived: {
        tell()
        type("Length", "60")
        type("Site", "Mill")
        tell()
        console.log(texts().slice(texts().indexOf("Changes")).join("|"))
        press("Apply")
        tell()
        type("Length", "70")
        press("Revert")
        console.log(cable_cfg_length.value)
        // What is entered after that waits again.
        type("Length", "80")
        tell()
    }
}
