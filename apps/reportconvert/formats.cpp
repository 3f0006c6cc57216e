#include "formats.h"

#include "document/reporttemplate.h"
#include "templ2xmlwriter/templatetoxmlwriter.h"
#include "writers/templatetohtmlwriter.h"
#include "writers/textreport.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <iterator>

namespace uiutils::convert {

namespace {

/// The logo itself, so that the page needs no other file.
QString logoUri()
{
    QFile file(QStringLiteral(":/uiutils/images/Norda_Color-medium.png"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QStringLiteral("data:image/png;base64,") + QString::fromLatin1(file.readAll().toBase64());
}

QByteArray htmlOf(const ReportTemplate& report, const PageSettings& settings)
{
    TemplateToHtmlWriter writer(report, nullptr);
    writer.setAttribute(QStringLiteral("logo"), settings.hasLogo ? logoUri() : QString());
    if (!settings.title.isNull())
        writer.setAttribute(QStringLiteral("title"), settings.title);
    // Without services these tables have no rows and leave no trace.
    writer.setAttribute(QStringLiteral("includeJobInfo"), true);
    writer.setAttribute(QStringLiteral("includeTechnicianInfoTop"), true);
    writer.setAttribute(QStringLiteral("includeCustomerInfoTop"), true);
    return writer.getHtml().toUtf8();
}

QByteArray xmlOf(const ReportTemplate& report, const PageSettings&)
{
    return TemplateToXmlWriter(report, false, true, true).getXml().toUtf8();
}

QByteArray jsonOf(const ReportTemplate& report, const PageSettings&)
{
    return reportJson(report).toUtf8();
}

QByteArray textOf(const ReportTemplate& report, const PageSettings& settings)
{
    TextLayout layout;
    layout.title = settings.title;
    layout.timestamp = QDateTime::currentDateTime();
    // As in the page.
    layout.includeJobInfo = true;
    layout.includeTechnicianInfoTop = true;
    layout.includeCustomerInfoTop = true;
    return reportText(report, layout).toUtf8();
}

const Format formatTable[] = {
        {QLatin1String("html"), QLatin1String("html"),
                QT_TRANSLATE_NOOP("Formats", "one page that needs no other file"), true, true, htmlOf},
        {QLatin1String("xml"), QLatin1String("xml"),
                QT_TRANSLATE_NOOP("Formats", "for machines, elements named by the tags"), false, false, xmlOf},
        {QLatin1String("json"), QLatin1String("json"),
                QT_TRANSLATE_NOOP("Formats", "the document itself, sorted and indented"), false, false, jsonOf},
        {QLatin1String("text"), QLatin1String("txt"),
                QT_TRANSLATE_NOOP("Formats", "80 columns, for a mail or a printer"), true, false, textOf},
};

template <typename Predicate> const Format* findFormat(Predicate isWanted)
{
    const auto it = std::find_if(std::begin(formatTable), std::end(formatTable), isWanted);
    return it == std::end(formatTable) ? nullptr : it;
}

} // namespace

const QVector<const Format*>& allFormats()
{
    static const QVector<const Format*> formats = [] {
        QVector<const Format*> all;
        for (const Format& format : formatTable)
            all += &format;
        return all;
    }();
    return formats;
}

const Format* formatByName(const QString& name)
{
    return findFormat([&](const Format& format) { return format.name == name; });
}

const Format* formatBySuffix(const QString& suffix)
{
    return findFormat([&](const Format& format) { return format.suffix == suffix; });
}

QString formatNames()
{
    QStringList names;
    for (const Format& format : formatTable)
        names += format.name;
    return names.join(QStringLiteral(", "));
}

} // namespace uiutils::convert
