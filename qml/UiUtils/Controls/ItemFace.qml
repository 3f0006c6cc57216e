import QtQuick 2.15

// An item as its entry knows it. The item may not be there yet, be replaced, be destroyed, or lose and regain its service
// under a user's fingers: what an item is (type, limits, choices) is taken over only from one that can tell, so that an
// entry stays what it was while the service is away.
QtObject {
    id: face

    // Undefined for an entry that works without an item, null for one whose item is missing.
    property var item

    readonly property bool hasItem: !!item
    readonly property bool isMissing: item === null
    readonly property var value: hasItem ? item.value : undefined
    readonly property string valueString: hasItem ? item.valueString : ""
    readonly property string unit: hasItem ? item.unitString : ""
    readonly property bool isReady: hasItem ? item.isReady : !isMissing
    readonly property bool isApplicable: hasItem ? item.applicable : true
    readonly property int quality: hasItem ? item.qualityCode : 0

    // A local item: it is told whether what stands in its field is acceptable, and may be left empty.
    property bool isLocal: false
    property string type
    property int inputType: 0
    property string label
    property bool readOnly: false
    property bool mandatory: false
    property var minimum
    property var maximum
    property string rangeDescription
    property bool hasFormatter: false
    // Decimals of the value; -1 for as many as it needs.
    property int decimals: -1
    // What there is to choose from now, as { label, value }; empty for an item without choices.
    property var choices: []
    property bool isChoice: false

    // The item's own words about its range, without the gaps that missing limits and units leave in them.
    readonly property string tidyRange: rangeDescription.replace(/\s+/g, " ").trim()

    // Why the last write was refused, in words; empty when it was not.
    property string refusal
    // Counts what the item reported, for those who follow elements.
    property int reports: 0

    // Writes to the item and returns why it was refused; an empty text when it was not.
    function write(value) {
        return writeWith(() => { item.value = value })
    }

    function writeWith(operation) {
        refusal = ""
        if (item)
            operation()
        return refusal
    }

    // Whether the item's own expression takes the text. Numbers have none.
    function matches(text) {
        const validator = item ? item.validator : null
        return !validator || !validator.validate || validator.validate(text, text.length) === 2
    }

    function elements() {
        const list = []
        for (let i = 0; item && i < item.valueCount; ++i)
            list.push(item.at(i))
        return list
    }

    function describe() {
        // Bindings may not have followed yet.
        const source = item || {}
        const local = source.valueOk !== undefined
        // A service's item without a type is one whose service is away.
        if (!local && !source.type && described === item)
            return
        described = source.type ? item : null
        isLocal = local
        inputType = source.inputType || 0
        label = source.label || ""
        readOnly = source.readOnly || false
        mandatory = source.mandatory || false
        // A property of any type tells of every write.
        if (minimum !== limit(source.minRange))
            minimum = limit(source.minRange)
        if (maximum !== limit(source.maxRange))
            maximum = limit(source.maxRange)
        rangeDescription = source.rangeDescription || ""
        hasFormatter = !!source.formatter
        decimals = decimalsOf(source)
        isChoice = source.enumCount > 0 && source.type !== "bool"
        readChoices(source)
        type = source.type || ""
    }

    function limit(value) {
        return value === undefined || value === null || value === "" ? undefined : value
    }

    function decimalsOf(source) {
        const said = source.getProperty ? source.getProperty("precision") : undefined
        return said === undefined || said === null ? -1 : Math.min(Number(said), 20)
    }

    function readChoices(source) {
        const found = []
        for (let i = 0; isChoice && i < source.enumCount; ++i) {
            if (source.applicableAt(i))
                found.push({ label: source.enumLabel(i), value: source.enumValue(i) })
        }
        // An equal list would close the one that the user has open.
        if (JSON.stringify(found) !== JSON.stringify(choices))
            choices = found
    }

    // The item that the description is of.
    property var described: null

    // A name that is looked up again, since its service is back, gives the same item: that is no other one.
    property var known: null
    signal replaced()

    onItemChanged: {
        if (item && item === known)
            return
        known = item
        refusal = ""
        described = null
        describe()
        ++reports
        replaced()
    }

    property Connections watcher: Connections {
        target: face.item || null
        ignoreUnknownSignals: true
        function onErrorChanged(id, error) { face.refusal = error || qsTr("The entry was refused.") }
        function onValueChanged() { ++face.reports }
        function onValueCountChanged() { ++face.reports }
        function onIsReadyChanged() { face.describe() }
        function onEnumCountChanged() { face.describe() }
        function onEnumLabelsChanged() { face.describe() }
        function onLabelChanged() { face.describe() }
        function onTypeChanged() { face.describe() }
        function onInputTypeChanged() { face.describe() }
        function onMinRangeChanged() { face.describe() }
        function onMaxRangeChanged() { face.describe() }
        function onRangeDescriptionChanged() { face.describe() }
        function onPrecisionChanged() { face.describe() }
        function onReadOnlyChanged() { face.describe() }
        function onMandatoryChanged() { face.describe() }
        function onValidatorChanged() { face.describe() }
    }
}
