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
    const ReportFormat* format;
    /// As the writer gets it: with the format's suffix, without ".gz".
    QString path;
    /// Where it goes on the stick as well; empty for nowhere.
    QString copy;
};

/// What a save writes, and where: worked out once, so that nothing that hooks, slots and sticks do meanwhile takes it
/// elsewhere.
struct SavePlan
{
    QString name;
    bool isAll = false;
    bool isSynced = false;
    QVector<PlannedFile> files;

    /// Everything that may take another's place: each file, and behind it its copy, unless the stick is not there yet.
    QStringList paths(bool isStickThere) const;
};

/// Where a report of that name goes, with the suffix.
using PathOf = std::function<QString(const QString& name, const QString& suffix)>;

/// One that goes to `path`. What lies on the stick anyway is its own copy.
PlannedFile plannedFile(const QString& path, const ReportFormat* format, bool copiesToUsb);

/// The files that a report of that name has in these formats.
QVector<PlannedFile> plannedFiles(
        const QString& name, const ReportFormats& formats, bool copiesToUsb, const PathOf& pathOf);

/// Why nothing can be saved under the name in the chosen formats, in words for the user; empty when it can.
QString planProblem(const QString& name, const FormatChoice& choice, bool compressed);

} // namespace uiutils
