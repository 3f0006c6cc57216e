import QtQuick 2.15
import UiUtils 1.0
import UiUtils.Demo 1.0

// Builds the report of the last run.
QtObject {
    id: builder

    property LoopbackMeasurement measurement
    property ReportTemplate report
    property string title

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
        keepRowsInOrder(12)
        addPlainRow("started", qsTr("Started"), measurement.startTime.replace("T", " ").replace("Z", " UTC"))
        addPlainRow("server", qsTr("Server"), measurement.serverAddress)
        addSummaryRows("round_trip_time", measurement.roundTrip)
        addSummaryRows("throughput", measurement.throughput)
        report.endTable()
    }

    function addSummaryRows(tag, quantity) {
        addValueRow(tag + "_median", qsTr("%1, median").arg(quantity.title), quantity, quantity.median)
        addValueRow(tag + "_minimum", qsTr("%1, minimum").arg(quantity.title), quantity, quantity.minimum)
        addValueRow(tag + "_maximum", qsTr("%1, maximum").arg(quantity.title), quantity, quantity.maximum)
        report.addRow(tag + "_jitter", qsTr("%1, jitter").arg(quantity.title), quantity.text(quantity.jitter),
                      { align: Alignment.Right, unit: quantity.unit })
        addPlainRow(tag + "_limit", qsTr("%1, limit").arg(quantity.title), quantity.limitText)
    }

    function addQuantity(tag, quantity, service) {
        report.beginSection(tag, quantity.title)
        report.addAttribute("unit", quantity.unit)
        report.addAttribute("limit", quantity.limitText)
        addPlot(tag, service)
        report.beginTable(tag + "_samples", qsTr("Samples"))
        keepRowsInOrder(quantity.count)
        for (let i = 0; i < quantity.count; ++i)
            addValueRow("sample", qsTr("Sample %1").arg(i + 1), quantity, quantity.valueAt(i))
        report.endTable()
        report.endSection()
    }

    function addPlot(tag, service) {
        report.beginTable(tag + "_plot", qsTr("Plot"))
        report.setKey("label", "plot")
        report.setKey("service", service)
        report.endTable()
    }

    function addPlainRow(tag, label, text) {
        report.addRow(tag, label, text, { align: Alignment.Right })
    }

    function addValueRow(tag, label, quantity, value) {
        report.addRow(tag, label, quantity.text(value),
                      { status: quantity.statusOf(value), align: Alignment.Right, unit: quantity.unit })
    }

    // Pages show rows in the string order of their keys, which puts row_10 before row_2. A row's number counts the keys
    // of its table that contain "row_"; with enough of those before the first row, all numbers have the same count of
    // digits. The table starts with one such key of its own.
    function keepRowsInOrder(rows) {
        let first = 1
        while (String(first).length < String(first + rows - 1).length)
            first *= 10
        for (let i = 1; i < first; ++i)
            report.setKey("before_row_" + i, "")
    }
}
