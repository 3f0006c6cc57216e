import QtQuick 2.15

Hand {
    onArrived: {
        type("Length", "60")
        press("Apply")
        console.log(texts().find(text => text === "The tester is locked."))
        // What was rejected waits, and can be applied again.
        console.log([cable_cfg_length.value, button("Apply").enabled].join("|"))
    }
}
