#pragma once

#include "base/folderlock_p.h"
#include "report/drafts/draftfile_p.h"

#include <QString>
#include <QVector>

#include <memory>

namespace uiutils {

/// A draft of an earlier run.
struct OfferedDraft
{
    /// On the disk.
    QString path;
    DraftHeader header;
};

/// The folder of the drafts of one kind. It has one owner at a time, a process or an object; what lies there when it
/// gets an owner is of earlier runs.
class DraftFolder
{
public:
    /// How many drafts are kept, and how many files that cannot be read. Beyond that the one that was written first is
    /// removed, and the log says so.
    static constexpr int mostDrafts = 20;
    static constexpr int mostDamaged = 5;

    /// `id` names the kind within the application.
    explicit DraftFolder(const QString& id);

    /// Whether this object owns the folder now. Does not wait for another owner. `error` is for the log.
    bool claim(QString* error);
    /// The same; first makes the folder if there is none, for this user alone.
    bool makeAndClaim(QString* error);
    /// False again when somebody has removed the folder.
    bool isOwned() const { return m_lock && m_lock->isAt(m_folder); }
    bool exists() const;
    /// Whether the reason that claim() gives is another owner.
    static bool isAnotherOwner(const QString& error);

    /// The drafts in the folder, the last written first. A damaged one gets another name, with a line in the log. What
    /// another version of the library has made stays where it is.
    QVector<OfferedDraft> drafts() const;
    /// The path of a new draft.
    QString newFile() const;
    /// Gives a damaged draft another name.
    void setAside(const QString& path) const;

private:
    void removeOldest(QLatin1String end, int most) const;

    QString m_folder;
    std::unique_ptr<FolderLock> m_lock;
};

} // namespace uiutils
