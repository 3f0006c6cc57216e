#pragma once

#include <QByteArray>
#include <QString>

namespace uiutils {

/// A file that did not exist before, in the folder of a target, removed again unless it was renamed to it. What cannot
/// be done leaves the reason in errno.
class TemporarySibling
{
public:
    /// `target` is a path on disk. An empty `name` makes up one that nobody has; what lies under another goes,
    /// unless its writer lives.
    explicit TemporarySibling(const QString& target, const QString& name = QString());
    ~TemporarySibling();
    Q_DISABLE_COPY_MOVE(TemporarySibling)

    bool isOpen() const { return m_fd >= 0; }
    const QString& path() const { return m_path; }

    bool write(const QByteArray& contents);
    bool sync();
    bool close();
    /// What lies at the target goes, or, unless `mayReplace`, stays and is the error EEXIST, also when it came a moment
    /// ago. File systems that cannot make sure of that replace it.
    bool renameTo(const QString& target, bool mayReplace = true);

private:
    void createUnderNewName(const QString& folder);
    void createUnder(const QString& name);
    void open();
    void takeModeOf(const QString& target);

    QString m_path;
    int m_fd = -1;
    bool m_created = false;
    bool m_renamed = false;
};

} // namespace uiutils
