#include "writers/text/textreport.h"

#include "base/plaintext_p.h"
#include "document/documentreader_p.h"
#include "document/reporttemplate.h"
#include "instrument/unit_p.h"
#include "writers/plots/plotdata_p.h"
#include "writers/text/reportcontent_p.h"
#include "writers/text/texttable_p.h"

#include <QHash>
#include <QJsonDocument>
#include <QLocale>

namespace uiutils {

namespace {

constexpr int narrowest = 20;
constexpr int widest = 1000;

/// The alignment that the document sets for a cell; automatic if it sets none.
Alignment::Code alignmentOf(const QJsonObject& cell)
{
    const QString text = textOf(cell.value(keys::alignAttribute));
    const int code = text.size() == 1 ? text.at(0).unicode() - '0' : -1;
    return code >= Alignment::Center && code <= Alignment::Right ? Alignment::Code(code) : TextTable::automatic;
}

QString numberText(double value)
{
    constexpr int digits = 7;
    return QLocale().toString(value, 'g', digits);
}

QString withUnit(const QString& label, const QString& unit)
{
    return unit.isEmpty() ? label : QStringLiteral("%1 (%2)").arg(label, unit);
}

/// What a plot shows at first sight: its curves and their extents.
TextTable plotTable(const PlotData& data)
{
    // A plot does not show more either.
    constexpr int mostCurves = 100;
    enum Columns { Points, Abscissa, Minimum, Maximum };
    TextTable table({},
            {ReportWords::tr("Points"), withUnit(data.xLabel, data.xUnit), ReportWords::tr("Minimum"),
                    ReportWords::tr("Maximum")});
    for (int i = 0; i < qMin(data.curves.size(), mostCurves); ++i) {
        const PlotCurve& curve = data.curves.at(i);
        const PlotExtent& extent = curve.extent;
        table.startRow(withUnit(curve.label, curve.unit));
        table.addCell(Points, QLocale().toString(curve.size), Status::None, Alignment::Right);
        if (extent.x.isEmpty())
            continue;
        const QString range = ReportWords::tr("%1 to %2");
        table.addCell(Abscissa, range.arg(numberText(extent.x.low), numberText(extent.x.high)), Status::None,
                Alignment::Right);
        table.addCell(Minimum, numberText(extent.y.low), Status::None, Alignment::Right);
        table.addCell(Maximum, numberText(extent.y.high), Status::None, Alignment::Right);
    }
    if (data.curves.size() > mostCurves)
        table.startRow(ReportWords::tr("%1 more").arg(QLocale().toString(data.curves.size() - mostCurves)));
    for (const PlotLimit& limit : data.limits) {
        const bool isLower = limit.kind == PlotLimit::Lower;
        const QString name = isLower ? ReportWords::tr("Lower limit") : ReportWords::tr("Upper limit");
        table.startRow(withUnit(name, limit.unit));
        table.addCell(isLower ? Minimum : Maximum, numberText(limit.value), Status::None, Alignment::Right);
    }
    return table;
}

/// Writes one report.
class TextReport
{
public:
    TextReport(const QJsonObject& document, const TextLayout& layout)
        : m_document(document)
        , m_layout(layout)
        , m_width(qBound(narrowest, layout.width, widest))
    {
    }

    QString text()
    {
        writeTitle();
        writePeople(m_layout.includeJobInfo, m_layout.includeCustomerInfoTop, m_layout.includeTechnicianInfoTop);
        writeTables(m_document);
        writeSections(m_document);
        writeSystem();
        writePeople(false, m_layout.includeCustomerInfoEnd, m_layout.includeTechnicianInfoEnd);
        return m_lines.text();
    }

private:
    void startBlock()
    {
        if (!m_lines.isEmpty())
            m_lines.endLine();
    }

    void writeBlock(const TextTable& table)
    {
        if (table.isEmpty())
            return;
        startBlock();
        table.write(m_lines, m_width);
    }

    void writeTitle()
    {
        const QString own = m_layout.title.isNull() ? NodeReader(m_document).title() : m_layout.title;
        const QString plain = plainText(own).trimmed();
        const QString title = plain.isEmpty() ? ReportWords::tr("Report") : plain;
        const QLatin1Char letter('=');
        m_lines.putRule(0, TextLines().putText(title, m_width), letter);
        m_lines.endLine();
        writeUnderlined(title, letter);

        TextTable table({}, {QString()});
        const auto addRow = [&](const QString& label, const QString& text) {
            table.startRow(label);
            table.addCell(0, text, Status::None, Alignment::Left);
        };
        const QDateTime& time = m_layout.timestamp;
        if (time.isValid())
            addRow(ReportWords::tr("Timestamp"),
                    dateText(time.date()) + QLatin1Char(' ') + time.toString(QStringLiteral("hh:mm:ss")));
        if (m_layout.status != ReportStatus::Unknown)
            addRow(ReportWords::tr("Overall Status"), overallText(m_layout.status));
        if (!table.hasRows())
            return;
        writeBlock(table);
    }

    void writeUnderlined(const QString& text, QLatin1Char letter)
    {
        const int length = m_lines.putText(text, m_width);
        m_lines.putRule(0, length, letter);
        m_lines.endLine();
    }

    void writeHeading(int level, const QString& title)
    {
        const QString plain = plainText(title).trimmed();
        if (plain.isEmpty())
            return;
        startBlock();
        if (level == 1)
            m_lines.endLine();
        const char letters[] = "=-~";
        writeUnderlined(plain, QLatin1Char(letters[qMin(level, 3) - 1]));
    }

    void writePeople(bool job, bool customer, bool technician)
    {
        if (job)
            writeInformation(jobTable());
        if (customer)
            writeInformation(customerTable());
        if (technician)
            writeInformation(technicianTable());
    }

    void writeInformation(const InformationTable& information)
    {
        if (information.rows.isEmpty())
            return;
        TextTable table(information.title, {QString()});
        for (const instrument::LabelledText& row : information.rows) {
            table.startRow(row.label);
            table.addCell(0, row.text, Status::None, Alignment::Left);
        }
        writeBlock(table);
    }

    void writeSystem()
    {
        const InformationTable software = m_layout.showSoftwareRevs ? softwareTable() : InformationTable();
        const QVector<QStringList> assemblies
                = m_layout.showHardwareRevs ? instrument::hardwareAssemblies() : QVector<QStringList>();
        if (software.rows.isEmpty() && assemblies.isEmpty())
            return;
        writeHeading(1, ReportWords::tr("Solvant System Information"));
        writeInformation(software);
        writeHardware(assemblies);
    }

    void writeHardware(const QVector<QStringList>& assemblies)
    {
        if (assemblies.isEmpty())
            return;
        const QStringList labels {ReportWords::tr("Assembly"), ReportWords::tr("ID")};
        TextTable table(ReportWords::tr("Hardware"), labels);
        for (const QStringList& parts : assemblies) {
            table.startRow({});
            for (int i = 0; i < qMin(parts.size(), labels.size()); ++i)
                table.addCell(i, parts.at(i), Status::None, Alignment::Left);
        }
        writeBlock(table);
    }

    void writeSections(const QJsonObject& node)
    {
        ++m_depth;
        NodeReader(node).forEachSection(
                NodeReader::ByNumber, [this](const QJsonObject& section) { writeSection(section); });
        --m_depth;
    }

    void writeSection(const QJsonObject& object)
    {
        const NodeReader section(object);
        if (!section.isEnabled())
            return;
        writeHeading(m_depth, section.title());
        writeLog(section);
        writeInformation(configurationTable(section, NodeReader(m_document)));
        writeTables(object);
        writeSections(object);
    }

    void writeLog(const NodeReader& section)
    {
        constexpr int hanging = 2;
        bool isFirst = true;
        const QVector<NodeReader::LogEntry> entries = section.logEntries();
        for (const NodeReader::LogEntry& entry : entries) {
            const QString text = plainText(entry.text);
            if (text.trimmed().isEmpty())
                continue;
            if (isFirst)
                startBlock();
            isFirst = false;
            m_lines.putText(text, m_width, 0, hanging);
        }
    }

    void writeTables(const QJsonObject& node)
    {
        NodeReader(node).forEachTable(NodeReader::ByNumber, [this](const QString&, const QJsonObject& object) {
            const TableReader table(object);
            if (table.isPlot())
                writePlot(table);
            else
                writeTable(table);
        });
    }

    void writeTable(const TableReader& reader)
    {
        const bool hasLabels = reader.usesRowLabels();
        TextTable table(reader.title(), reader.columnLabels());
        reader.forEachRow(NodeReader::ByNumber, [&](const QString& key, const QJsonObject& row) {
            if (!key.startsWith(keys::rowFamily))
                return;
            table.startRow(hasLabels ? shownTextOf(row.value(keys::label)) : QString());
            reader.forEachCellOf(row, [&](int column, const QJsonObject& cell) {
                table.addCell(column, shownTextOf(cell.value(keys::label)),
                        textOf(cell.value(keys::statusAttribute)).toInt(), alignmentOf(cell));
            });
        });
        writeBlock(table);
    }

    void writePlot(const TableReader& reader)
    {
        startBlock();
        const QString own = plainText(reader.title()).trimmed();
        m_lines.putText(own.isEmpty() ? ReportWords::tr("Plot") : own, m_width);
        const QString source = reader.plotSource();
        auto known = m_plots.constFind(source);
        if (known == m_plots.constEnd())
            known = m_plots.insert(source, plotTable(readPlotData(source)));
        if (known->hasRows())
            known->write(m_lines, m_width);
        m_lines.putText(known->hasRows() ? ReportWords::tr("The curves are drawn in the HTML and PDF reports.")
                                         : ReportWords::tr("There are no curves."),
                m_width, tableIndentation, tableIndentation);
    }

    QJsonObject m_document;
    const TextLayout& m_layout;
    int m_width;
    int m_depth = 0;
    TextLines m_lines;
    // A service may hold a million points, and many tables may show it.
    QHash<QString, TextTable> m_plots;
};

} // namespace

QString reportText(const ReportTemplate& document, const TextLayout& layout)
{
    return TextReport(document.object(), layout).text();
}

QString reportJson(const ReportTemplate& document)
{
    return QString::fromUtf8(QJsonDocument(document.object()).toJson());
}

} // namespace uiutils
