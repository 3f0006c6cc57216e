#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

#include <memory>

class UiData;

/// The settings that users make for reports, as one JSON object in a file for each folder of reports.
namespace uiutils {

using ReportSettings = QMap<QString, UiData*>;

/// Files beyond this many bytes are none that was written here.
constexpr qint64 largestReportSettings = 1024 * 1024;

/// The instrument path of the file for a folder of reports.
QString reportSettingsPath(const QString& folder);

/// What is known of an item's value: the one that it came with, the one that it was given last by loading, and the file
/// of that. An item that has neither of the two was set by somebody.
struct SettingOrigin
{
    QVariant initial;
    QVariant loaded;
    QString path;
    /// Whether whoever has added the item may still be giving it the value that it starts with.
    bool isNew = false;
};

/// By the name of the item.
using SettingOrigins = QMap<QString, SettingOrigin>;

/// What new items hold now is what they came with.
void settleReportSettings(const ReportSettings& items, SettingOrigins& origins);

/// Has each item that nobody has set take its stored value, where that is one that the item allows; one that came from
/// another file and is not in this one gets the value back that it came with. A file that is not there or cannot be
/// understood holds nothing. With one that cannot be read, or is too large, all items stay as they are and count as not
/// loaded. A line in the log tells of each. New items are settled first.
void loadReportSettings(
        const QString& path, const ReportSettings& items, const std::shared_ptr<SettingOrigins>& origins);

/// Writes the values durably, with the folder if there is none. When that fails, what was stored stays; a line in the
/// log says so. What is stored for an item that nobody has set, and that was not loaded from this file, stays as well;
/// when it cannot be read then, writing counts as failed.
void saveReportSettings(const QString& path, const ReportSettings& items, const SettingOrigins& origins);

} // namespace uiutils
