#include "pagemodules.h"

#include "modules/modulefiles.h"
#include "modules/moduleplan.h"
#include "names/itemfacts.h"

#include <QSet>

namespace uiutils::qmltool {

namespace {

/// What the services have now. Of a service that is away, its names are known and its choices are not: they are better
/// than no module, and worse than the one that was made of the complete service.
QVector<names::ItemFacts> knownFacts(bool isFirst)
{
    const QVector<names::ItemFacts> all = names::factsOfManifests();
    QSet<QString> present;
    for (const names::ItemFacts& facts : all) {
        if (facts.isThere)
            present.insert(facts.tag);
    }
    QVector<names::ItemFacts> known;
    for (const names::ItemFacts& facts : all) {
        if (facts.isThere || (isFirst && !present.contains(facts.tag)))
            known.append(facts);
    }
    return known;
}

} // namespace

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
    const bool isFirst = !m_areWritten;
    m_areWritten = true;
    // Without a module, the page says so.
    modules::write(modules::plan(knownFacts(isFirst)).modules,
            {m_folder.path(), QStringLiteral("Instrument"), modules::Place::Temporary});
}

} // namespace uiutils::qmltool
