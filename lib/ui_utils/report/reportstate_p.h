#pragma once

#include "document/reportmetadata.h"
#include "files/fileutils.h"
#include "report/overwritegate_p.h"
#include "report/reportdestinations_p.h"
#include "report/reportlisting_p.h"
#include "report/reportsettingsstore_p.h"
#include "report/saveprogress_p.h"

#include <kiv/kivnotification.h>

#include <QLatin1String>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>

/// What the parts of the report controller share.
namespace uiutils {

/// Names of the settings that the controller itself reads.
inline const QLatin1String nameSetting("reportName");
inline const QLatin1String formatSetting("reportFormat");
inline const QLatin1String syncSetting("reportSync_SS");
inline const QLatin1String jobInfoSetting("includeJobInfo");

/// Takes the value; false when it was held already.
template<typename Value> bool changes(Value& held, const Value& value)
{
    if (held == value)
        return false;
    held = value;
    return true;
}

/// Which files the user lets a save overwrite, and where it goes: the answer holds for no others.
struct Agreement
{
    ReportDestinations destinations;
    QStringList paths;
};

/// What one controller keeps for its saves, and what the user is told and asked on its behalf. Questions have a sender
/// of their own, because raising an error would take a pending one back.
class ReportState
{
public:
    OverwriteGate gate;
    SaveProgress progress;
    ReportMetadata metadata;
    ReportListing listing;

    /// Where the values of the settings come from. Shared with the loading that runs, which may outlive this.
    std::shared_ptr<SettingOrigins> settingOrigins = std::make_shared<SettingOrigins>();
    /// The settings file that was loaded last; null before.
    QString settingsPath;

    /// Where the save that runs goes, whatever is plugged or pulled meanwhile.
    std::optional<ReportDestinations> fixedDestinations;
    /// What the user was asked about last, and what was answered with yes and not taken up yet.
    Agreement asked;
    std::optional<Agreement> agreed;
    /// What the save that runs has looked at before it wrote anything.
    QStringList checkedPaths;
    /// Files that it has left, although they are not what was to be written.
    QStringList strays;

    ReportDestinations destinations() const { return fixedDestinations.value_or(ReportDestinations::current()); }

    /// An answer counts once, also when a writer alone has asked: it is not for a save that comes much later.
    void takeUpAgreement(const QString& path);

    /// From here to endSave(), one error is told however many files it hits.
    void beginSave();
    void endSave();

    /// The report at `path` could not be written: the user is told where, the log why.
    void tellWriteError(const QString& path, const QString& reason);
    /// Something went wrong, in a dialog and in the tray.
    void tell(const QString& title, const QString& text);
    /// The same, once for each save.
    void tellSyncError(const QString& title, const QString& text);

    /// What the user is told and asked ends here, while those who hear of it find everything whole.
    void closeDialogs();

    QString shown(const QString& path) { return m_errors->getSanitizedPathName(path); }

private:
    std::unique_ptr<FileUtils> m_errors = std::make_unique<FileUtils>();
    std::unique_ptr<KIVNotification> m_refusal;
    std::optional<bool> m_isFirstError;
    bool m_isSyncErrorTold = false;
};

} // namespace uiutils
