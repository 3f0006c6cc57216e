#include "report/reportnaming_p.h"

#include "report/reportformats_p.h"

#include <QFile>
#include <QStringList>

namespace uiutils {

namespace {

QString withSlash(const QString& folder)
{
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

QString withSuffix(const QString& name, const QString& suffix)
{
    return name.endsWith(suffix) ? name : name + suffix;
}

} // namespace

QString proposedReportName(const QString& shortLabel, const QDateTime& time)
{
    QString name = shortLabel;
    name.replace(QLatin1Char(' '), QLatin1Char('_'));
    name.remove(QLatin1Char('&'));
    name.replace(QLatin1Char('\n'), QLatin1Char('_'));
    name.replace(QLatin1Char('\r'), QLatin1Char('_'));
    return name + time.toString(QStringLiteral("_ddMMyyhhmmss"));
}

QString safeFileName(const QString& name)
{
    const QChar neutral = QLatin1Char('_');
    if (name == QLatin1String(".") || name == QLatin1String(".."))
        return QString(neutral);
    QString safe = name;
    for (QChar& character : safe) {
        if (character == QLatin1Char('/') || character.category() == QChar::Other_Control)
            character = neutral;
    }
    return safe;
}

bool isFileName(const QString& name, const QString& suffix, bool compressed)
{
    if (name == QLatin1String(".") || name == QLatin1String("..") || name.contains(QLatin1Char('/'))
            || name.contains(QChar(QChar::Null)))
        return false;
    constexpr int mostBytes = 255;
    QString fileName = withSuffix(safeFileName(name), suffix);
    if (compressed)
        fileName += gzipSuffix;
    return QFile::encodeName(fileName).size() <= mostBytes;
}

QString safeFolder(const QString& folder)
{
    QStringList parts = folder.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (QString& part : parts)
        part = safeFileName(part);
    return parts.join(QLatin1Char('/'));
}

QString reportFolder(const QString& base, const QString& provider, const QString& folder)
{
    QString directory = withSlash(base);
    const QString own = safeFolder(folder);
    if (own.isEmpty())
        return directory;
    const QString providers = safeFolder(provider);
    if (!providers.isEmpty())
        directory += withSlash(providers);
    return directory + withSlash(own);
}

QString reportPath(const QString& directory, const QString& name, const QString& suffix)
{
    return withSlash(directory) + withSuffix(safeFileName(name), suffix);
}

QString reportNamed(const QString& name, const QVariantList& reports)
{
    const QString wanted = safeFileName(name);
    for (const QVariant& entry : reports) {
        const QVariantMap report = entry.toMap();
        const QString path = report.value(QStringLiteral("path")).toString();
        const QString file = path.section(QLatin1Char('/'), -1);
        if (report.value(QStringLiteral("name")).toString() == wanted || file == wanted || file == wanted + gzipSuffix)
            return path;
    }
    return QString();
}

} // namespace uiutils
