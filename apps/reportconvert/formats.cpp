#include "formats.h"

#include "document/reporttemplate.h"
#include "templ2xmlwriter/templatetoxmlwriter.h"
#include "texts.h"
#include "writers/csv/csvreport.h"
#include "writers/html/templatetohtmlwriter.h"
#include "writers/html/templatetopdfwriter.h"
#include "writers/text/textreport.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeDatabase>

#include <algorithm>
#include <iterator>

namespace uiutils::convert {

namespace {

/// The settings of the page writers.
constexpr qint64 maximumLogoSize = qint64(1024) * 1024;
constexpr qint64 maximumLogoPixels = 50'000'000;

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString logoFile(const PageSettings& page)
{
    return page.logoFile.isEmpty() ? QStringLiteral(":/uiutils/images/Norda_Color-medium.png") : page.logoFile;
}

/// The logo itself, so that the page needs no other file.
QString logoUri(const PageSettings& page)
{
    const QByteArray bytes = contentsOf(logoFile(page));
    const QString type = QMimeDatabase().mimeTypeForData(bytes).name();
    return QStringLiteral("data:%1;base64,%2").arg(type, QString::fromLatin1(bytes.toBase64()));
}

/// What pages on the screen and on paper share.
template<typename Writer> void setAttributes(Writer& writer, const ReportTemplate& report, const PageSettings& page)
{
    const QString own = report.getAttr(QStringLiteral("orientation")).toString();
    if (!page.orientation.isEmpty() || !own.isEmpty())
        writer.setAttribute(QStringLiteral("orientation"), page.orientation.isEmpty() ? own : page.orientation);
    if (!page.title.isNull())
        writer.setAttribute(QStringLiteral("title"), page.title);
    // Without services these tables would have no rows.
    writer.setAttribute(QStringLiteral("includeJobInfo"), true);
    writer.setAttribute(QStringLiteral("includeTechnicianInfoTop"), true);
    writer.setAttribute(QStringLiteral("includeCustomerInfoTop"), true);
}

QByteArray htmlOf(const ReportTemplate& report, Generation& generation)
{
    TemplateToHtmlWriter writer(report, nullptr);
    setAttributes(writer, report, generation.page);
    writer.setAttribute(QStringLiteral("logo"), generation.page.hasLogo ? logoUri(generation.page) : QString());
    if (generation.page.isModern)
        writer.setAttribute(QStringLiteral("page"), QStringLiteral("modern"));
    writer.setBodyAttributes(writer.defaultBodyAttributes());
    return writer.getHtml().toUtf8();
}

/// Copies the logo to where the writer can read it, whatever the user's path would mean on an instrument.
QString scratchLogo(const Generation& generation)
{
    const QString path = generation.scratchFolder + QStringLiteral("/logo");
    QFile file(path);
    const QByteArray bytes = contentsOf(logoFile(generation.page));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path : QString();
}

QByteArray pdfOf(const ReportTemplate& report, Generation& generation)
{
    QList<ReportItem*> items;
    TemplateToPdfWriter writer(report, &items);
    setUpPages(writer, report, generation);
    QObject::connect(&writer.pages(), &ReportPDF::progressChanged, &writer.pages(), [&](int done, int count) {
        if (!generation.mayContinue(done, count))
            writer.pages().cancel();
    });
    const QByteArray pages = writer.toPdf(&generation.error);
    qDeleteAll(items);
    // Null without a reason stands for a signal.
    return pages.isEmpty() ? QByteArray() : pages;
}

QByteArray xmlOf(const ReportTemplate& report, Generation&)
{
    return TemplateToXmlWriter(report, false, true, true).getXml().toUtf8();
}

QByteArray jsonOf(const ReportTemplate& report, Generation&)
{
    return reportJson(report).toUtf8();
}

/// Besides the time, the same as in the page.
TextLayout textLayout(const PageSettings& page)
{
    TextLayout layout;
    layout.title = page.title;
    layout.timestamp = QDateTime::currentDateTime();
    layout.includeJobInfo = true;
    layout.includeTechnicianInfoTop = true;
    layout.includeCustomerInfoTop = true;
    return layout;
}

QByteArray textOf(const ReportTemplate& report, Generation& generation)
{
    return reportText(report, textLayout(generation.page)).toUtf8();
}

QByteArray csvOf(const ReportTemplate& report, Generation& generation)
{
    CsvLayout layout;
    layout.hasDecimalComma = generation.tables.hasDecimalComma;
    layout.hasByteOrderMark = generation.tables.hasByteOrderMark;
    layout.content = textLayout(generation.page);
    const int count = csvTableCount(report);
    const bool isPackedIfNeeded = generation.packing == Packing::AsNeeded && count > 1;
    generation.isPacked = generation.packing == Packing::Packed || isPackedIfNeeded;
    if (generation.isPacked)
        return reportCsvZip(report, layout);
    if (generation.packing == Packing::Files) {
        visitCsvFiles(report, layout, generation.writePart);
        return QByteArray();
    }
    if (count <= 1)
        return reportCsv(report, layout);
    generation.error
            = Texts::tr("The document has %1 tables, and a CSV file takes one. Pack them with --csv=zip, or name "
                        "a folder with --output.")
                      .arg(count);
    return QByteArray();
}

const Format formatTable[] = {
        {QLatin1String("html"), QLatin1String("html"),
                QT_TRANSLATE_NOOP("ReportConvert", "one page that needs no other file"),
                Format::HasTitle | Format::IsPage | Format::NeedsIconFiles | Format::HasStyles, htmlOf},
        {QLatin1String("pdf"), QLatin1String("pdf"),
                QT_TRANSLATE_NOOP("ReportConvert", "Letter pages to print or to hand on"),
                Format::HasTitle | Format::IsPage | Format::IsPaper, pdfOf},
        {QLatin1String("xml"), QLatin1String("xml"),
                QT_TRANSLATE_NOOP("ReportConvert", "for machines, elements named by the tags"), 0, xmlOf},
        {QLatin1String("json"), QLatin1String("json"),
                QT_TRANSLATE_NOOP("ReportConvert", "the document itself, sorted and indented"), 0, jsonOf},
        {QLatin1String("text"), QLatin1String("txt"),
                QT_TRANSLATE_NOOP("ReportConvert", "80 columns, for a mail or a printer"), Format::HasTitle, textOf},
        {QLatin1String("csv"), QLatin1String("csv"),
                QT_TRANSLATE_NOOP("ReportConvert", "for spreadsheets, a file for each table"),
                Format::HasTitle | Format::HasTables, csvOf, QLatin1String("zip")},
};

template<typename Predicate> const Format* findFormat(Predicate isWanted)
{
    const auto it = std::find_if(std::begin(formatTable), std::end(formatTable), isWanted);
    return it == std::end(formatTable) ? nullptr : it;
}

} // namespace

void setUpPages(TemplateToPdfWriter& writer, const ReportTemplate& report, const Generation& generation)
{
    const PageSettings& page = generation.page;
    setAttributes(writer, report, page);
    writer.setAttribute(QStringLiteral("logo"), page.hasLogo ? scratchLogo(generation) : QString());
    if (page.isArchive)
        writer.setAttribute(QStringLiteral("pdf_archive"), true);
    writer.setAttribute(QStringLiteral("unitId"), page.unitId);
}

QString logoProblem(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isFile() || !file.isReadable())
        return Texts::tr("The logo %1 cannot be read. Name a picture file with --logo.").arg(path);
    if (file.size() > maximumLogoSize)
        return Texts::tr("The logo %1 is larger than 1 MiB. Make it smaller.").arg(path);
    const QSize size = QImageReader(path).size();
    if (qint64(size.width()) * size.height() > maximumLogoPixels)
        return Texts::tr("The logo %1 has more than 50 million pixels. Make it smaller.").arg(path);
    if (!QImageReader(path).canRead())
        return Texts::tr("The logo %1 is not a picture in a known format. Name a PNG or JPEG file with --logo.")
                .arg(path);
    return {};
}

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
    if (suffix.isEmpty())
        return nullptr;
    return findFormat([&](const Format& format) { return format.suffix == suffix || format.packedSuffix == suffix; });
}

QString formatNames()
{
    QStringList names;
    for (const Format& format : formatTable)
        names += format.name;
    return names.join(QStringLiteral(", "));
}

} // namespace uiutils::convert
