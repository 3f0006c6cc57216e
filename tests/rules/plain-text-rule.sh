#!/usr/bin/env bash
# Holds every text on a screen to plain text: a value from a service or a file that looks like markup would be laid out, and an
# image in it fetched. What the toolkit's controls draw by themselves reads markup too, so a control with words brings a text
# of its own.
set -euo pipefail
cd "$1"

mapfile -t files <<<"$(find apps docs examples qml -name '*.qml')"
test -e "${files[0]}"
awk '
function complain(what) {
    printf "%s:%d: %s\n", FILENAME, line[depth], what
    faults = 1
}
# A property of the innermost object, or of one that is opened and closed within the line.
function property(name) {
    return (depth SUBSEP name) in has
}
function open(type) {
    kind[++depth] = type
    line[depth] = FNR
}
function close_object(   name) {
    if (kind[depth] ~ /^(Text|Label)$/ && !property("textFormat"))
        complain(kind[depth] " without textFormat: Text.PlainText")
    if (kind[depth] ~ words && !property("contentItem"))
        complain(kind[depth] " without a contentItem of plain text")
    if (kind[depth] == "ComboBox" && !property("delegate"))
        complain("ComboBox without a delegate of plain text")
    if (kind[depth] ~ /^Text(Field|Area)$/ && property("placeholderText"))
        complain("placeholderText is drawn as markup; lay a text over the field")
    if (property("ToolTip.text"))
        complain("ToolTip.text is drawn as markup; use a ToolTip with a contentItem of plain text")
    for (name in has) {
        if (index(name, depth SUBSEP) == 1)
            delete has[name]
    }
    --depth
}
BEGIN {
    words = "^((Round|Tool|Delay|Tab|Radio)?Button|CheckBox|Switch|(Item|Check|Radio|Switch|Swipe)Delegate|Menu(Bar)?Item|ToolTip)$"
}
FNR == 1 { depth = 0 }
{
    rest = $0
    gsub(/\\./, "", rest)
    gsub(/"[^"]*"/, "\"\"", rest)
    gsub(/\/[^\/ ]+\/[a-z]*[.,)]/, "", rest)
    sub(/\/\/.*/, "", rest)
    if (rest ~ /textFormat:/ && rest !~ /textFormat: Text.PlainText/) {
        line[depth] = FNR
        complain("another format than Text.PlainText")
    }
    while (match(rest, /[A-Za-z_.]+:|[A-Za-z_.]* *[{]|[}]/)) {
        token = substr(rest, RSTART, RLENGTH)
        rest = substr(rest, RSTART + RLENGTH)
        if (token == "}")
            close_object()
        else if (token ~ /:$/)
            has[depth, substr(token, 1, length(token) - 1)] = 1
        else {
            sub(/ *[{]$/, "", token)
            open(token)
        }
    }
}
END { exit faults }
' "${files[@]}"
echo "${#files[@]} QML files show plain text."
