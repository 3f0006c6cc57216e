#pragma once

#include "document/reportmetadata.h"
#include "files/fileutils.h"
#include "report/overwritegate_p.h"
#include "report/reportdestinations_p.h"
#include "report/saveprogress_p.h"

#include <kiv/kivnotification.h>

#include <QLatin1String>
#include <QString>
#include <QtDebug>

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
template<typename Value>
bool changes(Value& held, const Value& value)
{
    if (held == value)
        return false;
    held = value;
    return true;
}

/// What one controller keeps for its saves, and what the user is told and asked on its behalf. Questions have a sender of
/// their own, because raising an error would take a pending one back.
class ReportState
{
public:
    OverwriteGate gate;
    SaveProgress progress;
    ReportMetadata metadata;

    /// Where the save that runs goes, whatever is plugged or pulled meanwhile.
    std::optional<ReportDestinations> fixedDestinations;
    /// Where the report goes that the user is being asked about, and the one that may be overwritten: the answer holds for no
    /// other place.
    std::optional<ReportDestinations> askedDestinations;
    std::optional<ReportDestinations> agreedDestinations;

    ReportDestinations destinations() const { return fixedDestinations.value_or(ReportDestinations::current()); }

    /// From here to endSave(), one error is told however many files it hits.
    void beginSave() { m_isFirstError = true; }
    void endSave() { m_isFirstError.reset(); }

    /// The report at `path` could not be written: the user is told where, the log why.
    void tellWriteError(const QString& path, const QString& reason)
    {
        qDebug("The report %s was not written: %s", qUtf8Printable(path), qUtf8Printable(reason));
        const bool isToldAlready = m_isFirstError && !*m_isFirstError;
        if (m_isFirstError)
            m_isFirstError = false;
        if (!isToldAlready)
            m_errors.sendNotificationWriteError(path);
    }

    void tell(const QString& title, const QString& text)
    {
        m_refusal = std::make_unique<KIVNotification>();
        m_refusal->setLongLabel(title);
        m_refusal->setMsg(text);
        m_refusal->setError();
        m_refusal->notifyDialog();
    }

    QString shown(const QString& path) { return m_errors.getSanitizedPathName(path); }

private:
    FileUtils m_errors;
    std::unique_ptr<KIVNotification> m_refusal;
    std::optional<bool> m_isFirstError;
};

} // namespace uiutils
