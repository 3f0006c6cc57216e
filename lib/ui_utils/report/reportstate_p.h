#pragma once

#include "document/reportmetadata.h"
#include "files/fileutils.h"
#include "report/overwritegate_p.h"
#include "report/reportdestinations_p.h"
#include "report/saveprogress_p.h"

#include <kiv/kivnotification.h>

#include <QLatin1String>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QtDebug>

#include <memory>
#include <optional>
#include <utility>

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

    /// What the settings came with; none when the stored ones have been loaded.
    std::optional<QVariantMap> initialSettings {QVariantMap()};

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
    void takeUpAgreement(const QString& path)
    {
        if (agreed && agreed->paths.contains(path))
            agreed.reset();
    }

    /// From here to endSave(), one error is told however many files it hits.
    void beginSave()
    {
        endSave();
        m_isFirstError = true;
        m_isSyncErrorTold = false;
    }
    void endSave()
    {
        m_isFirstError.reset();
        fixedDestinations.reset();
        checkedPaths.clear();
        strays.clear();
    }

    /// The report at `path` could not be written: the user is told where, the log why.
    void tellWriteError(const QString& path, const QString& reason)
    {
        qDebug("The report %s was not written: %s", qUtf8Printable(path), qUtf8Printable(reason));
        const bool isToldAlready = m_isFirstError && !*m_isFirstError;
        if (m_isFirstError)
            m_isFirstError = false;
        if (!isToldAlready)
            m_errors->sendNotificationWriteError(path);
    }

    void tell(const QString& title, const QString& text)
    {
        auto refusal = std::make_unique<KIVNotification>();
        refusal->setLongLabel(title);
        refusal->setMsg(text);
        refusal->setError();
        // Those who hear that the former dialog has gone may delete whoever tells.
        const QPointer<KIVNotification> told(refusal.get());
        std::exchange(m_refusal, std::move(refusal)).reset();
        if (told)
            told->notifyDialog();
        // The page may go now that the report is saved, and the dialog with it.
        if (told)
            told->notifyTray();
    }

    /// The same, once for each save.
    void tellSyncError(const QString& title, const QString& text)
    {
        const bool isSave = m_isFirstError.has_value();
        if (!isSave || !std::exchange(m_isSyncErrorTold, true))
            tell(title, text);
    }

    /// What the user is told and asked ends here, while those who hear of it find everything whole.
    void closeDialogs()
    {
        gate.withdraw();
        m_refusal.reset();
        m_errors = std::make_unique<FileUtils>();
    }

    QString shown(const QString& path) { return m_errors->getSanitizedPathName(path); }

private:
    std::unique_ptr<FileUtils> m_errors = std::make_unique<FileUtils>();
    std::unique_ptr<KIVNotification> m_refusal;
    std::optional<bool> m_isFirstError;
    bool m_isSyncErrorTold = false;
};

} // namespace uiutils
