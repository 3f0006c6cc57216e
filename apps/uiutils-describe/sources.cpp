#include "sources.h"

#include "common/complaint.h"
#include "common/nearest.h"
#include "names/itemfacts.h"
#include "service/manifest.h"

#include <bus/busbackend.h>
#include <embedded/embeddedbackend.h>
#include <kiv/kivclientinterface.h>

#include <QFileInfo>

namespace uiutils::describe {

using apps::complain;
using kiv::bus::BusBackend;
using kiv::embedded::EmbeddedBackend;

namespace {

constexpr int timeoutMs = 5000;

} // namespace

Sources::Sources() = default;

Sources::~Sources() = default;

bool Sources::open(const Options& options)
{
    if (!(options.isBus ? openBus() : openFiles(options.services)) || !choose(options.wanted))
        return false;
    for (const QString& name : qAsConst(m_names))
        new Manifest(KIVClientInterface::getSessionBusClient(name), names::tagOf(name), name, &m_manifests);
    return true;
}

bool Sources::openFiles(const QStringList& paths)
{
    auto backend = std::make_unique<EmbeddedBackend>();
    QStringList problems;
    for (const QString& path : paths) {
        QString problem;
        if (!QFileInfo(path).isFile())
            problems += backend->loadFolders({path});
        else if (!backend->loadFile(path, &problem))
            problems += problem;
    }
    m_names = backend->serviceNames();
    m_backend = std::move(backend);
    for (const QString& problem : qAsConst(problems))
        complain(problem);
    if (problems.isEmpty() && m_names.isEmpty())
        complain(QStringLiteral("There is no service file in %1. Name a folder that has some, or a file, with "
                                "--services.")
                         .arg(paths.join(QStringLiteral(", "))));
    return problems.isEmpty() && !m_names.isEmpty();
}

bool Sources::openBus()
{
    auto backend = std::make_unique<BusBackend>();
    BusBackend* const bus = backend.get();
    const bool areRead = bus->waitForServices(timeoutMs, [bus] { return !bus->problem().isEmpty(); });
    m_names = bus->serviceNames();
    m_backend = std::move(backend);
    QString problem = bus->problem();
    if (problem.isEmpty() && !areRead)
        problem = QStringLiteral("Not every service on the bus has answered within %1 ms.").arg(timeoutMs);
    if (problem.isEmpty() && m_names.isEmpty())
        problem = QStringLiteral("There is no service on the bus. Start one, kivd for example, and try again.");
    if (!problem.isEmpty())
        complain(problem);
    return problem.isEmpty();
}

bool Sources::choose(const QStringList& wanted)
{
    if (wanted.isEmpty())
        return true;
    QStringList chosen;
    bool areKnown = true;
    for (const QString& name : wanted) {
        QStringList meant;
        for (const QString& service : qAsConst(m_names)) {
            if (service == name || names::tagOf(service) == name)
                meant += service;
        }
        if (meant.isEmpty()) {
            areKnown = false;
            const QStringList near = apps::nearest(name, m_names);
            complain(QStringLiteral("There is no service \"%1\". %2: %3.")
                             .arg(name, near.isEmpty() ? QStringLiteral("There are") : QStringLiteral("Nearest"),
                                     (near.isEmpty() ? m_names : near).join(QStringLiteral(", "))));
        }
        chosen += meant;
    }
    chosen.removeDuplicates();
    chosen.sort();
    m_names = chosen;
    return areKnown;
}

} // namespace uiutils::describe
