#include "pagemodules.h"

#include "modules/modulefiles.h"
#include "modules/moduleplan.h"
#include "names/itemfacts.h"

namespace uiutils::qmltool {

void PageModules::showTo(QQmlEngine* engine)
{
    if (m_areWritten)
        write();
    engine->setImportPathList(engine->importPathList() << m_folder.path());
}

bool PageModules::help(const QString& error)
{
    if (m_areWritten || !error.contains(QLatin1String("module \"Instrument.")))
        return false;
    write();
    return true;
}

void PageModules::write()
{
    m_areWritten = true;
    // Without a module, the page says so.
    modules::write(modules::plan(names::factsOfManifests()).modules,
            {m_folder.path(), QStringLiteral("Instrument"), modules::Place::Temporary});
}

} // namespace uiutils::qmltool
