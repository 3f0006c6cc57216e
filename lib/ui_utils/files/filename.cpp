#include "files/filename_p.h"

#include "files/fileutils.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QVector>

namespace uiutils {

namespace {

constexpr int mostBytes = 255;

/// Names that some systems have for devices, whatever follows the first point.
bool isDevice(const QString& name)
{
    static const QRegularExpression devices(
            QStringLiteral("^(con|prn|aux|nul|(com|lpt)[1-9])$"), QRegularExpression::CaseInsensitiveOption);
    return devices.match(name.section(QLatin1Char('.'), 0, 0).trimmed()).hasMatch();
}

/// How many of the first characters fit into a name.
int fittingCharacters(const QVector<uint>& characters)
{
    int most = qMin(characters.size(), mostBytes);
    while (QFile::encodeName(QString::fromUcs4(characters.constData(), most)).size() > mostBytes)
        --most;
    return most;
}

QString lengthProblem(const QString& name)
{
    if (QFile::encodeName(name).size() <= mostBytes)
        return QString();
    const QVector<uint> characters = name.toUcs4();
    return nameTooLong(fittingCharacters(characters), characters.size());
}

} // namespace

QString forbiddenIn(const QString& name, const std::function<bool(const QString& character)>& isForbidden)
{
    QStringList found;
    const QVector<uint> characters = name.toUcs4();
    for (const uint character : characters) {
        const QString text = QString::fromUcs4(&character, 1);
        const QChar::Category category = QChar::category(character);
        if (category != QChar::Other_Control && !isForbidden(text))
            continue;
        // Nobody sees a mark that joins letters or turns their direction.
        const bool isShown = category != QChar::Other_Control && category != QChar::Other_Format;
        const QString shown = isShown ? text : FileUtils::tr("control characters");
        if (!found.contains(shown))
            found += shown;
    }
    return found.join(QLatin1Char(' '));
}

QString nameTooLong(int most, int count)
{
    return FileUtils::tr("The name may have %1 characters, it has %2").arg(most).arg(count);
}

QString nameMustNotContain(const QString& characters)
{
    return FileUtils::tr("The name must not contain %1").arg(characters);
}

QString notAFileName(const QString& name)
{
    return FileUtils::tr("\"%1\" is not a file name").arg(name);
}

QString fileNameProblem(const QString& name)
{
    if (name.isEmpty())
        return FileUtils::tr("The name is empty");
    if (name == QLatin1String(".") || name == QLatin1String(".."))
        return notAFileName(name);
    // The last ones turn the direction of what follows: ".fdp.exe" could look like a report.
    const QString others = QStringLiteral("/\\:*?\"<>|\u202a\u202b\u202c\u202d\u202e\u2066\u2067\u2068\u2069");
    const QString forbidden = forbiddenIn(name, [&](const QString& character) { return others.contains(character); });
    if (!forbidden.isEmpty())
        return nameMustNotContain(forbidden);
    if (name.at(0).isSpace())
        return FileUtils::tr("The name must not begin with a space");
    if (name.back().isSpace())
        return FileUtils::tr("The name must not end with a space");
    if (name.back() == QLatin1Char('.'))
        return FileUtils::tr("The name must not end with a point");
    return isDevice(name) ? FileUtils::tr("Computers do not allow the name \"%1\"").arg(name) : lengthProblem(name);
}

} // namespace uiutils
