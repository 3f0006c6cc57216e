#include "writers/html/templatetohtmlwriter.h"

#include "document/documentreader_p.h"
#include "document/reporttemplate.h"
#include "instrument/unit_p.h"
#include "writers/html/documentrows_p.h"
#include "writers/html/htmlstreamwriter.h"
#include "writers/html/pageplots_p.h"
#include "writers/html/pagestyle_p.h"
#include "writers/html/style.h"
#include "writers/modern/modernpage_p.h"
#include "writers/modern/pagelanguage_p.h"
#include "writers/pages/reportpdf.h"
#include "writers/pages/reporttable.h"
#include "writers/plots/plotpainter_p.h"
#include "writers/text/plotwords_p.h"
#include "writers/text/reportcontent_p.h"

#include <kiv/system.h>

#include <QDate>

namespace instrument = uiutils::instrument;
namespace keys = uiutils::keys;
using uiutils::Alignment;
using uiutils::DocumentRows;
using uiutils::NodeReader;
using uiutils::ReportWords;
using uiutils::Status;
using uiutils::TableReader;

namespace {

/// For screens whose pixels are smaller than the page's.
constexpr int pixelsOfModernPlots = 2;

/// A two-column table of labels and values; none without rows.
void writeInformation(HtmlStreamWriter& html, const uiutils::InformationTable& table, int nestingLevel)
{
    if (table.rows.isEmpty())
        return;
    html.startTable(table.title, {table.valueLabel}, true, nestingLevel);
    for (const instrument::LabelledText& row : table.rows) {
        html.startRow();
        html.writeHeaderCell(row.label, Alignment::Right);
        html.writeCell(row.text, Status::None, ReportTable::automatic);
        html.endRow();
    }
    html.endTable();
}

} // namespace

struct TemplateToHtmlWriter::OverallStatus
{
    const char* flag;
    uiutils::ReportStatus status;
    /// How the status reads in the page's comment.
    QLatin1String word;
    int icon;
};

TemplateToHtmlWriter::TemplateToHtmlWriter(const ReportTemplate& document, QList<ReportItem*>* items)
    : m_document(document.object())
    , m_items(items)
{
    const int indentStep = uiutils::textOf(m_document.value(keys::indentPixels)).toInt();
    m_html = std::make_unique<HtmlStreamWriter>(indentStep, items);
}

TemplateToHtmlWriter::~TemplateToHtmlWriter() = default;

void TemplateToHtmlWriter::setAttribute(const QString& name, const QVariant& value)
{
    m_html->setAttribute(name, value);
}

QVariant TemplateToHtmlWriter::attribute(const QString& name) const
{
    return m_html->attribute(name);
}

QString TemplateToHtmlWriter::getHtml()
{
    if (!m_isWritten && isModern())
        writeModernPage();
    else if (!m_isWritten)
        writePage();
    return m_html->output();
}

void TemplateToHtmlWriter::collectItems()
{
    m_html->discardText();
    writePage();
}

bool TemplateToHtmlWriter::isModern() const
{
    return attribute(QStringLiteral("page")).toString() == QLatin1String("modern");
}

void TemplateToHtmlWriter::writeModernPage()
{
    if (m_items)
        collectItems();
    m_isWritten = true;
    m_plotPixels = pixelsOfModernPlots;
    const auto plotOnPage = [this](const QString& service, quint64 number) {
        // The page says the title.
        const uiutils::PagePlots::Plot plot = plots().plot(service, QString());
        plots().leaveFile(plot, number);
        return uiutils::PlotOnPage {plots().picture(plot), uiutils::plotInWords(plot->data())};
    };
    const uiutils::ModernPageSource source {m_document, title(), titleFields(), overallStatus().word,
            [this](const QString& name) { return attribute(name); }, plotOnPage, m_plotPixels};
    m_html->replaceText(uiutils::modernPage(source));
    m_plots.reset();
    m_plotPixels = 1;
}

QVariantMap TemplateToHtmlWriter::defaultBodyAttributes() const
{
    const uiutils::PageLanguage language = uiutils::pageLanguage(
            [this](const QString& name) { return attribute(name); }, NodeReader(m_document), title());
    return {{QStringLiteral("lang"), language.tag}, {QStringLiteral("dir"), language.direction()},
            {QStringLiteral("style"), QStringLiteral("print-color-adjust:exact; -webkit-print-color-adjust:exact")}};
}

void TemplateToHtmlWriter::writePage()
{
    m_isWritten = true;
    // Items that are being printed stay.
    if (m_items && !ReportPDF::isPrinting())
        uiutils::deleteItemsOfPasses(*m_items);
    const QList<Style*> rules = uiutils::pageStyles([this](const QString& name) { return attribute(name).toString(); });
    m_html->writeHead(title(), rules);
    qDeleteAll(rules);

    writeBodyStart();
    tablesToHtml(m_document);
    sectionsToHtml(m_document);
    writeSystemInformation();
    if (isSet("includeCustomerInfoEnd"))
        writeCustomerTable();
    if (isSet("includeTechnicianInfoEnd"))
        writeTechnicianTable();
    m_html->writeEndElement();
    m_html->writeEndDocument();
    m_plots.reset();
}

QString TemplateToHtmlWriter::title() const
{
    const QString name = keys::title;
    return m_html->hasAttribute(name) ? attribute(name).toString() : NodeReader(m_document).title();
}

QString TemplateToHtmlWriter::timestamp()
{
    return uiutils::dateText(QDate::currentDate()) + QLatin1Char(' ') + System::getInstance().getCurrentTime();
}

QVector<ReportField> TemplateToHtmlWriter::titleFields() const
{
    QVector<ReportField> fields {{ReportWords::tr("Timestamp"), timestamp()}};
    const OverallStatus status = overallStatus();
    const QString statusText = uiutils::overallText(status.status);
    if (!statusText.isEmpty())
        fields.append({ReportWords::tr("Overall Status"), statusText, status.icon});
    if (isSet("includeJobInfo")) {
        const instrument::LabelledTexts job = uiutils::jobTable().rows;
        for (const instrument::LabelledText& field : job)
            fields.append({field.label, field.text});
    }
    return fields;
}

bool TemplateToHtmlWriter::isSet(const char* name) const
{
    return attribute(QLatin1String(name)).toBool();
}

void TemplateToHtmlWriter::writeBodyStart()
{
    m_html->startBody(m_bodyAttributes);
    // The page renderer draws a title block of its own.
    const bool isForPage = isSet("isForPDF");
    if (!isForPage) {
        const QString logo = attribute(QStringLiteral("logo")).toString();
        if (!logo.isEmpty())
            m_html->writeImage(logo);
        writeTestInformation();
        if (isSet("includeJobInfo"))
            writeJobTable();
    }
    if (isSet("includeCustomerInfoTop"))
        writeCustomerTable();
    if (isSet("includeTechnicianInfoTop"))
        writeTechnicianTable();
}

TemplateToHtmlWriter::OverallStatus TemplateToHtmlWriter::overallStatus() const
{
    using uiutils::ReportStatus;
    static const OverallStatus statuses[] = {
            {"pass", ReportStatus::Pass, QLatin1String("pass"), Status::Pass},
            {"marginal", ReportStatus::Marginal, QLatin1String("marginal"), Status::Marginal},
            {"fail", ReportStatus::Fail, QLatin1String("fail"), Status::Fail},
            {"notCompleted", ReportStatus::NotCompleted, QLatin1String("not completed"), Status::None},
    };
    for (const OverallStatus& status : statuses) {
        if (isSet(status.flag))
            return status;
    }
    return {nullptr, ReportStatus::Unknown, QLatin1String("unknown"), Status::None};
}

void TemplateToHtmlWriter::writeTestInformation()
{
    const auto writeRow = [this](const QString& label, const QString& text, int status) {
        m_html->startRow();
        m_html->writeHeaderCell(label, Alignment::Right);
        m_html->writeCell(text, status);
        m_html->endRow();
    };
    const OverallStatus status = overallStatus();

    m_html->startTable(ReportWords::tr("Test Information"), {ReportWords::tr("Value")}, true, -1);
    writeRow(ReportWords::tr("Title"), title(), Status::None);
    writeRow(ReportWords::tr("Timestamp"), timestamp(), Status::None);
    const QString statusText = uiutils::overallText(status.status);
    if (!statusText.isEmpty())
        writeRow(ReportWords::tr("Overall Status"), statusText, status.icon);
    m_html->writeComment(QStringLiteral("report_status=%1").arg(status.word));
    m_html->endTable();
}

void TemplateToHtmlWriter::writeJobTable()
{
    writeInformation(*m_html, uiutils::jobTable(), 0);
}

void TemplateToHtmlWriter::writeCustomerTable()
{
    writeInformation(*m_html, uiutils::customerTable(), 0);
}

void TemplateToHtmlWriter::writeTechnicianTable()
{
    writeInformation(*m_html, uiutils::technicianTable(), 0);
}

void TemplateToHtmlWriter::writeSystemInformation()
{
    const bool showsSoftware = isSet("showSoftwareRevs");
    const bool showsHardware = isSet("showHardwareRevs");
    if (!showsSoftware && !showsHardware)
        return;
    // On paper, a heading without content looks as if something were missing.
    const bool hasTables = (showsSoftware && !uiutils::softwareTable().rows.isEmpty())
            || (showsHardware && !instrument::hardwareAssemblies().isEmpty());
    if (isSet("isForPDF") && !hasTables)
        return;
    m_html->writeHeading(1, ReportWords::tr("Solvant System Information"));
    if (showsSoftware)
        writeSoftwareTable();
    if (showsHardware)
        writeHardwareTable();
}

void TemplateToHtmlWriter::writeSoftwareTable()
{
    writeInformation(*m_html, uiutils::softwareTable(), 0);
}

void TemplateToHtmlWriter::writeHardwareTable()
{
    const QVector<QStringList> assemblies = instrument::hardwareAssemblies();
    if (assemblies.isEmpty())
        return;
    m_html->startTable(ReportWords::tr("Hardware"), {ReportWords::tr("Assembly"), ReportWords::tr("ID")}, false, 0);
    for (const QStringList& parts : assemblies) {
        m_html->startRow();
        for (const QString& part : parts)
            m_html->writeCell(part, Status::None, ReportTable::automatic);
        m_html->endRow();
    }
    m_html->endTable();
}

void TemplateToHtmlWriter::sectionsToHtml(QJsonObject& node)
{
    ++m_depth;
    NodeReader(node).forEachSection(NodeReader::ByKey, [this](QJsonObject section) { sectionToHtml(section); });
    --m_depth;
}

void TemplateToHtmlWriter::sectionToHtml(QJsonObject& object)
{
    const NodeReader section(object);
    if (!section.isEnabled())
        return;
    const QString title = section.title();
    if (!title.isEmpty())
        m_html->writeHeading(m_depth, title);
    const QVector<NodeReader::LogEntry> logEntries = section.logEntries();
    for (const NodeReader::LogEntry& entry : logEntries)
        m_html->writeParagraph(entry.text);
    writeConfigurationValues(section);
    tablesToHtml(object);
    sectionsToHtml(object);
}

void TemplateToHtmlWriter::writeConfigurationValues(const NodeReader& section)
{
    writeInformation(*m_html, uiutils::configurationTable(section, NodeReader(m_document)), m_depth);
}

void TemplateToHtmlWriter::tablesToHtml(QJsonObject& node)
{
    NodeReader(node).forEachTable(NodeReader::ByKey, [this](const QString& key, const QJsonObject& object) {
        const TableReader table(object);
        if (table.isPlot())
            plotToHtml(table, NodeReader::tableNumber(key).value_or(0));
        else
            tableToHtml(table);
    });
}

void TemplateToHtmlWriter::tableToHtml(const TableReader& table)
{
    QVariantMap attributes;
    table.forEachAttribute([&](const QString& name, const QString& value) { attributes.insert(name, value); });

    m_html->startTable(table.title(), table.columnLabels(), table.usesRowLabels(), m_depth, attributes);
    if (m_items && DocumentRows::canRead(table))
        m_html->readRowsFrom(std::make_unique<DocumentRows>(table));
    if (m_html->needsRows())
        rowsToHtml(table);
    m_html->endTable();
}

void TemplateToHtmlWriter::rowsToHtml(const TableReader& table)
{
    if (m_html->keepsText()) {
        const TableReader::Extent extent = table.extent();
        m_html->expectRows(extent.rows, extent.cells);
    }
    const bool hasLabels = table.usesRowLabels();
    table.forEachRowOnPage([&](int, const QJsonObject& row) {
        m_html->startRow();
        uiutils::writeRow(table, hasLabels, row, *m_html);
        m_html->endRow();
    });
}

void TemplateToHtmlWriter::plotToHtml(const TableReader& table, quint64 tableNumber)
{
    const uiutils::PagePlots::Plot plot = plots().plot(table.plotSource(), table.title());
    plots().leaveFile(plot, tableNumber);
    m_html->writeImageParagraph(m_html->keepsText() ? plots().picture(plot) : QByteArray(), plots().items(plot));
}

uiutils::PagePlots& TemplateToHtmlWriter::plots()
{
    const auto number = [this](const char* name) { return attribute(QLatin1String(name)).toInt(); };
    if (!m_plots)
        m_plots = std::make_unique<uiutils::PagePlots>(uiutils::plotSize(number("plot_width"), number("plot_height")),
                uiutils::plotBackground(attribute(QStringLiteral("plot_curve_bg")).toString()), m_plotPixels);
    return *m_plots;
}
