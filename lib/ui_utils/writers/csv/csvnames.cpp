#include "writers/csv/csvnames_p.h"

#include "base/plaintext_p.h"

#include <QRegularExpression>

namespace uiutils {

namespace {

/// With number and suffix less than the 255 bytes that names may have.
constexpr int mostBytes = 200;

/// Names of devices, whatever follows their point.
bool isDevice(const QString& name)
{
    static const QRegularExpression devices(
            QStringLiteral("^(con|prn|aux|nul|com\\d|lpt\\d)(\\..*)?$"), QRegularExpression::CaseInsensitiveOption);
    return devices.match(name).hasMatch();
}

bool isForbidden(QChar c)
{
    return c < QLatin1Char(' ') || QStringView(u"/\\:*?\"<>|\u007f").contains(c);
}

QString shortened(QString name)
{
    while (name.toUtf8().size() > mostBytes)
        name.chop(name.size() > 1 && name.at(name.size() - 2).isHighSurrogate() ? 2 : 1);
    return name;
}

QString fileStem(const QString& title)
{
    // A longer title costs time and cannot become longer names.
    QString name = plainText(title.left(mostBytes)).simplified().normalized(QString::NormalizationForm_C);
    for (QChar& c : name) {
        if (isForbidden(c))
            c = QLatin1Char('_');
    }
    name = shortened(name);
    while (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' ')))
        name.chop(1);
    const bool isHidden = name.startsWith(QLatin1Char('.')) || name.startsWith(QLatin1Char('-'));
    return isHidden || isDevice(name) ? QLatin1Char('_') + name : name;
}

} // namespace

QString CsvNames::nameFor(const QString& title)
{
    const QString stem = fileStem(title);
    QString name = stem;
    for (int& count = m_counts[stem.toCaseFolded()]; ++count > 1;) {
        name = QStringLiteral("%1 %2").arg(stem).arg(count);
        // "Events 2" may have been a title.
        if (!m_counts.contains(name.toCaseFolded()))
            break;
    }
    if (name != stem)
        m_counts.insert(name.toCaseFolded(), 1);
    return name + QStringLiteral(".csv");
}

} // namespace uiutils
