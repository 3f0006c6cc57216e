#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

namespace uiutils {

/// A folder of its own beside the target that is being written. Removed with everything in it; after a kill
/// removeStaleTemporaries() removes what remains.
class TemporaryFolder
{
public:
    /// Creates it in `parent`, which must exist. On failure path() is empty and errno gives the reason.
    explicit TemporaryFolder(const QString& parent);
    ~TemporaryFolder();
    Q_DISABLE_COPY_MOVE(TemporaryFolder)

    QString path() const { return m_path; }
    QString filePath(const QString& name) const { return m_path + QLatin1Char('/') + name; }

private:
    bool make();

    QByteArray m_name;
    QString m_path;
    int m_parent = -1;
    int m_fd = -1;
};

} // namespace uiutils
