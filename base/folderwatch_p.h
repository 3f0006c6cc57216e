#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QStringList>
#include <QTimer>

#include <functional>

namespace uiutils {

/// Tells that files in folders were written, added or removed, a moment after the last of several changes: an editor
/// that saves may truncate, write and rename. Needs an event loop.
class FolderWatch
{
public:
    enum Depth { ThisFolder, AllBelow };
    /// The absolute paths of the files that were written or added since the last call, and whether some were removed.
    using Changed = std::function<void(const QStringList& written, bool isRemoved)>;

    /// Watches the files of the folders whose names match one of the wildcards. Links to folders are not followed. Of
    /// more than mostFiles files the first are watched, so a folder that holds a complete disk costs no more.
    FolderWatch(const QStringList& folders, const QStringList& names, Depth depth, const Changed& changed);
    Q_DISABLE_COPY_MOVE(FolderWatch)

    static constexpr int mostFiles = 2000;

private:
    /// What distinguishes a file from what it was before.
    struct Stamp
    {
        QDateTime modified;
        qint64 size;

        bool operator!=(const Stamp& other) const { return modified != other.modified || size != other.size; }
    };

    void look();
    QHash<QString, Stamp> scan();
    void watch(const QStringList& paths);

    const QStringList m_folders;
    const QStringList m_names;
    const Depth m_depth;
    const Changed m_changed;
    QHash<QString, Stamp> m_files;
    QFileSystemWatcher m_watcher;
    QTimer m_pause;
};

} // namespace uiutils
