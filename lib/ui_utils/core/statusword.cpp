#include "core/statusword_p.h"

#include "core/status.h"

#include <QCoreApplication>

namespace uiutils {

QString statusWord(int status)
{
    switch (status) {
    case Status::Pass:
        return QCoreApplication::translate("TemplateToHtmlWriter", "Pass");
    case Status::Marginal:
        return QCoreApplication::translate("TemplateToHtmlWriter", "Marginal");
    case Status::Fail:
        return QCoreApplication::translate("TemplateToHtmlWriter", "Fail");
    default:
        return {};
    }
}

} // namespace uiutils
