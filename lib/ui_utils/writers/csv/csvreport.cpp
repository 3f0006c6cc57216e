#include "writers/csv/csvreport.h"

#include "base/plaintext_p.h"
#include "core/status.h"
#include "document/documentreader_p.h"
#include "document/reporttemplate.h"
#include "instrument/unit_p.h"
#include "writers/csv/csvnames_p.h"
#include "writers/csv/csvplot_p.h"
#include "writers/csv/csvtable_p.h"
#include "writers/csv/ziparchive_p.h"
#include "writers/text/reportcontent_p.h"

#include <functional>

namespace uiutils {

namespace {

const QLatin1String unitAttribute("attr_unit");

/// Gets the tables that are shown, and the report or section in which each stands.
using TableVisitor = std::function<void(const QJsonObject& table, const NodeReader& holder)>;

void forEachShownTable(const QJsonObject& node, const TableVisitor& visit)
{
    const NodeReader reader(node);
    reader.forEachTable(NodeReader::ByNumber, [&](const QString&, const QJsonObject& table) { visit(table, reader); });
    reader.forEachSection(NodeReader::ByNumber, [&](const QJsonObject& section) {
        if (NodeReader(section).isEnabled())
            forEachShownTable(section, visit);
    });
}

/// Makes the files of one report.
class CsvReport
{
public:
    CsvReport(const QJsonObject& document, const CsvLayout& layout, const CsvVisitor& visit)
        : m_document(document)
        , m_layout(layout)
        , m_visit(visit)
    {
    }

    void writeAll()
    {
        const TextLayout& content = m_layout.content;
        writeData();
        if (content.includeJobInfo)
            writeInformation(jobTable());
        if (content.includeCustomerInfoTop || content.includeCustomerInfoEnd)
            writeInformation(customerTable());
        if (content.includeTechnicianInfoTop || content.includeTechnicianInfoEnd)
            writeInformation(technicianTable());
        writeTables(m_document);
        writeSections(m_document);
        if (content.showSoftwareRevs)
            writeInformation(softwareTable());
        if (content.showHardwareRevs)
            writeHardware(instrument::hardwareAssemblies());
        writeLogs();
    }

    void writeTablesAlone()
    {
        forEachShownTable(m_document, [this](const QJsonObject& table, const NodeReader& holder) {
            writeAnyTable(TableReader(table), holder);
        });
    }

    /// What the document says of itself.
    void writeData()
    {
        CsvTable table(ReportWords::tr("Name"), {ReportWords::tr("Value")});
        const auto addRow = [&](const QString& name, const QString& value) {
            table.startRow(name);
            table.addCell(0, value, Status::None);
        };
        const TextLayout& content = m_layout.content;
        if (content.timestamp.isValid())
            addRow(ReportWords::tr("Timestamp"), content.timestamp.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
        if (content.status != ReportStatus::Unknown)
            addRow(ReportWords::tr("Overall Status"), overallText(content.status));
        for (auto it = m_document.begin(); it != m_document.end(); ++it) {
            const QString key = it.key();
            const QString own = key == keys::title && !content.title.isNull() ? content.title : shownTextOf(it.value());
            if (key != keys::nodeType && !it->isObject() && !it->isArray())
                addRow(key.startsWith(keys::attributeFamily) ? key.mid(keys::attributeFamily.size()) : key, own);
        }
        write(QStringLiteral("report"), table);
    }

private:
    void writeFile(const QString& title, const CsvLines& lines) { m_visit(m_names.nameFor(title), lines.bytes()); }

    CsvLines newLines() const { return {m_layout.hasDecimalComma, m_layout.hasByteOrderMark}; }

    void write(const QString& title, const CsvTable& table)
    {
        CsvLines lines = newLines();
        table.write(lines);
        writeFile(title, lines);
    }

    /// Versions, telephone and job numbers are no numbers; settings may be.
    void writeInformation(const InformationTable& information, bool hasNumbers = false)
    {
        CsvTable table(ReportWords::tr("Name"), {information.valueLabel});
        for (const instrument::LabelledText& row : information.rows) {
            table.startRow(row.label);
            if (hasNumbers)
                table.addCell(0, row.text, Status::None);
            else
                table.addText(0, row.text);
        }
        if (table.hasRows())
            write(information.title, table);
    }

    void writeHardware(const QVector<QStringList>& assemblies)
    {
        CsvTable table({}, {ReportWords::tr("Assembly"), ReportWords::tr("ID")});
        for (const QStringList& parts : assemblies) {
            table.startRow({});
            for (int i = 0; i < qMin(parts.size(), 2); ++i)
                table.addText(i, parts.at(i));
        }
        if (table.hasRows())
            write(ReportWords::tr("Hardware"), table);
    }

    void writeTables(const QJsonObject& node)
    {
        const NodeReader reader(node);
        reader.forEachTable(NodeReader::ByNumber,
                [&](const QString&, const QJsonObject& table) { writeAnyTable(TableReader(table), reader); });
    }

    void writeSections(const QJsonObject& node)
    {
        NodeReader(node).forEachSection(NodeReader::ByNumber, [this](const QJsonObject& section) {
            if (!NodeReader(section).isEnabled())
                return;
            writeInformation(configurationTable(NodeReader(section), NodeReader(m_document)), true);
            writeTables(section);
            writeSections(section);
        });
    }

    /// A table without a title is named after what holds it.
    void writeAnyTable(const TableReader& table, const NodeReader& holder)
    {
        QString title = table.title();
        for (const QString& other : {table.tag(), holder.title(), QStringLiteral("table")}) {
            if (plainText(title).trimmed().isEmpty())
                title = other;
        }
        if (table.isPlot())
            writePlot(title, table);
        else
            writeTable(title, table);
    }

    void writeTable(const QString& title, const TableReader& reader)
    {
        const bool hasLabels = reader.usesRowLabels();
        CsvTable table(hasLabels ? ReportWords::tr("Name") : QString(), reader.columnLabels());
        reader.forEachRow(NodeReader::ByNumber, [&](const QString& key, const QJsonObject& row) {
            if (!key.startsWith(keys::rowFamily))
                return;
            table.startRow(hasLabels ? shownTextOf(row.value(keys::label)) : QString());
            reader.forEachCellOf(row, [&](int column, const QJsonObject& cell) {
                table.addCell(column, shownTextOf(cell.value(keys::label)),
                        textOf(cell.value(keys::statusAttribute)).toInt(), textOf(cell.value(unitAttribute)));
            });
        });
        write(title, table);
    }

    void writePlot(const QString& title, const TableReader& reader)
    {
        CsvLines lines = newLines();
        writePlotPoints(reader.plotSource(), lines);
        writeFile(title, lines);
    }

    void writeLogs()
    {
        CsvTable table(ReportWords::tr("Section"), {ReportWords::tr("Entry")});
        addLogs(m_document, table);
        if (table.hasRows())
            write(ReportWords::tr("Log"), table);
    }

    void addLogs(const QJsonObject& node, CsvTable& table)
    {
        NodeReader(node).forEachSection(NodeReader::ByNumber, [&](const QJsonObject& object) {
            const NodeReader section(object);
            if (!section.isEnabled())
                return;
            const QVector<NodeReader::LogEntry> entries = section.logEntries();
            for (const NodeReader::LogEntry& entry : entries) {
                if (plainText(entry.text).trimmed().isEmpty())
                    continue;
                table.startRow(section.title());
                table.addText(0, entry.text);
            }
            addLogs(object, table);
        });
    }

    QJsonObject m_document;
    const CsvLayout& m_layout;
    const CsvVisitor& m_visit;
    CsvNames m_names;
};

} // namespace

int csvTableCount(const ReportTemplate& document)
{
    int count = 0;
    forEachShownTable(document.object(), [&](const QJsonObject&, const NodeReader&) { ++count; });
    return count;
}

QByteArray reportCsv(const ReportTemplate& document, const CsvLayout& layout)
{
    QByteArray contents;
    const CsvVisitor keep = [&](const QString&, const QByteArray& file) { contents = file; };
    CsvReport report(document.object(), layout, keep);
    switch (csvTableCount(document)) {
    case 0:
        report.writeData();
        break;
    case 1:
        report.writeTablesAlone();
        break;
    default:
        break;
    }
    return contents;
}

QByteArray reportCsvZip(const ReportTemplate& document, const CsvLayout& layout)
{
    ZipArchive archive(layout.content.timestamp);
    visitCsvFiles(document, layout,
            [&](const QString& name, const QByteArray& contents) { archive.addFile(name, contents); });
    return archive.finished();
}

void visitCsvFiles(const ReportTemplate& document, const CsvLayout& layout, const CsvVisitor& visit)
{
    CsvReport(document.object(), layout, visit).writeAll();
}

} // namespace uiutils
