#include "common/startup.h"

#include "base/root_p.h"
#include "ui_host/describedservices_p.h"

namespace uiutils::apps {

namespace {

bool complained(bool result, const QStringList& problems)
{
    for (const QString& problem : problems)
        complain(problem);
    return result;
}

} // namespace

bool useRoot(const QString& root)
{
    QStringList problems;
    const bool isUsable = uiutils::useRoot(root, &problems);
    return complained(isUsable, problems);
}

bool loadServices(kiv::embedded::EmbeddedBackend& backend, const QStringList& folders, const QString& root)
{
    QStringList problems;
    const bool isAny = uiutils::loadServices(backend, folders, root, &problems);
    return complained(isAny, problems);
}

} // namespace uiutils::apps
