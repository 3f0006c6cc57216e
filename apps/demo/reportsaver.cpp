#include "reportsaver.h"

#include "core/durablefile.h"
#include "core/paths.h"
#include "instrumentroot.h"
#include "writers/templatetohtmlwriter.h"

#include <QFile>

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

QByteArray pageOf(const ReportTemplate& report, const QVariantMap& attributes)
{
    TemplateToHtmlWriter writer(report, nullptr);
    writer.setAttribute(QStringLiteral("logo"), dataUriOf(paths::logo));
    writer.setAttribute(QStringLiteral("includeJobInfo"), true);
    writer.setAttribute(QStringLiteral("includeTechnicianInfoTop"), true);
    writer.setAttribute(QStringLiteral("includeCustomerInfoTop"), true);
    for (auto it = attributes.begin(); it != attributes.end(); ++it)
        writer.setAttribute(it.key(), it.value());
    return writer.getHtml().toUtf8();
}

/// Puts a file back to what it was. That this fails as well leaves nothing more to try.
void restore(const QString& path, const std::optional<QByteArray>& contents)
{
    const bool isRestored = contents ? writeFileDurably(path, *contents) : QFile::remove(path);
    if (!isRestored)
        qWarning("%s could not be put back to what it was.", qUtf8Printable(path));
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

    const QString page = folder() + name + QStringLiteral(".html");
    const QString document = folder() + name + QStringLiteral(".json");
    const std::optional<QByteArray> pageBefore = contentsOf(page);
    const QString advice
            = tr("No report was saved. Check the free space and that you may write there, or choose "
                 "another name; then save again.");
    if (!writeFileDurably(page, pageOf(*report, writerAttributes), &error))
        return refuse(error + QLatin1Char(' ') + advice);
    if (!writeFileDurably(document, report->toJson().toUtf8(), &error)) {
        restore(page, pageBefore);
        return refuse(error + QLatin1Char(' ') + advice);
    }
    addFiles({page, document});
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
