#include "report/saving/drivefile_p.h"

#include "base/durablefile_p.h"
#include "base/paths_p.h"
#include "instrument/drives_p.h"
#include "report/reporttexts_p.h"

#include <QFile>

namespace uiutils {

namespace {

QString driveIsGone(const QString& path)
{
    return ReportTexts::tr("Cannot write %1: %2").arg(path, ReportTexts::tr("the USB drive is not there"));
}

} // namespace

std::optional<QByteArray> readWholeFile(const QString& path, QString* error)
{
    QFile file(onDisk(path));
    const QByteArray contents = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    // Of a file that memory cannot hold, nothing is read, and that is no error of the file's.
    if (file.error() == QFileDevice::NoError && contents.size() == file.size())
        return contents;
    *error = ReportTexts::tr("Cannot read %1: %2").arg(path, file.errorString());
    return std::nullopt;
}

/// A stick that is pulled leaves its folder behind, in which the unit would keep what was to go along: before the write
/// it must be there, and afterwards it must be there still.
NewFile writeToDrive(const QString& path, const QByteArray& contents, bool mayReplace, QString* error)
{
    const bool wasThere = instrument::isDriveThere(path);
    NewFile file = NewFile::Failed;
    if (wasThere && mayReplace)
        file = writeFileDurably(onDisk(path), contents, error) ? NewFile::Written : NewFile::Failed;
    else if (wasThere)
        file = writeNewFileDurably(onDisk(path), contents, error);
    if (wasThere && (file != NewFile::Written || instrument::isDriveThere(path)))
        return file;
    *error = driveIsGone(path);
    return NewFile::Failed;
}

} // namespace uiutils
