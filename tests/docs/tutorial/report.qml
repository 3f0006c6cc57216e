import QtQuick 2.15

Hand {
    onArrived: {
        type("Name", "one")
        press("Save")
        console.log(texts().find(text => /^Saved/.test(text)))
        entry("Format").item.value = 2
        press("Save")
        console.log(texts().find(text => /^Saved/.test(text)))
    }
}
