#pragma once

#include <QDateTime>
#include <QString>
#include <QVariantList>

/// Names of reports and of their folders. They come from users, templates and the environment, and cannot lead out of
/// the folder that they are used in.
namespace uiutils {

/// The test's short label, without what file names should not contain, and the time: "Fiber_Test_030325140509".
QString proposedReportName(const QString& shortLabel, const QDateTime& time);

/// `name` as one part of a path: "/", NUL and control characters become "_", and so do "." and "..". Letters and their
/// marks are composed where they can be.
QString safePathPart(const QString& name);

/// Why a report cannot have that name, with the suffix and, if `compressed`, ".gz" appended, for the user: it leads to
/// another folder, or has more than 255 bytes. Empty if it can.
QString nameProblem(const QString& name, const QString& suffix, bool compressed);

/// `folder` as a path below another folder: its parts are as safePathPart() makes them, and empty ones are left out.
/// Has no "/" at its ends.
QString safeFolder(const QString& folder);

/// The folder of reports: `base` and, if `folder` is not empty, `provider` and `folder`, each followed by "/".
QString reportFolder(const QString& base, const QString& provider, const QString& folder);

/// The path of `name` in `directory`, with `suffix` appended unless it ends so.
QString reportPath(const QString& directory, const QString& name, const QString& suffix);

/// The path of the first of `reports`, maps as reportFiles() makes them, that has this name, or this file name with or
/// without ".gz"; empty if there is none.
QString reportNamed(const QString& name, const QVariantList& reports);

} // namespace uiutils
