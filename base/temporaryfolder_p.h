#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

namespace uiutils {

/// A folder of its own beside what is being made in it. Goes with everything in it; what a killed process leaves,
/// removeStaleTemporaries() takes away.
class TemporaryFolder
{
public:
    /// Makes it in `parent`, which has to exist. When that fails, path() is empty and errno says why.
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
