#include "report/drafts/draftfolder_p.h"

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "report/reportnaming_p.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QtDebug>

#include <algorithm>
#include <cerrno>
#include <dirent.h>

namespace uiutils {

namespace {

const QLatin1String draftEnd(".draft");
const QLatin1String damagedEnd(".damaged");

/// The names in the folder that end so, in their order. QDir would not say that a folder cannot be read.
QStringList namesIn(const QString& folder, QLatin1String end)
{
    QStringList names;
    DIR* const stream = ::opendir(QFile::encodeName(folder).constData());
    errno = stream ? 0 : errno;
    while (const dirent* entry = stream ? ::readdir(stream) : nullptr) {
        const QString name = QFile::decodeName(entry->d_name);
        if (name.endsWith(end))
            names += name;
        errno = 0;
    }
    if (errno != 0)
        qWarning("The drafts in %s are not known: %s", qUtf8Printable(folder), qUtf8Printable(qt_error_string(errno)));
    if (stream)
        ::closedir(stream);
    names.sort();
    return names;
}

QString part(const QString& name)
{
    return safePathPart(name.isEmpty() ? QStringLiteral("application") : name) + QLatin1Char('/');
}

} // namespace

DraftFolder::DraftFolder(const QString& id)
    : m_folder(onDisk(paths::drafts + part(QCoreApplication::applicationName()) + part(id)))
{
}

bool DraftFolder::claim(QString* error)
{
    if (isOwned())
        return true;
    m_lock.reset();
    auto lock = std::make_unique<FolderLock>(m_folder, 0);
    *error = lock->error();
    if (lock->isLocked())
        m_lock = std::move(lock);
    return bool(m_lock);
}

bool DraftFolder::makeAndClaim(QString* error)
{
    const bool isThere = exists();
    if (!makeFolderDurably(m_folder)) {
        *error = qt_error_string(errno);
        return false;
    }
    if (!isThere)
        QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return claim(error);
}

bool DraftFolder::isAnotherOwner(const QString& error)
{
    return error == qt_error_string(EWOULDBLOCK);
}

bool DraftFolder::exists() const
{
    return QFileInfo(m_folder).isDir();
}

QVector<OfferedDraft> DraftFolder::drafts() const
{
    QVector<OfferedDraft> found;
    const QStringList names = namesIn(m_folder, draftEnd);
    for (const QString& name : names) {
        OfferedDraft draft {m_folder + name, {}};
        switch (readDraftHeader(draft.path, &draft.header)) {
        case DraftState::Good:
            found += draft;
            break;
        case DraftState::Damaged:
            setAside(draft.path);
            break;
        case DraftState::Foreign:
            qWarning("The draft %s was made by another version and is not offered", qUtf8Printable(draft.path));
            break;
        case DraftState::Unreadable:
            qWarning("The draft %s cannot be read", qUtf8Printable(draft.path));
            break;
        }
    }
    std::stable_sort(found.begin(), found.end(),
            [](const OfferedDraft& a, const OfferedDraft& b) { return a.header.savedAt > b.header.savedAt; });
    return found;
}

/// The names have the order of their times, as long as nobody sets the clock.
QString DraftFolder::newFile() const
{
    removeOldest(draftEnd, mostDrafts - 1);
    const QString stem = m_folder + QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    QString path = stem + draftEnd;
    for (int i = 2; QFile::exists(path); ++i)
        path = stem + QLatin1Char('-') + QString::number(i) + draftEnd;
    return path;
}

void DraftFolder::setAside(const QString& path) const
{
    QString aside = path + damagedEnd;
    for (int i = 2; QFile::exists(aside); ++i)
        aside = path + QLatin1Char('.') + QString::number(i) + damagedEnd;
    removeOldest(damagedEnd, mostDamaged - 1);
    if (QFile::rename(path, aside))
        qWarning("The draft %s is damaged; it is now %s", qUtf8Printable(path), qUtf8Printable(aside));
    else
        qWarning("The draft %s is damaged", qUtf8Printable(path));
}

/// A name does not tell the age: a draft that was given back is written again under its name.
void DraftFolder::removeOldest(QLatin1String end, int most) const
{
    QStringList names = namesIn(m_folder, end);
    if (names.size() <= most)
        return;
    QHash<QString, QDateTime> times;
    for (const QString& name : qAsConst(names))
        times.insert(name, QFileInfo(m_folder + name).lastModified());
    std::stable_sort(
            names.begin(), names.end(), [&](const QString& a, const QString& b) { return times[a] < times[b]; });
    while (names.size() > most) {
        const QString oldest = m_folder + names.takeFirst();
        qWarning("There are too many drafts; the oldest is removed: %s", qUtf8Printable(oldest));
        QFile::remove(oldest);
    }
}

} // namespace uiutils
