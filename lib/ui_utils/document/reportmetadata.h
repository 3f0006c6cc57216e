#pragma once

#include "core/uiutils_export.h"

#include <QMap>
#include <QSharedDataPointer>
#include <QString>

#include <string>

namespace uiutils {
class ReportMetadataPrivate;
}

/// The record of a saved file, which tells other programs what the file is: its type and format, free pairs of texts,
/// when it was made, and its path.
///
/// The record is a file of its own in a folder of records, named after the file with ".metadata" appended. All paths
/// are the instrument's. If a file operation fails, the log has a line.
class UIUTILS_EXPORT ReportMetadata
{
public:
    /// An empty record.
    ReportMetadata();
    /// Copies share their contents until one of them is changed.
    ReportMetadata(const ReportMetadata& other);
    /// See the copy constructor.
    ReportMetadata& operator=(const ReportMetadata& other);
    ~ReportMetadata();

    /// Records of more than this many bytes (1 MiB) are neither written nor read.
    static constexpr qint64 maximumFileSize = qint64(1024) * 1024;

    /// The name of the record: that of the file that it describes, with its suffix and without folders.
    void setMetadataName(const QString& name);
    QString metadataName() const;

    /// The folder of the record. updateMetadataPathBase() and updateMetadataPathCable() set it as well.
    void setMetadataPath(const QString& folder);
    QString metadataPath() const;

    /// The folder of the file that the record describes.
    void setOriginBase(const QString& folder);
    QString originBase() const;

    /// The type of the record, such as "result".
    void setType(const QString& type);
    QString type() const;

    /// The format of the file that the record describes.
    void setFormat(const QString& format);
    QString format() const;

    /// When the file was made, ISO 8601 with its offset from UTC.
    void setTimeStamp(const QString& timeStamp);
    QString timeStamp() const;

    /// Sets one pair; replaces an earlier one of that key. Standard strings and literals are UTF-8.
    void setInfo(const QString& key, const QString& value);
    /// The same for UTF-8.
    void setInfo(const std::string& key, const std::string& value);
    /// The same for UTF-8.
    void setInfo(const char* key, const char* value) { setInfo(QString::fromUtf8(key), QString::fromUtf8(value)); }
    /// The value of a pair; empty if there is none.
    QString getInfo(const QString& key) const;
    /// All pairs.
    QMap<QString, QString> info() const;

    /// Sets the folder of the described file and, derived from it, that of the record: "/cust/public/reports/otdr/" has
    /// its records in "/cust/private/reports/metadata/otdr/", and ".../reports/autosave/" in ".../reports/metadata/".
    /// Records for any other folder are in that folder itself. The texts are compared: "/cust/public/reports" without
    /// its last slash is another folder.
    void updateMetadataPathBase(const QString& reportDir);
    /// Sets the folder of the record to the one for cable tests.
    void updateMetadataPathCable();

    /// The path of the described file; known after updateOriginFilePath(), saving and loading.
    QString originFilePath() const;
    /// Makes that path from the folder of the file and the name of the record.
    void updateOriginFilePath();

    /// The path of the record.
    QString metadataFilePath() const;

    /// Updates the path of the described file and writes the record durably; makes the folder if it is missing. Returns
    /// false, and leaves the file as it was, if the file cannot be written, if the record has no folder or is too
    /// large, or if its name contains a "/".
    bool saveMetadataToFile();

    /// Reads type, format, pairs, time and path of the described file from the record's file. What is missing there
    /// becomes empty; numbers become texts. Returns false, and changes nothing, if there is no such file, if it is too
    /// large, or if it is not JSON of that structure.
    [[nodiscard]] bool loadFromDisk();

    /// Clears everything.
    void clear();

private:
    QSharedDataPointer<uiutils::ReportMetadataPrivate> d;
};
