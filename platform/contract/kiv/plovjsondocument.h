#pragma once

#include <kiv/kiv_export.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

/// A JSON document that can be read from a file and keeps the error of the last read.
class KIV_EXPORT PlovJsonDocument
{
public:
    /// Maximum size of a file in bytes (16 MiB). Larger files are rejected before they are read.
    static constexpr qint64 maximumFileSize = qint64(16) * 1024 * 1024;
    /// Maximum number of objects and lists. A file with more is rejected before it is parsed: an empty list takes two
    /// bytes in a file and a hundred in memory. Within both limits reading a file takes at most 320 MB of memory.
    static constexpr int maximumContainers = 750 * 1000;

    /// Replaces the content by the file's. Returns true on success. On failure the document is empty, hasError() is
    /// true and errorString() gives the file, the place in it (line and column, counted from 1, in characters) and the
    /// reason. The root must be an object.
    bool readFile(const QString& path);

    /// Whether the last readFile() failed; false before the first, and after setObject().
    bool hasError() const { return !m_error.isEmpty(); }
    /// What went wrong in the last readFile(), in words; empty after a success.
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
