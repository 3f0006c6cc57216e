#pragma once

#include <QAbstractListModel>
#include <QDateTime>
#include <QString>
#include <QVector>

namespace uiutils::demo {

/// The screenshots of the unit, newest first. The roles are "name", "path" (the instrument's), "source" (for an Image),
/// "size" (bytes) and "time".
class PictureFiles : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role { NameRole = Qt::UserRole + 1, PathRole, SourceRole, SizeRole, TimeRole };

    explicit PictureFiles(QObject* parent = nullptr);

    int count() const { return m_files.size(); }
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Reads the folder again.
    Q_INVOKABLE void refresh();
    /// Removes a screenshot of the list with its record; false if that fails, and for any other path.
    Q_INVOKABLE bool remove(const QString& path);

Q_SIGNALS:
    void countChanged();

private:
    struct File
    {
        QString path;
        qint64 size = 0;
        QDateTime time;
    };

    QVector<File> m_files;
};

} // namespace uiutils::demo
