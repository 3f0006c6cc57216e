#include "report/drivefile_p.h"

#include "core/durablefile.h"
#include "core/paths.h"
#include "report/reportdestinations_p.h"

#include <QCoreApplication>
#include <QFile>

namespace uiutils {

namespace {

QString driveIsGone(const QString& path)
{
    return QCoreApplication::translate("Report", "Cannot write %1: %2")
            .arg(path, QCoreApplication::translate("Report", "the USB drive is not there"));
}

/// A stick that is pulled leaves its folder behind, in which the unit would keep what was to go along: before the write
/// it must be there, and afterwards it must be there still.
template<typename Write> NewFile whileDriveIsThere(const QString& path, QString* error, Write write)
{
    const bool wasThere = isDriveThere(path);
    const NewFile file = wasThere ? write() : NewFile::Failed;
    if (wasThere && (file != NewFile::Written || isDriveThere(path)))
        return file;
    *error = driveIsGone(path);
    return NewFile::Failed;
}

} // namespace

std::optional<QByteArray> readWholeFile(const QString& path, QString* error)
{
    QFile file(onDisk(path));
    const QByteArray contents = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    // Of a file that memory cannot hold, nothing is read, and that is no error of the file's.
    if (file.error() == QFileDevice::NoError && contents.size() == file.size())
        return contents;
    *error = QCoreApplication::translate("Report", "Cannot read %1: %2").arg(path, file.errorString());
    return std::nullopt;
}

bool writeToDrive(const QString& path, const QByteArray& contents, QString* error)
{
    return whileDriveIsThere(path, error, [&] {
        return writeFileDurably(onDisk(path), contents, error) ? NewFile::Written : NewFile::Failed;
    }) == NewFile::Written;
}

NewFile writeNewToDrive(const QString& path, const QByteArray& contents, QString* error)
{
    return whileDriveIsThere(path, error, [&] { return writeNewFileDurably(onDisk(path), contents, error); });
}

} // namespace uiutils
