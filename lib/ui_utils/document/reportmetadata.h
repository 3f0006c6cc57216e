#pragma once

#include "core/uiutils_export.h"

#include <QSharedDataPointer>
#include <QString>

#include <string>

namespace uiutils {
class ReportMetadataPrivate;
}

/// The record that lies apart from a saved file and tells later readers what the file is: its type and format, free
/// pairs of texts, when it was made and where it lies.
///
/// The record is a file of its own in a folder of records, named by the file with ".metadata" behind. All paths are the
/// instrument's. Both file operations tell the log what went wrong.
class UIUTILS_EXPORT ReportMetadata
{
public:
    ReportMetadata();
    ReportMetadata(const ReportMetadata& other);
    ReportMetadata& operator=(const ReportMetadata& other);
    ~ReportMetadata();

    /// Records over this many bytes are neither written nor read (1 MiB).
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

    /// What kind of record this is, "result" for one.
    void setType(const QString& type);
    QString type() const;

    /// The format of the file that the record describes.
    void setFormat(const QString& format);
    QString format() const;

    /// When the file was made, ISO 8601 with its offset from UTC.
    void setTimeStamp(const QString& timeStamp);
    QString timeStamp() const;

    /// Sets one pair, in place of an earlier one of that key. Standard strings and literals are UTF-8.
    void setInfo(const QString& key, const QString& value);
    void setInfo(const std::string& key, const std::string& value);
    void setInfo(const char* key, const char* value) { setInfo(QString::fromUtf8(key), QString::fromUtf8(value)); }
    /// The value of a pair; empty without one.
    QString getInfo(const QString& key) const;

    /// Sets the folder of the described file, and that of the record beside it: "/cust/public/reports/otdr/" has its
    /// records in "/cust/private/reports/metadata/otdr/", and ".../reports/autosave/" in ".../reports/metadata/".
    /// Records for any other folder lie in that folder. The text decides: "/cust/public/reports" without its last slash
    /// is any other folder.
    void updateMetadataPathBase(const QString& reportDir);
    /// Sets the folder of the record to the one for cable tests.
    void updateMetadataPathCable();

    /// Where the described file lies; known after updateOriginFilePath(), saving and loading.
    QString originFilePath() const;
    /// Makes it of its folder and the record's name.
    void updateOriginFilePath();

    /// The path of the record.
    QString metadataFilePath() const;

    /// Updates the path of the described file and writes the record, in a folder that is made where it is missing. Its
    /// file then holds all of it; it holds what it held before when false is returned: when the file cannot be written,
    /// the record has no folder or is too large, or its name has a "/".
    bool saveMetadataToFile();

    /// Takes type, format, pairs, time and path of the described file from the record's file; what is missing there is
    /// empty, and numbers are their texts. Returns false, and changes nothing, when there is no such file, when it is
    /// too large, and when it is not JSON of that shape.
    bool loadFromDisk();

    /// Empties everything.
    void clear();

private:
    QSharedDataPointer<uiutils::ReportMetadataPrivate> d;
};
