#pragma once

#include "report/reportdestinations_p.h"
#include "report/reportformats_p.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

namespace uiutils {

/// A report that a save writes.
struct PlannedFile
{
    const FormatInfo* format;
    /// As the writer is given it: with the format's suffix, without ".gz".
    QString path;
    /// The path of its copy on the USB drive; empty if there is none.
    QString copy;
};

/// What a save writes, and where: worked out once, so that no hook, no slot and no USB drive redirects it meanwhile.
struct SavePlan
{
    QString name;
    bool isAll = false;
    bool isSynced = false;
    QVector<PlannedFile> files;

    /// Every path that is written: each file, followed by its copy if the USB drive is there.
    QStringList paths(bool isUsbThere) const;
};

/// The path of a report of that name, with the suffix.
using PathOf = std::function<QString(const QString& name, const QString& suffix)>;

/// A report at `path`. One that is saved on the USB drive is not copied there.
PlannedFile plannedFile(const QString& path, const FormatInfo* format, bool copiesToUsb);

/// The files of a report of that name in these formats.
QVector<PlannedFile> plannedFiles(
        const QString& name, const FormatInfos& formats, bool copiesToUsb, const PathOf& pathOf);

/// Why nothing can be saved in the chosen formats, for the user; empty if it can.
QString formatProblem(const FormatChoice& choice);

/// Why nothing can be saved under the name in the chosen formats, for the user; empty if it can.
QString planProblem(const QString& name, const FormatChoice& choice, bool compressed);

} // namespace uiutils
