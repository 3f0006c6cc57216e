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
    // A file that does not fit into memory is read as nothing, without an error.
    if (file.error() == QFileDevice::NoError && contents.size() == file.size())
        return contents;
    *error = ReportTexts::tr("Cannot read %1: %2").arg(path, file.errorString());
    return std::nullopt;
}

/// A USB drive that is removed leaves its folder, and the file would end up on the unit. The drive must therefore be
/// there before the write and after it.
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
