#include "inifile.h"

#include <QFile>
#include <QSaveFile>
#include <QStringList>

namespace {

std::optional<QStringList> readLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
}

/// The name in "[name]"; null for any other line.
QString sectionName(const QString& line)
{
    const bool isSection = line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'));
    return isSection ? line.mid(1, line.size() - 2) : QString();
}

QString keyOf(const QString& line)
{
    return line.startsWith(QLatin1Char(';')) ? QString() : line.section(QLatin1Char('='), 0, 0).trimmed();
}

} // namespace

std::optional<QMap<QString, IniSection>> readIni(const QString& path)
{
    const std::optional<QStringList> lines = readLines(path);
    if (!lines)
        return std::nullopt;
    QMap<QString, IniSection> sections;
    QString section;
    for (const QString& text : *lines) {
        const QString line = text.trimmed();
        const QString name = sectionName(line);
        if (!name.isNull())
            sections[section = name];
        else if (!section.isEmpty() && !keyOf(line).isEmpty())
            sections[section].insert(keyOf(line), line.section(QLatin1Char('='), 1).trimmed());
    }
    return sections;
}

bool writeIniValues(const QString& path, const QMap<QString, QString>& values, QString* problem)
{
    QStringList lines = readLines(path).value_or(QStringList());
    QString section;
    for (QString& line : lines) {
        const QString name = sectionName(line.trimmed());
        if (!name.isNull())
            section = name;
        else if (values.contains(section) && keyOf(line) == QLatin1String("value"))
            line = QLatin1String("value=") + values.value(section);
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(lines.join(QLatin1Char('\n')).toUtf8()) < 0 || !file.commit()) {
        *problem = file.errorString();
        return false;
    }
    return true;
}
