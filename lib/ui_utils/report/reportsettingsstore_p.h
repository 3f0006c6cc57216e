#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

class UiData;

/// The settings that users make for reports, as one JSON object in a file for each folder of reports.
namespace uiutils {

using ReportSettings = QMap<QString, UiData*>;

/// Files beyond this many bytes are none that was written here.
constexpr qint64 largestReportSettings = 1024 * 1024;

/// The instrument path of the file for a folder of reports.
QString reportSettingsPath(const QString& folder);

/// Has each item take its stored value, where that is one that the item allows. A file that cannot be read or
/// understood leaves all as they are; a line in the log says so.
void loadReportSettings(const QString& path, const ReportSettings& items);

/// Writes the values durably, with the folder if there is none. When that fails, what was stored stays; a line in the
/// log says so. `initial` has the values that items came with, while the stored ones have not been loaded: those of
/// items that still have theirs stay stored.
void saveReportSettings(const QString& path, const ReportSettings& items, const QVariantMap& initial = {});

} // namespace uiutils
