#include "base/folderwatch_p.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace uiutils {

namespace {

constexpr int pauseMs = 100;
constexpr int mostFolders = 500;

} // namespace

FolderWatch::FolderWatch(const QStringList& folders, const QStringList& names, Depth depth, const Changed& changed)
    : m_folders(folders)
    , m_names(names)
    , m_depth(depth)
    , m_changed(changed)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMs);
    QObject::connect(&m_pause, &QTimer::timeout, &m_pause, [this] { look(); });
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_pause, qOverload<>(&QTimer::start));
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_pause, qOverload<>(&QTimer::start));
    m_files = scan();
}

/// Everything that there is now, all of it watched.
QHash<QString, FolderWatch::Stamp> FolderWatch::scan()
{
    QHash<QString, Stamp> files;
    QStringList places;
    for (const QString& folder : m_folders) {
        const QString path = QDir(folder).absolutePath();
        places += path;
        if (m_depth == AllBelow) {
            QDirIterator below(
                    path, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDirIterator::Subdirectories);
            while (below.hasNext() && places.size() < mostFolders)
                places += below.next();
        }
    }
    for (const QString& place : qAsConst(places)) {
        const QFileInfoList entries = QDir(place).entryInfoList(m_names, QDir::Files, QDir::Name);
        for (const QFileInfo& entry : entries) {
            if (files.size() < mostFiles)
                files.insert(entry.absoluteFilePath(), {entry.lastModified(), entry.size()});
        }
    }
    watch(places + files.keys());
    return files;
}

/// What was replaced by another file of its name is watched no longer, and is added again.
void FolderWatch::watch(const QStringList& paths)
{
    const QStringList files = m_watcher.files();
    const QStringList folders = m_watcher.directories();
    const QSet<QString> watched
            = QSet<QString>(files.begin(), files.end()) + QSet<QString>(folders.begin(), folders.end());
    QStringList missing;
    for (const QString& path : paths) {
        if (!watched.contains(path))
            missing += path;
    }
    if (!missing.isEmpty())
        m_watcher.addPaths(missing);
}

void FolderWatch::look()
{
    const QHash<QString, Stamp> before = m_files;
    m_files = scan();
    QStringList written;
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        const auto known = before.constFind(file.key());
        if (known == before.cend() || *known != *file)
            written += file.key();
    }
    const bool isRemoved = std::any_of(
            before.keyBegin(), before.keyEnd(), [this](const QString& path) { return !m_files.contains(path); });
    written.sort();
    if (!written.isEmpty() || isRemoved)
        m_changed(written, isRemoved);
}

} // namespace uiutils
