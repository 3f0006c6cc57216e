#pragma once

#include <QByteArray>
#include <QString>

namespace uiutils {

/// A new file in the folder of a target, removed again unless it is renamed to the target. A failure leaves the reason
/// in errno.
class TemporarySibling
{
public:
    /// `target` is a path on disk. With an empty `name` a unique one is chosen. Otherwise an existing file of that
    /// name is removed, unless its writer lives.
    explicit TemporarySibling(const QString& target, const QString& name = QString());
    ~TemporarySibling();
    Q_DISABLE_COPY_MOVE(TemporarySibling)

    bool isOpen() const { return m_fd >= 0; }
    const QString& path() const { return m_path; }

    bool write(const QByteArray& contents);
    bool sync();
    bool close();
    /// An existing target is replaced. Unless `mayReplace`, it stays and the error is EEXIST, even when it appeared a
    /// moment ago. File systems that cannot guarantee that replace it.
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
