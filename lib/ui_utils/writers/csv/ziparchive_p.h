#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace uiutils {

/// Makes a ZIP archive in memory. A library for it would come along with every page that imports the module; what is
/// needed of the format is three kinds of entries around what zlib deflates.
class ZipArchive
{
public:
    /// `time` is that of all files; an invalid one, and one before 1980, is the beginning of 1980.
    explicit ZipArchive(const QDateTime& time);

    void addFile(const QString& name, const QByteArray& contents);
    /// The complete archive.
    QByteArray finished();

private:
    QByteArray m_time;
    QByteArray m_files;
    QByteArray m_directory;
    quint64 m_count = 0;
};

} // namespace uiutils
