#pragma once

#include <kiv/kiv_export.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

/// A JSON document that can be read from a file and remembers what went wrong.
class KIV_EXPORT PlovJsonDocument
{
public:
    /// Files over this many bytes are refused before they are read (16 MiB).
    static constexpr qint64 maximumFileSize = qint64(16) * 1024 * 1024;
    /// Files with more objects and lists than that are refused before they are parsed: an empty list is two bytes in a
    /// file and a hundred in memory. Within both limits a process that reads a file grows by 320 MB at the most.
    static constexpr int maximumContainers = 750 * 1000;

    /// Replaces the content by the file's. Returns true on success. On failure the document is empty, hasError() is
    /// true and errorString() says which file, where in it (line and column, counted from 1, in characters) and why.
    /// The root has to be an object.
    bool readFile(const QString& path);

    /// Whether the last readFile() failed; false before the first, and after setObject().
    bool hasError() const { return !m_error.isEmpty(); }
    /// What went wrong in the last readFile(), in words; empty when nothing did.
    QString errorString() const { return m_error; }

    /// The root object; empty when there is none.
    QJsonObject object() const { return m_document.object(); }
    /// Replaces the content and clears the error.
    void setObject(const QJsonObject& object);

    /// The indented JSON text in UTF-8; empty for an empty document.
    QByteArray toJson() const { return m_document.toJson(); }

private:
    bool fail(const QString& error);

    QJsonDocument m_document;
    QString m_error;
};
