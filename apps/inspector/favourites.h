#pragma once

#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

namespace uiutils::inspector {

/// The items that the user wants to have at hand, by their ids. They are kept in a file, one id in each line.
class Favourites : public QObject
{
    Q_OBJECT

public:
    /// `file` is a path on disk, or empty for favourites that end with the object. A file that is not there or cannot
    /// be read means none.
    explicit Favourites(const QString& file, QObject* parent = nullptr);

    bool contains(const QString& id) const { return m_ids.contains(id); }
    bool isEmpty() const { return m_ids.isEmpty(); }
    /// Keeps or removes an id, and writes the file. One that cannot be written is reported in the log.
    void set(const QString& id, bool isFavourite);

Q_SIGNALS:
    void changed(const QString& id);

private:
    void write() const;

    const QString m_file;
    QSet<QString> m_ids;
};

} // namespace uiutils::inspector
