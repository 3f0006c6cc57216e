#include "report/saving/reportfilewriter_p.h"

#include "base/paths_p.h"
#include "base/temporaries_p.h"
#include "base/temporaryfolder_p.h"
#include "instrument/drives_p.h"
#include "report/reportformats_p.h"
#include "report/reporttexts_p.h"
#include "report/saving/drivefile_p.h"
#include "report/saving/gzip_p.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <cerrno>

namespace uiutils {

namespace {

QString cannotCompress(const QString& path, const QString& reason)
{
    return ReportTexts::tr("Cannot compress %1: %2").arg(path, reason);
}

/// Whether the bytes are a complete gzip file of `size` bytes: its mark is in front, the size at the end. A full disk
/// may have cut the file short without gzip noticing.
bool isWholeGzip(const QByteArray& bytes, int size)
{
    constexpr int headAndTail = 18;
    return bytes.size() >= headAndTail && bytes.startsWith("\x1f\x8b")
            && qFromLittleEndian<quint32>(bytes.constData() + bytes.size() - 4) == quint32(size);
}

bool writePlainly(const QString& place, const QByteArray& contents, QString* reason)
{
    QFile file(place);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.flush();
    *reason = file.errorString();
    return isWritten;
}

/// The gzip form of a report. Empty, with the reason in `error`, if there is none.
QByteArray compressedForm(const QString& path, const QByteArray& contents, QString* error)
{
    const QFileInfo target(onDisk(path));
    // In a folder of its own gzip can store the report's name in the file, which unpackers show, and whatever gzip
    // leaves is removed with the folder. It is beside the report, because that is the drive whose space was checked.
    removeStaleTemporaries(target.path());
    const TemporaryFolder folder(target.path());
    if (folder.path().isEmpty()) {
        *error = cannotCompress(path, qt_error_string(errno));
        return QByteArray();
    }
    const QString place = folder.filePath(target.fileName());
    QString reason;
    if (!writePlainly(place, contents, &reason)) {
        *error = cannotCompress(path, reason);
        return QByteArray();
    }
    QByteArray bytes;
    if (compressFileAt(place, path)) {
        QFile file(place + gzipSuffix);
        bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    if (isWholeGzip(bytes, contents.size()))
        return bytes;
    *error = cannotCompress(path, ReportTexts::tr("gzip is missing or has failed"));
    return QByteArray();
}

WrittenFile writeAsItIs(const QString& path, const QByteArray& contents, bool mayReplace)
{
    WrittenFile file;
    const NewFile result = writeToDrive(path, contents, mayReplace, &file.error);
    file.ok = result == NewFile::Written;
    file.isTaken = result == NewFile::Taken;
    if (file.ok)
        file.path = path;
    return file;
}

} // namespace

WrittenFile writeReportFile(const QString& path, const QByteArray& contents, bool compressed, bool mayReplace)
{
    // writeAsItIs() rejects what no path may contain, with a reason that can be shown.
    if (!compressed || path.contains(QChar(QChar::Null)) || !instrument::isDriveThere(path))
        return writeAsItIs(path, contents, mayReplace);
    QString error;
    const QByteArray bytes = compressedForm(path, contents, &error);
    if (!bytes.isEmpty())
        return writeAsItIs(path + gzipSuffix, bytes, mayReplace);
    WrittenFile file = writeAsItIs(path, contents, mayReplace);
    file.ok = false;
    file.error = error;
    return file;
}

bool copyReportFile(const QString& source, const QString& target, bool mayReplace, QString* error)
{
    const std::optional<QByteArray> contents = readWholeFile(source, error);
    return contents && writeToDrive(target, *contents, mayReplace, error) == NewFile::Written;
}

} // namespace uiutils
