#pragma once

#include <QObject>
#include <QString>

/// Keeps what users enter in a JSON file: values by the ids of the items.
class FormValues : public QObject
{
    Q_OBJECT

public:
    /// The items of pages that load after this take over the values that are in the file. There need not be a file.
    explicit FormValues(const QString& path);

    /// Writes the values of all persistent items that have one. Returns false if the file cannot be written; it is
    /// then as it was.
    Q_INVOKABLE bool save() const;

private:
    const QString m_path;
};
