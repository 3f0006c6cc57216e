#include "report/pagereport.h"

#include "report/nsreport.h"
#include "writers/text/textreport.h"

namespace uiutils {

PageReport::PageReport(QObject* parent)
    : Report(parent)
{
    for (const int format : {NSReport::REPORT_FORMAT_HTML, NSReport::REPORT_FORMAT_TEXT, NSReport::REPORT_FORMAT_JSON,
                 NSReport::REPORT_FORMAT_ALL})
        setFormatApplicable(format, true);
    // The other page refers to the logo of the instrument, which is nowhere else.
    setWriterAttribute(QStringLiteral("page"), QStringLiteral("modern"));
}

ReportTemplate* PageReport::content()
{
    return &document();
}

QString PageReport::proposedFileName()
{
    const QString name = Report::proposedFileName();
    return name.startsWith(QLatin1Char('_'))
            ? getFolder().section(QLatin1Char('/'), -1, -1, QString::SectionSkipEmpty) + name
            : name;
}

QString PageReport::generateTxtReport()
{
    return reportText(document());
}

QString PageReport::generateJsonReport()
{
    return reportJson(document());
}

void PageReport::prepareDocument()
{
    Q_EMIT contentWanted();
}

} // namespace uiutils
