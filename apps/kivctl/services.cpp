#include "services.h"

#include "common/nearest.h"
#include "common/startup.h"

#include "output.h"
#include "texts.h"

#include <bus/busbackend.h>
#include <embedded/embeddedbackend.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

namespace uiutils::kivctl {

using apps::exitFailed;
using apps::nearest;
using kiv::bus::BusBackend;
using kiv::embedded::EmbeddedBackend;

namespace {

const QLatin1String actionCategory(":action:");
const QLatin1String resultCategory(":result:");
const QLatin1String manifestWord(":manifest:");
const QLatin1String applyWord(":applyconfig:");
const QLatin1String saveWord(":saveconfig:");

/// The id of the manifest that the action belongs to, if it belongs to one.
QString manifestOfAction(const QString& id)
{
    for (const QLatin1String word : {applyWord, saveWord}) {
        const int length = id.size() - actionCategory.size() - word.size();
        if (length > 0 && id.startsWith(actionCategory) && id.endsWith(word))
            return resultCategory + id.mid(actionCategory.size(), length) + manifestWord;
    }
    return QString();
}

} // namespace

Services::Services(const Options& options)
    : m_options(options)
{
}

Services::~Services() = default;

bool Services::open(const Question& isEnough, int* exitStatus)
{
    return m_options.platform == Options::Bus ? openBus(isEnough, exitStatus) : openEmbedded(exitStatus);
}

KIVClientInterface* Services::openFor(const QString& service, int* exitStatus)
{
    const auto isReady = [this, &service] {
        const KIVClientInterface* const one = client(service);
        return one && one->isValid();
    };
    if (!open(isReady, exitStatus))
        return nullptr;
    if (isReady()) {
        // Nothing that is asked of this service depends on the others, which may not have been read yet.
        m_isComplete = true;
        return client(service);
    }
    *exitStatus = unknownService(service);
    return nullptr;
}

bool Services::openBus(const Question& isEnough, int* exitStatus)
{
    m_bus = std::make_unique<BusBackend>();
    m_isComplete = m_bus->waitForServices(
            m_options.timeoutMs, [this, &isEnough] { return !m_bus->problem().isEmpty() || (isEnough && isEnough()); });
    if (m_bus->problem().isEmpty())
        return true;
    *exitStatus = complain(m_bus->problem(), exitUnreachable);
    return false;
}

bool Services::openEmbedded(int* exitStatus)
{
    m_embedded = std::make_unique<EmbeddedBackend>();
    m_isComplete = true;
    *exitStatus = exitFailed;
    return apps::useRoot(m_options.root) && apps::loadServices(*m_embedded, m_options.serviceFolders, m_options.root);
}

QStringList Services::names() const
{
    return m_bus ? m_bus->serviceNames() : m_embedded->serviceNames();
}

QVector<KIVClientInterface*> Services::clients() const
{
    QVector<KIVClientInterface*> reachable;
    const QStringList all = names();
    for (const QString& name : all) {
        KIVClientInterface* const one = KIVClientInterface::getSessionBusClient(name);
        if (one && one->isValid())
            reachable += one;
    }
    return reachable;
}

KIVClientInterface* Services::client(const QString& service) const
{
    return names().contains(service) ? KIVClientInterface::getSessionBusClient(service) : nullptr;
}

KIVClientInterface* Services::owner(const QString& id) const
{
    const QString manifest = manifestOfAction(id);
    const QVector<KIVClientInterface*> all = clients();
    for (KIVClientInterface* const one : all) {
        if (one->getItem(id) || (!manifest.isEmpty() && one->getItem(manifest)))
            return one;
    }
    return nullptr;
}

KIVClientItem* Services::item(const QString& id) const
{
    const KIVClientInterface* const one = owner(id);
    return one ? one->getItem(id) : nullptr;
}

int Services::incomplete() const
{
    return complain(
            Texts::tr("Not every service has answered within %1 ms.").arg(m_options.timeoutMs), exitUnreachable);
}

int Services::unknown(const QString& text, const QStringList& proposals) const
{
    if (names().isEmpty() && m_isComplete)
        return complain(Texts::tr("There is no service on the bus. Start kivd, and try again."), exitUnreachable);
    if (!m_isComplete)
        return incomplete();
    const QString near = proposals.join(QLatin1String(", "));
    return complain(near.isEmpty() ? text : Texts::tr("%1 Nearest: %2.").arg(text, near), exitUnknown);
}

int Services::unknownItems(const QStringList& ids) const
{
    QStringList known;
    const QVector<KIVClientInterface*> all = clients();
    for (const KIVClientInterface* const one : all)
        known += one->getItemIds();
    int exitStatus = exitUnknown;
    for (const QString& id : ids)
        exitStatus = unknown(Texts::tr("There is no item \"%1\".").arg(id), nearest(id, known));
    return exitStatus;
}

int Services::unknownService(const QString& name) const
{
    return unknown(Texts::tr("There is no service \"%1\".").arg(name), nearest(name, names()));
}

int Services::failed(const KIVClientInterface& client) const
{
    return complain(client.getLastError(), client.isValid() ? exitFailed : exitUnreachable);
}

bool Services::store()
{
    if (!m_embedded)
        return true;
    bool isStored = true;
    const QVector<KIVClientInterface*> all = clients();
    QObject context;
    for (const KIVClientInterface* const one : all) {
        QObject::connect(one, &KIVClientInterface::SigError, &context, [&isStored](const QString& error) {
            isStored = false;
            complain(error, exitFailed);
        });
    }
    // Settings are stored when the event loop is reached.
    QCoreApplication::processEvents();
    return isStored;
}

QString batchAction(const KIVClientInterface& client)
{
    const QStringList ids = client.getItemIds(resultCategory);
    for (const QString& id : ids) {
        if (id.endsWith(manifestWord) && id.size() > resultCategory.size() + manifestWord.size())
            return actionCategory
                    + id.mid(resultCategory.size(), id.size() - resultCategory.size() - manifestWord.size())
                    + applyWord;
    }
    return QString();
}

} // namespace uiutils::kivctl
