#include "pageaudit.h"

#include "audit/screenaudit.h"
#include "common/screen.h"

#include <QQuickWindow>
#include <QScreen>

namespace uiutils::qmltool {

QStringList auditPage(QQmlEngine* engine, QQuickWindow* window, int dotsPerInch)
{
    constexpr double millimetresPerInch = 25.4;
    const double dots = dotsPerInch > 0 ? dotsPerInch : window->screen()->physicalDotsPerInch();
    const audit::ScreenAudit audit(window, dots / millimetresPerInch);
    constexpr int placesAndVoice = audit::ScreenAudit::Geometry | audit::ScreenAudit::Voice;
    QStringList complaints = audit.complaints(placesAndVoice) + audit.complaintsOfOpened(placesAndVoice);
    for (const char* theme : {"light", "dark", "sunlight"}) {
        apps::useTheme(engine, QLatin1String(theme));
        const QStringList faint = audit.complaints(audit::ScreenAudit::Contrast)
                + audit.complaintsOfOpened(audit::ScreenAudit::Contrast);
        for (const QString& complaint : faint)
            complaints += QLatin1String(theme) + QStringLiteral(": ") + complaint;
    }
    return complaints;
}

} // namespace uiutils::qmltool
