#include "report/reportnaming_p.h"

#include "files/filename_p.h"
#include "report/reportformats_p.h"
#include "report/reporttexts_p.h"

#include <QFile>
#include <QStringList>
#include <QVector>

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

QString safePathPart(const QString& name)
{
    const QChar neutral = QLatin1Char('_');
    if (name == QLatin1String(".") || name == QLatin1String(".."))
        return QString(neutral);
    // Letters with marks get one spelling. Otherwise one name could be two files.
    QString safe = name.normalized(QString::NormalizationForm_C);
    for (QChar& character : safe) {
        if (character == QLatin1Char('/') || character.category() == QChar::Other_Control)
            character = neutral;
    }
    return safe;
}

QString nameProblem(const QString& name, const QString& suffix, bool compressed)
{
    if (name == QLatin1String(".") || name == QLatin1String(".."))
        return notAFileName(name);
    if (name.contains(QLatin1Char('/')))
        return nameMustNotContain(QStringLiteral("/"));
    if (name.contains(QChar(QChar::Null)))
        return nameMustNotContain(ReportTexts::tr("a NUL character"));
    constexpr int mostBytes = 255;
    const auto fits = [&](const QString& part) {
        const QString plain = withSuffix(safePathPart(part), suffix);
        return QFile::encodeName(compressed ? plain + gzipSuffix : plain).size() <= mostBytes;
    };
    if (fits(name))
        return QString();
    const QVector<uint> characters = name.toUcs4();
    // Composing makes at least two bytes of three characters, so no name with more characters can fit.
    int most = qMin(characters.size(), 2 * mostBytes);
    while (most > 0 && !fits(QString::fromUcs4(characters.constData(), most)))
        --most;
    return nameTooLong(most, characters.size());
}

QString safeFolder(const QString& folder)
{
    QStringList parts = folder.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (QString& part : parts)
        part = safePathPart(part);
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
    return withSlash(directory) + withSuffix(safePathPart(name), suffix);
}

QString reportNamed(const QString& name, const QVariantList& reports)
{
    const QString wanted = safePathPart(name);
    const auto isWanted = [&](const QString& found) {
        const QString composed = found.normalized(QString::NormalizationForm_C);
        return composed == wanted || composed == wanted + gzipSuffix;
    };
    for (const QVariant& entry : reports) {
        const QVariantMap report = entry.toMap();
        const QString path = report.value(QStringLiteral("path")).toString();
        const QString file = path.section(QLatin1Char('/'), -1);
        if (report.value(QStringLiteral("name")).toString().normalized(QString::NormalizationForm_C) == wanted
                || isWanted(file))
            return path;
    }
    return QString();
}

} // namespace uiutils
