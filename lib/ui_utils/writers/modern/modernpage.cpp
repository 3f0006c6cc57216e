#include "writers/modern/modernpage_p.h"

#include "base/xmltext_p.h"
#include "document/documentreader_p.h"
#include "instrument/unit_p.h"
#include "writers/modern/markupwords_p.h"
#include "writers/modern/modernstyle_p.h"
#include "writers/modern/moderntable_p.h"
#include "writers/modern/pagelanguage_p.h"
#include "writers/pages/statusicons_p.h"
#include "writers/text/reportcontent_p.h"

#include <QSize>
#include <QtEndian>

namespace uiutils {

namespace {

/// The levels of headings that HTML has.
constexpr int deepestHeading = 6;
/// A longer title is set as a text.
constexpr int longestTitle = 200;

/// A picture inside the page; empty for bytes that are no picture of a kind that browsers show.
QString pictureUri(const QByteArray& bytes)
{
    const char* const type = bytes.startsWith("\x89PNG") ? "png"
            : bytes.startsWith("\xff\xd8")               ? "jpeg"
            : bytes.startsWith("GIF8")                   ? "gif"
            : bytes.startsWith('<')                      ? "svg+xml"
                                                         : nullptr;
    if (!type)
        return {};
    return QStringLiteral("data:image/%1;base64,%2").arg(QLatin1String(type), QLatin1String(bytes.toBase64()));
}

/// The width and height that a PNG image says it has; empty for other bytes.
QSize pngSize(const QByteArray& png)
{
    constexpr int widthAt = 16;
    constexpr int heightAt = 20;
    constexpr int end = 24;
    if (png.size() < end || !png.startsWith("\x89PNG"))
        return {};
    return {int(qFromBigEndian<quint32>(png.constData() + widthAt)),
            int(qFromBigEndian<quint32>(png.constData() + heightAt))};
}

/// Writes one page.
class ModernPage
{
public:
    explicit ModernPage(const ModernPageSource& source)
        : m_source(source)
        , m_report(source.document)
    {
    }

    QString page()
    {
        const QString own = m_source.title.trimmed();
        m_title = own.isEmpty() ? ReportWords::tr("Report") : own;
        writeHead();
        m_page += QLatin1String("<body>\n");
        writeHeader();
        m_page += QLatin1String("<main>\n");
        writePeople("Top");
        writeTables(m_report);
        writeSections(m_report, 2);
        writeSystem();
        writePeople("End");
        m_page += QLatin1String("</main>\n</body>\n</html>\n");
        return m_page;
    }

private:
    QString text(const char* name) const { return m_source.attribute(QLatin1String(name)).toString(); }
    bool isSet(const char* name) const { return m_source.attribute(QLatin1String(name)).toBool(); }

    void writeHead()
    {
        const PageLanguage language = pageLanguage(m_source.attribute, m_report, m_title);
        m_page += QLatin1String("<!DOCTYPE html>\n<html");
        appendAttribute(m_page, QLatin1String("lang"), language.tag);
        appendAttribute(m_page, QLatin1String("dir"), language.direction());
        // The texts are data: nothing in the page may run or load anything.
        m_page += QLatin1String(R"(>
<head>
<meta charset="UTF-8"/>
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; img-src data:; style-src 'unsafe-inline'"/>
<meta name="viewport" content="width=device-width, initial-scale=1"/>
<meta name="color-scheme" content="light dark"/>
<title>)");
        appendText(m_page, m_title.simplified());
        const bool isLandscape = text("orientation") == QLatin1String("landscape");
        m_page += QLatin1String("</title>\n<style>\n") + modernStyleSheet(isLandscape)
                + QLatin1String("</style>\n</head>\n");
    }

    void writeHeader()
    {
        m_page += QLatin1String("<header>\n");
        const QString logo = text("logo");
        const QString uri = logo.startsWith(QLatin1String("data:image/")) ? logo : pictureUri(readIcon(logo));
        if (!uri.isEmpty()) {
            m_page += QLatin1String("<img class=\"logo\" alt=\"\"");
            appendAttribute(m_page, QLatin1String("src"), uri);
            m_page += QLatin1String("/>\n");
        }
        writeHeading(1, m_title);
        const ModernTable::Shape shape {ReportWords::tr("Test Information"), {ReportWords::tr("Value")}};
        ModernTable facts(m_page, shape, ++m_tables);
        for (const ReportField& fact : m_source.facts) {
            facts.startRow(fact.label);
            facts.addCell(0, fact.text, fact.status);
            facts.endRow();
        }
        facts.end();
        m_page += QLatin1String("<!--report_status=") + m_source.statusWord + QLatin1String("-->\n</header>\n");
    }

    /// The direction of each is that of its own words.
    void writeHeading(int level, const QString& words)
    {
        const QString name = QStringLiteral("h%1").arg(qMin(level, deepestHeading));
        m_page += QLatin1Char('<') + name + QLatin1String(" dir=\"auto\"");
        m_page += words.size() > longestTitle ? QLatin1String(" class=\"long\">") : QLatin1String(">");
        appendWords(m_page, words);
        m_page += QLatin1String("</") + name + QLatin1String(">\n");
    }

    void writeInformation(const InformationTable& table) { appendTable(m_page, table, ++m_tables); }

    /// `place` is how the switches end.
    void writePeople(const char* place)
    {
        const auto wants = [&](const char* who) {
            return m_source.attribute(QLatin1String(who) + QLatin1String(place)).toBool();
        };
        if (wants("includeCustomerInfo"))
            writeInformation(customerTable());
        if (wants("includeTechnicianInfo"))
            writeInformation(technicianTable());
    }

    void writeSystem()
    {
        const InformationTable software = isSet("showSoftwareRevs") ? softwareTable() : InformationTable();
        const QVector<QStringList> assemblies
                = isSet("showHardwareRevs") ? instrument::hardwareAssemblies() : QVector<QStringList>();
        if (software.rows.isEmpty() && assemblies.isEmpty())
            return;
        m_page += QLatin1String("<section>\n");
        writeHeading(2, ReportWords::tr("Solvant System Information"));
        writeInformation(software);
        writeHardware(assemblies);
        m_page += QLatin1String("</section>\n");
    }

    void writeHardware(const QVector<QStringList>& assemblies)
    {
        if (assemblies.isEmpty())
            return;
        const ModernTable::Shape shape {
                ReportWords::tr("Hardware"), {ReportWords::tr("Assembly"), ReportWords::tr("ID")}, false};
        ModernTable table(m_page, shape, ++m_tables);
        for (const QStringList& parts : assemblies) {
            table.startRow();
            for (int i = 0; i < qMin(parts.size(), shape.columnLabels.size()); ++i)
                table.addCell(i, parts.at(i));
            table.endRow();
        }
        table.end();
    }

    void writeSections(const NodeReader& node, int level)
    {
        node.forEachSection(NodeReader::ByNumber, [&](const QJsonObject& object) {
            const NodeReader section(object);
            if (section.isEnabled())
                writeSection(section, level);
        });
    }

    /// A section without a title takes no level: headings must not skip one.
    void writeSection(const NodeReader& section, int level)
    {
        const QString title = section.title().trimmed();
        const int outside = m_page.size();
        m_page += QLatin1String("<section>\n");
        const int inside = m_page.size();
        if (!title.isEmpty())
            writeHeading(level, title);
        writeLog(section);
        writeInformation(configurationTable(section, m_report));
        writeTables(section);
        writeSections(section, title.isEmpty() ? level : level + 1);
        if (m_page.size() == inside)
            m_page.truncate(outside);
        else
            m_page += QLatin1String("</section>\n");
    }

    void writeLog(const NodeReader& section)
    {
        const QVector<NodeReader::LogEntry> entries = section.logEntries();
        for (const NodeReader::LogEntry& entry : entries) {
            if (markupText(entry.text).trimmed().isEmpty())
                continue;
            m_page += QLatin1String("<p dir=\"auto\">");
            appendWords(m_page, entry.text);
            m_page += QLatin1String("</p>\n");
        }
    }

    void writeTables(const NodeReader& node)
    {
        node.forEachTable(NodeReader::ByNumber, [this](const QString& key, const QJsonObject& object) {
            const TableReader table(object);
            if (table.isPlot())
                writePlot(table, NodeReader::tableNumber(key).value_or(0));
            else
                appendTable(m_page, table, ++m_tables);
        });
    }

    void writePlot(const TableReader& table, quint64 number)
    {
        const PlotOnPage plot = m_source.plot(table.plotSource(), number);
        const QSize size = pngSize(plot.png) / m_source.plotPixels;
        const QString own = table.title().trimmed();
        const QString title = own.isEmpty() ? ReportWords::tr("Plot") : own;
        m_page += QLatin1String("<figure>\n<img");
        appendAttribute(m_page, QLatin1String("alt"), ReportWords::tr("%1. %2").arg(title, plot.words));
        appendAttribute(m_page, QLatin1String("width"), QString::number(size.width()));
        appendAttribute(m_page, QLatin1String("height"), QString::number(size.height()));
        appendAttribute(m_page, QLatin1String("src"), pictureUri(plot.png));
        m_page += QLatin1String("/>\n<figcaption dir=\"auto\">");
        appendWords(m_page, title);
        m_page += QLatin1String("</figcaption>\n</figure>\n");
    }

    const ModernPageSource& m_source;
    NodeReader m_report;
    QString m_title;
    QString m_page;
    int m_tables = 0;
};

} // namespace

QString modernPage(const ModernPageSource& source)
{
    return ModernPage(source).page();
}

} // namespace uiutils
