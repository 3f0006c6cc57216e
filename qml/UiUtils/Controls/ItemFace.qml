import QtQuick 2.15
import UiUtils 1.0

// An item as its entry sees it. The item may not exist yet, be replaced, be destroyed, or lose and regain its service
// during an edit. Its description (type, limits, choices) is taken only from an item that can give it, so that an entry
// does not change while the service is away.
QtObject {
    id: face

    // Undefined for an entry without an item, null for one whose item is missing.
    property var item

    readonly property bool hasItem: !!item
    readonly property bool isMissing: item === null
    readonly property var value: hasItem ? item.value : undefined
    readonly property string valueString: hasItem ? item.valueString : ""
    readonly property string unit: hasItem ? item.unitString : ""
    readonly property bool isReady: hasItem ? item.isReady : !isMissing
    readonly property bool isApplicable: hasItem ? item.applicable : true
    readonly property int quality: hasItem ? item.qualityCode : 0

    // A local item: it is notified whether the content of its field is acceptable, and may stay empty.
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
    // The choices that are applicable now, as { label, value }; empty for an item without choices.
    property var choices: []
    property bool isChoice: false

    // The item's description of its range, without the gaps that missing limits and units leave in it.
    readonly property string tidyRange: rangeDescription.replace(/\s+/g, " ").trim()

    // Why the last write was rejected, in words; empty after a success.
    property string refusal
    // Counts the item's reports, for entries that follow elements.
    property int reports: 0

    // Writes to the item and returns why it was rejected; an empty text after a success.
    function write(value) {
        return writeWith(() => {
            // During a transaction an item reverts only its last write: each must be the first, so that it reverts to the
            // service's value.
            item.revert()
            item.value = value
        })
    }

    function writeWith(operation) {
        refusal = ""
        if (item)
            operation()
        return refusal
    }

    // Whether the item's own expression accepts the text. Numbers have none.
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
        // Bindings may not have been evaluated yet.
        const source = item || {}
        const local = source.valueOk !== undefined
        // A service item without a type is one whose service is away.
        if (!local && !source.type && described === item)
            return
        described = source.type ? item : null
        isLocal = local
        inputType = source.inputType || 0
        label = source.label || ""
        readOnly = source.readOnly || false
        mandatory = source.mandatory || false
        // A property of any type signals every write.
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
        // Assigning an equal list would close the one that the user has open.
        if (JSON.stringify(found) !== JSON.stringify(choices))
            choices = found
    }

    // The item of the present description.
    property var described: null

    // A name that is looked up again, after its service returned, gives the same item: that is not a replacement.
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

    // Labels, choices and limits are told in the new language.
    property Connections listener: Connections {
        target: Languages
        function onCurrentChanged() { face.describe() }
    }

    property Connections watcher: Connections {
        target: face.item || null
        ignoreUnknownSignals: true
        function onErrorChanged(id, error) { face.refusal = error || qsTr("The entry was rejected.") }
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
