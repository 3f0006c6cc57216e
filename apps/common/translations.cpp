#include "common/translations.h"

#include "base/catalogues_p.h"

namespace uiutils::apps {

QString translationsOf(const QString& pages)
{
    return installedCatalogues(pages);
}

} // namespace uiutils::apps
