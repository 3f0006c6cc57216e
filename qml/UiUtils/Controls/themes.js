.pragma library

// The colours of each theme. Texts, and the colours that carry a meaning, have a contrast of at least 4.5 : 1 to every
// surface, disabled texts and frames 3 : 1. One colour has one meaning: fail is a verdict, invalid an entry.
var light = {
    background: "#edf2f5", card: "#ffffff", field: "#ffffff", disabledField: "#e4eaee",
    pressed: "#d6e4ef", selected: "#dbeaf7", notice: "#fff2d6", border: "#74838d", divider: "#cfdae2",
    text: "#10202e", mutedText: "#465560", disabledText: "#6d7a84", primaryText: "#ffffff",
    primary: "#0058a8", primaryPressed: "#003f7a", focus: "#6b2fc4", invalid: "#a3125f", news: "#565a00",
    pass: "#11692f", warning: "#8a4600", fail: "#b01c13", information: "#00625f",
    curves: ["#0067c5", "#8c4a2f", "#00788a", "#8a3ffc", "#b0287f", "#6f5b00", "#4a5a68"], grid: "#d5dee4", axis: "#465560"
}

var dark = {
    background: "#0f1519", card: "#182127", field: "#212c34", disabledField: "#1c252b",
    pressed: "#2f3f4b", selected: "#213a50", notice: "#3a2f14", border: "#768894", divider: "#33414b",
    text: "#f2f6f8", mutedText: "#b9c6cf", disabledText: "#82919b", primaryText: "#06131f",
    primary: "#85bdff", primaryPressed: "#b3d6ff", focus: "#cfa8ff", invalid: "#ff9ad0", news: "#d2d455",
    pass: "#6fdc91", warning: "#ffb454", fail: "#ff9a8f", information: "#66dcd6",
    curves: ["#5aa9ff", "#e59a78", "#35c9dd", "#c59bff", "#ff8fd0", "#d9c24a", "#b7c6d1"], grid: "#33414b", axis: "#b9c6cf"
}

// For direct sun: black on white, and colours as dark as their hue allows.
var sunlight = {
    background: "#ffffff", card: "#ffffff", field: "#ffffff", disabledField: "#e6e6e6",
    pressed: "#d0d0d0", selected: "#dde9ff", notice: "#fff0b8", border: "#000000", divider: "#767676",
    text: "#000000", mutedText: "#2b2b2b", disabledText: "#5c5c5c", primaryText: "#ffffff",
    primary: "#00318c", primaryPressed: "#001c52", focus: "#5a00b8", invalid: "#80004a", news: "#3f4000",
    pass: "#00461a", warning: "#652f00", fail: "#8c0000", information: "#004744",
    curves: ["#0040c0", "#703000", "#005a66", "#6a00c8", "#900060", "#504000", "#303030"], grid: "#b8b8b8", axis: "#000000"
}

var all = { light: light, dark: dark, sunlight: sunlight }
