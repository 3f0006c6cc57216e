// The part of Report that makes contents of the document.

#include "report/report.h"

#include "base/paths.h"
#include "report/reportstate_p.h"
#include "templ2xmlwriter/templatetoxmlwriter.h"
#include "writers/html/templatetohtmlwriter.h"
#include "writers/html/templatetopdfwriter.h"

#include <QPointer>
#include <QScopeGuard>

template<typename Writer> void Report::handOnSwitches(Writer& writer) const
{
    writer.setAttribute(QStringLiteral("includeJobInfo"), m_includeJobInfo);
    writer.setAttribute(QStringLiteral("includeCustomerInfoTop"), m_includeCustomerInfo);
    writer.setAttribute(QStringLiteral("showHardwareRevs"), m_showHardwareRevs);
    writer.setAttribute(QStringLiteral("showSoftwareRevs"), m_showSoftwareRevs);
    writer.setAttribute(QStringLiteral("title"), getTitle());
    writer.setAttribute(QStringLiteral("logo"), QString(uiutils::paths::logo));
    writer.setAttribute(QStringLiteral("orientation"), getOrientation());
    for (auto it = m_writerAttributes.cbegin(); it != m_writerAttributes.cend(); ++it)
        writer.setAttribute(it.key(), it.value());
}

void Report::setHtmlWriterAttributes(TemplateToHtmlWriter& writer) const
{
    handOnSwitches(writer);
}

QString Report::generateTxtReport()
{
    return QString();
}

QString Report::generateJsonReport()
{
    return QString();
}

QString Report::generateXmlReport()
{
    return TemplateToXmlWriter(m_document, false, m_includeCustomerInfo, true).getXml();
}

QString Report::generateJobManagerReport()
{
    return TemplateToXmlWriter(m_document, true, m_includeCustomerInfo, true).getXml();
}

QString Report::generateHtmlReport()
{
    TemplateToHtmlWriter writer(m_document, &m_reportItems);
    setHtmlWriterAttributes(writer);
    return writer.getHtml();
}

bool Report::hasCustomPDF()
{
    return false;
}

QByteArray Report::generatePDFReport()
{
    return generateDefaultPDFReport();
}

QByteArray Report::generateDefaultPDFReport()
{
    // A report of many rows is large: its items go as soon as they are printed, unless others print them, too.
    const auto dropItems = qScopeGuard([isNested = ReportPDF::isPrinting()] {
        if (!isNested)
            uiutils::deleteItemsOfPasses(m_reportItems);
    });
    TemplateToPdfWriter writer(m_document, &m_reportItems);
    handOnSwitches(writer);
    writer.setAttribute(QStringLiteral("subject"), getSubject());
    const bool isAlone = !m_state->progress.isRunning();
    if (isAlone)
        m_state->progress.begin(1);
    // The controller may be gone when the next page asks.
    ReportPDF& pages = writer.pages();
    const QPointer<Report> self(this);
    connect(&pages, &ReportPDF::progressChanged, &pages, [self, &pages](int page, int pageCount) {
        if (!self || !self->goesOn(pageCount > 0 ? double(page) / pageCount : 0))
            pages.cancel();
    });
    QString error;
    QByteArray file = writer.toPdf(&error);
    if (self && isAlone)
        m_state->progress.end();
    if (!error.isEmpty())
        qDebug("The pages of the report could not be made: %s", qUtf8Printable(error));
    return file;
}
