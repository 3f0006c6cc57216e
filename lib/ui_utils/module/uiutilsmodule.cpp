#include "module/uiutilsmodule.h"

#include "document/reporttemplate.h"

#include <QtQml>

namespace uiutils {

void registerTypes(const char* uri)
{
    qmlRegisterType<ReportTemplate>(uri, 1, 0, "ReportTemplate");
}

} // namespace uiutils
