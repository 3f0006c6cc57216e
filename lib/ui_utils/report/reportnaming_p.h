#pragma once

#include <QDateTime>
#include <QString>
#include <QVariantList>

/// How reports and their folders are called. Names come from users, templates and the environment, and cannot lead out
/// of the folder that they are put into.
namespace uiutils {

/// The test's short label without what no file name should hold, and the time: "Fiber_Test_030325140509".
QString proposedReportName(const QString& shortLabel, const QDateTime& time);

/// `name` as one part of a path: "/", NUL and control characters become "_", and so do "." and "..". Letters and their
/// marks are composed where they can be.
QString safeFileName(const QString& name);

/// Why no report of that name can lie in a folder with the suffix and, `compressed`, ".gz" behind it, in words for the
/// user: it leads elsewhere or has more than 255 bytes. Empty when one can.
QString nameProblem(const QString& name, const QString& suffix, bool compressed);

/// `folder` as parts of a path below another: its parts are as safeFileName() makes them, and empty ones go. Has no "/"
/// at its ends.
QString safeFolder(const QString& folder);

/// The folder of reports: `base`, and for a folder that is not empty `provider` and `folder`, each with "/" behind it.
QString reportFolder(const QString& base, const QString& provider, const QString& folder);

/// `name` in `directory`, with `suffix` behind it unless it ends so.
QString reportPath(const QString& directory, const QString& name, const QString& suffix);

/// The path of the first of `reports`, maps as reportFiles() makes them, that goes by the name, or by the file name,
/// with or without ".gz"; empty without one.
QString reportNamed(const QString& name, const QVariantList& reports);

} // namespace uiutils
