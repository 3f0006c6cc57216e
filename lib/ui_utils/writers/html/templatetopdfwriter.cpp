#include "writers/html/templatetopdfwriter.h"

#include "document/reporttemplate.h"
#include "instrument/people_p.h"
#include "instrument/unit_p.h"

TemplateToPdfWriter::TemplateToPdfWriter(const ReportTemplate& document, QList<ReportItem*>* items)
    : m_html(document, items)
    , m_items(items)
    , m_subject(document.getAttr(QStringLiteral("subject")).toString())
    , m_isTagged(document.getAttr(QStringLiteral("pdf_tagged")))
    , m_isArchive(document.getAttr(QStringLiteral("pdf_archive")))
    , m_tableOrientation(document.getAttr(QStringLiteral("pdf_table_orientation")))
{
    setAttribute(QStringLiteral("isForPDF"), true);
}

TemplateToPdfWriter::~TemplateToPdfWriter() = default;

QByteArray TemplateToPdfWriter::toPdf(QString* error)
{
    collectItems();
    return m_pages.toPdf(error);
}

bool TemplateToPdfWriter::write(const QString& path, QString* error)
{
    collectItems();
    return m_pages.print(path, error);
}

void TemplateToPdfWriter::collectItems()
{
    // The items of the last pass may be the ones that are being printed.
    if (ReportPDF::isPrinting())
        return;
    m_html.collectItems();
    setUpPages();
}

void TemplateToPdfWriter::setUpPages()
{
    const auto text = [this](const char* name) { return m_html.attribute(QLatin1String(name)).toString(); };
    const auto textOr = [&](const char* name, const QString& fallback) {
        const QString own = text(name);
        return own.isEmpty() ? fallback : own;
    };
    const auto choice = [this](const char* name, const QVariant& ofDocument) {
        const QVariant own = m_html.attribute(QLatin1String(name));
        return own.isValid() ? own : ofDocument;
    };
    m_pages.setItems(*m_items);
    m_pages.setOrientation(
            text("orientation") == QLatin1String("portrait") ? ReportPDF::Portrait : ReportPDF::Landscape);
    const QVariant tagged = choice("pdf_tagged", m_isTagged);
    m_pages.setStructure(!tagged.isValid() ? ReportPDF::AutomaticStructure
                    : tagged.toBool()      ? ReportPDF::WithStructure
                                           : ReportPDF::WithoutStructure);
    const bool turnsTables = choice("pdf_table_orientation", m_tableOrientation).toString() == QLatin1String("auto");
    m_pages.setTableOrientation(turnsTables ? ReportPDF::AutomaticOrientation : ReportPDF::SameOrientation);
    m_pages.setArchive(choice("pdf_archive", m_isArchive).toBool());
    m_pages.setTitle(m_html.title());
    m_pages.setAuthor(textOr("author", uiutils::instrument::technicianName()));
    m_pages.setSubject(textOr("subject", m_subject));
    m_pages.setProducer(textOr("producer", QStringLiteral("uiutils")));
    m_pages.setLogo(text("logo"));
    m_pages.setUnitId(textOr("unitId", uiutils::instrument::unitId()));
    m_pages.setTimestamp(m_html.timestamp());
    m_pages.setFields(m_html.titleFields());
}
