#include "favourites.h"

#include "base/durablefile_p.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace uiutils::inspector {

namespace {

/// Nobody has more; a file that is larger is not ours.
constexpr qint64 largestFile = 4 << 20;

} // namespace

Favourites::Favourites(const QString& file, QObject* parent)
    : QObject(parent)
    , m_file(file)
{
    QFile source(file);
    if (file.isEmpty() || !source.open(QIODevice::ReadOnly) || source.size() > largestFile)
        return;
    const QStringList lines = QString::fromUtf8(source.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    m_ids = QSet<QString>(lines.begin(), lines.end());
}

void Favourites::set(const QString& id, bool isFavourite)
{
    if (m_ids.contains(id) == isFavourite)
        return;
    if (isFavourite)
        m_ids.insert(id);
    else
        m_ids.remove(id);
    write();
    Q_EMIT changed(id);
}

void Favourites::write() const
{
    if (m_file.isEmpty())
        return;
    QStringList lines = m_ids.values();
    std::sort(lines.begin(), lines.end());
    QString error;
    const QByteArray text = (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8();
    if (!makeFolderDurably(QFileInfo(m_file).absolutePath()) || !writeFileDurably(m_file, text, &error))
        qWarning("%s: %s", qUtf8Printable(m_file), qUtf8Printable(error));
}

} // namespace uiutils::inspector
