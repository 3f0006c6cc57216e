import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Demo 1.0

// Builds the report of the last run.
QtObject {
    id: builder

    property LoopbackMeasurement measurement
    property ReportTemplate report
    property string title
    // Keeps the order of the rows on the pages, however many there are.
    readonly property TableRows rows: TableRows {}

    function build() {
        report.beginReport("loopback_report")
        report.setKey("title", title)
        report.setKey("indent_pix", "10")
        report.beginSection("loopback_tcp", qsTr("Loopback TCP"))
        addRunAttributes()
        report.setKey("log_0", measurement.method)
        addSummary()
        addQuantity("round_trip_time", measurement.roundTrip, "loopback_rtt")
        addQuantity("throughput", measurement.throughput, "loopback_throughput")
        report.endSection()
        report.endReport()
    }

    function addRunAttributes() {
        report.addAttribute("samples", measurement.roundTrip.count)
        report.addAttribute("address", measurement.serverAddress)
        report.addAttribute("start_time", measurement.startTime)
    }

    function addSummary() {
        report.beginTable("summary", qsTr("Summary"))
        addPlainRow("started", qsTr("Started"), measurement.startTime.replace("T", " ").replace("Z", " UTC"))
        addPlainRow("server", qsTr("Server"), measurement.serverAddress)
        addSummaryRows("round_trip_time", measurement.roundTrip)
        addSummaryRows("throughput", measurement.throughput)
        endTable()
    }

    function addSummaryRows(tag, quantity) {
        addValueRow(tag + "_median", qsTr("%1, median").arg(quantity.title), quantity, quantity.median)
        addValueRow(tag + "_minimum", qsTr("%1, minimum").arg(quantity.title), quantity, quantity.minimum)
        addValueRow(tag + "_maximum", qsTr("%1, maximum").arg(quantity.title), quantity, quantity.maximum)
        rows.addRow(tag + "_jitter", qsTr("%1, jitter").arg(quantity.title), quantity.text(quantity.jitter),
                    { align: Alignment.Right, unit: quantity.unit })
        addPlainRow(tag + "_limit", qsTr("%1, limit").arg(quantity.title), quantity.limitText)
    }

    function addQuantity(tag, quantity, service) {
        report.beginSection(tag, quantity.title)
        report.addAttribute("unit", quantity.unit)
        report.addAttribute("limit", quantity.limitText)
        addPlot(tag, qsTr("%1 of each sample").arg(quantity.title), service)
        report.beginTable(tag + "_samples", qsTr("Samples"))
        for (let i = 0; i < quantity.count; ++i)
            addValueRow("sample", qsTr("Sample %1").arg(i + 1), quantity, quantity.valueAt(i))
        endTable()
        report.endSection()
    }

    function addPlot(tag, title, service) {
        report.beginTable(tag + "_plot", title)
        report.setKey("label", "plot")
        report.setKey("service", service)
        report.endTable()
    }

    function endTable() {
        report.addRows(rows)
        report.endTable()
    }

    function addPlainRow(tag, label, text) {
        rows.addRow(tag, label, text, { align: Alignment.Right })
    }

    function addValueRow(tag, label, quantity, value) {
        rows.addRow(tag, label, quantity.text(value),
                    { status: quantity.statusOf(value), align: Alignment.Right, unit: quantity.unit })
    }
}
