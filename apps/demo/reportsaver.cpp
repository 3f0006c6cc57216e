#include "reportsaver.h"

#include "core/durablefile.h"
#include "core/paths.h"
#include "instrumentroot.h"
#include "templ2xmlwriter/templatetoxmlwriter.h"
#include "writers/templatetohtmlwriter.h"
#include "writers/templatetopdfwriter.h"

#include <QFile>
#include <QVector>

#include <functional>
#include <optional>

namespace uiutils::demo {

namespace {

/// A file's contents, or nothing when there is no such file.
std::optional<QByteArray> contentsOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

/// The picture within the page itself, so that the page stands alone; empty when there is no picture.
QString dataUriOf(const QString& instrumentPath)
{
    const QByteArray bytes = contentsOf(onDisk(instrumentPath)).value_or(QByteArray());
    if (bytes.isEmpty())
        return {};
    return QStringLiteral("data:image/png;base64,") + QString::fromLatin1(bytes.toBase64());
}

/// What the page and the printed pages have in common.
template<typename Writer> void setAttributes(Writer& writer, const QVariantMap& attributes)
{
    writer.setAttribute(QStringLiteral("plot_width"), 640);
    writer.setAttribute(QStringLiteral("plot_height"), 320);
    writer.setAttribute(QStringLiteral("includeJobInfo"), true);
    writer.setAttribute(QStringLiteral("includeTechnicianInfoTop"), true);
    writer.setAttribute(QStringLiteral("includeCustomerInfoTop"), true);
    for (auto it = attributes.begin(); it != attributes.end(); ++it)
        writer.setAttribute(it.key(), it.value());
}

QByteArray pageOf(const ReportTemplate& report, const QVariantMap& attributes)
{
    TemplateToHtmlWriter writer(report, nullptr);
    writer.setAttribute(QStringLiteral("logo"), dataUriOf(paths::logo));
    setAttributes(writer, attributes);
    return writer.getHtml().toUtf8();
}

QByteArray xmlOf(const ReportTemplate& report)
{
    return TemplateToXmlWriter(report, false, true, true).getXml().toUtf8();
}

/// Puts a file back to what it was. That this fails as well leaves nothing more to try.
void restore(const QString& path, const std::optional<QByteArray>& contents)
{
    const bool isRestored = contents ? writeFileDurably(path, *contents) : QFile::remove(path);
    if (!isRestored)
        qWarning("%s could not be put back to what it was.", qUtf8Printable(path));
}

/// A file that is to be written, and what writes it.
struct NewFile
{
    QString path;
    std::function<bool(const QString& path, QString* error)> write;
};

NewFile fileOf(const QString& path, const QByteArray& contents)
{
    return {path, [contents](const QString& target, QString* error) { return writeFileDurably(target, contents, error); }};
}

bool printPages(const ReportTemplate& report, const QVariantMap& attributes, const QString& path, QString* error)
{
    QList<ReportItem*> items;
    TemplateToPdfWriter writer(report, &items);
    setAttributes(writer, attributes);
    const bool isPrinted = writer.write(path, error);
    qDeleteAll(items);
    return isPrinted;
}

/// Writes all of the files, or none: when one fails, those before it get back what they held.
bool writeAll(const QVector<NewFile>& files, QString* error)
{
    QVector<std::optional<QByteArray>> before;
    for (int i = 0; i < files.size(); ++i) {
        before += contentsOf(files.at(i).path);
        if (files.at(i).write(files.at(i).path, error))
            continue;
        while (--i >= 0)
            restore(files.at(i).path, before.at(i));
        return false;
    }
    return true;
}

} // namespace

ReportSaver::ReportSaver(QObject* parent)
    : QObject(parent)
{
}

QString ReportSaver::folder() const
{
    return onDisk(paths::reports);
}

bool ReportSaver::save(ReportTemplate* report, const QString& name, const QVariantMap& writerAttributes)
{
    if (!report || report->object().isEmpty())
        return refuse(tr("There is no report to save. Run a measurement first."));
    if (name.trimmed().isEmpty())
        return refuse(tr("The report has no name. Enter a file name."));
    if (name.contains(QLatin1Char('/')) || name.contains(QLatin1String("..")))
        return refuse(tr("\"%1\" cannot be a file name. Use a name without \"/\" and \"..\".").arg(name));

    QString error;
    if (!makeFolder(folder(), &error))
        return refuse(error);

    const QString stem = folder() + name;
    const QString pages = stem + QStringLiteral(".pdf");
    const QString page = stem + QStringLiteral(".html");
    const QString xml = stem + QStringLiteral(".xml");
    const QString document = stem + QStringLiteral(".json");
    const auto print = [&](const QString& path, QString* why) { return printPages(*report, writerAttributes, path, why); };
    if (!writeAll({{pages, print}, fileOf(page, pageOf(*report, writerAttributes)), fileOf(xml, xmlOf(*report)),
                          fileOf(document, report->toJson().toUtf8())},
                &error)) {
        return refuse(error + QLatin1Char(' ')
                + tr("No report was saved. Check the free space and that you may write there, or choose "
                     "another name; then save again."));
    }
    addFiles({pages, page, xml, document});
    setErrorText({});
    return true;
}

bool ReportSaver::refuse(const QString& reason)
{
    setErrorText(reason);
    return false;
}

void ReportSaver::setErrorText(const QString& text)
{
    if (text == m_errorText)
        return;
    m_errorText = text;
    Q_EMIT errorTextChanged();
}

void ReportSaver::addFiles(const QStringList& paths)
{
    m_files += paths;
    m_files.removeDuplicates();
    Q_EMIT filesChanged();
}

} // namespace uiutils::demo
