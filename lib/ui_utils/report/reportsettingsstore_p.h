#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

#include <memory>

class QJsonValue;
class UiData;

/// The settings of users for reports: one JSON object in a file for each folder of reports.
namespace uiutils {

using ReportSettings = QMap<QString, UiData*>;

/// In bytes. A larger file was not written here.
constexpr qint64 largestReportSettings = qint64(1024) * 1024;

/// The instrument path of the file for a folder of reports.
QString reportSettingsPath(const QString& folder);

/// Where the value of an item comes from: the initial one, the one that was loaded last, and the file of that. An item
/// whose value is neither of the two was set by somebody.
struct SettingOrigin
{
    QVariant initial;
    QVariant loaded;
    QString path;
    /// Whether the item may still be given its initial value by the code that added it.
    bool isNew = false;
};

/// By the name of the item.
using SettingOrigins = QMap<QString, SettingOrigin>;

/// The value of `stored` for the item; invalid if a user could not have entered it.
QVariant allowedValue(const UiData& item, const QJsonValue& stored);

/// Takes the present values of new items for their initial ones.
void settleReportSettings(const ReportSettings& items, SettingOrigins& origins);

/// Has each item that nobody has set take its stored value, if the item allows it. An item with a value of another file
/// that is not in this one gets its initial value back. A file that does not exist or cannot be understood counts as
/// empty. With a file that cannot be read, or is too large, all items stay as they are and count as not loaded. The log
/// has a line for each of these cases. New items are settled first.
void loadReportSettings(
        const QString& path, const ReportSettings& items, const std::shared_ptr<SettingOrigins>& origins);

/// Writes the values durably, and makes the folder if there is none. If that fails, what was stored stays, and the log
/// has a line. What is stored for an item that nobody has set, and that was not loaded from this file, stays as well;
/// if it cannot be read, writing counts as failed.
void saveReportSettings(const QString& path, const ReportSettings& items, const SettingOrigins& origins);

} // namespace uiutils
