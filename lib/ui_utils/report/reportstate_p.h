#pragma once

#include "files/fileutils.h"
#include "report/overwritegate_p.h"

#include <kiv/kivnotification.h>

#include <QLatin1String>
#include <QString>

#include <memory>

/// What the two halves of the report controller share.
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

/// What the user is told and asked on behalf of one controller. Questions have a sender of their own, because raising
/// an error would take a pending one back.
class ReportState
{
public:
    OverwriteGate gate;
    FileUtils errors;

    void tell(const QString& title, const QString& text)
    {
        m_refusal = std::make_unique<KIVNotification>();
        m_refusal->setLongLabel(title);
        m_refusal->setMsg(text);
        m_refusal->setError();
        m_refusal->notifyDialog();
    }

private:
    std::unique_ptr<KIVNotification> m_refusal;
};

} // namespace uiutils
