#include "client.h"

#include "benchmarks/memory.h"
#include "benchmarks/timing.h"
#include "commands.h"
#include "ownrecording.h"
#include "page.h"
#include "roles.h"
#include "settling.h"
#include "workload.h"

#include "service/manifest.h"

#include <bus/busbackend.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QCoreApplication>

#include <optional>

namespace bench {

namespace {

KIVClientInterface* connected(kiv::bus::BusBackend& backend)
{
    constexpr int patienceMs = 30'000;
    if (!backend.waitForServices(patienceMs))
        qFatal("The services cannot be reached: %s", qPrintable(backend.problem()));
    KIVClientInterface* client = backend.serviceClient(serviceName(), nullptr);
    if (!client->isValid())
        qFatal("There is no service.");
    return client;
}

/// Wall-clock and CPU milliseconds until all items are there, and CPU milliseconds of wrapping them.
void answerStart()
{
    const double wall = now();
    const double cpu = cpuMilliseconds();
    kiv::bus::BusBackend backend;
    KIVClientInterface* client = connected(backend);
    const double wallTime = (now() - wall) * 1e3;
    const double cpuTime = cpuMilliseconds() - cpu;
    if (client->getItemIds().size() != itemCount)
        qFatal("There are %d items.", int(client->getItemIds().size()));
    const double wrapping = measured([client] { new Manifest(client, QString(), serviceName()); });
    answer({wallTime, cpuTime, wrapping});
}

/// Bytes of the heap when every item has its object.
void answerMemory()
{
    const double before = heapBytes();
    auto* backend = new kiv::bus::BusBackend;
    const KIVClientInterface* client = connected(*backend);
    for (int item = 0; item < itemCount; ++item)
        client->getItem(itemId(item));
    answer({heapBytes() - before});
}

} // namespace

Client::Client() = default;
Client::~Client() = default;

void Client::open(int count, int first, int step)
{
    m_page.reset();
    m_manifest.reset();
    m_backend.reset();
    m_backend = std::make_unique<kiv::bus::BusBackend>();
    m_client = connected(*m_backend);
    m_manifest = std::make_unique<Manifest>(m_client, QString(), serviceName());
    m_page = std::make_unique<Page>(
            everyItem(count, first, step), [](QQmlContext* context) { Manifest::setQmlContext(context); });
}

void Client::watch(int item)
{
    disconnect(m_watched);
    m_item = item;
    m_watched = m_page->watch(item, this, "onChanged()");
}

void Client::onChanged()
{
    const double arrived = now();
    answer({(arrived - m_page->shown(m_item).toDouble()) * 1e6});
}

void Client::settle(int changes) const
{
    answerWhenSettled(
            changes,
            [this](int item, int count) {
                return m_client->getItem(itemId(item))->getValue() == lastValue(item, count);
            },
            [this, changes] { return m_page->isSettled(changes); });
}

void Client::record(bool isCompressed)
{
    m_recording = std::make_unique<OwnRecording>(m_client, isCompressed);
}

bool Client::hasRecorded(int loads)
{
    return m_recording->isComplete(loads);
}

int clientRole()
{
    Client client;
    const Commands commands({
            {QStringLiteral("page"),
                    [&client](const QVector<int>& arguments) {
                        client.open(arguments.at(0), arguments.at(1), arguments.at(2));
                        answer({});
                    }},
            {QStringLiteral("watch"),
                    [&client](const QVector<int>& arguments) {
                        client.watch(arguments.at(0));
                        answer({});
                    }},
            {QStringLiteral("cpu"), [](const QVector<int>&) { answer({cpuMilliseconds()}); }},
            {QStringLiteral("settle"), [&client](const QVector<int>& arguments) { client.settle(arguments.at(0)); }},
            {QStringLiteral("record"),
                    [&client](const QVector<int>& arguments) {
                        client.record(arguments.at(0) != 0);
                        answer({});
                    }},
            {QStringLiteral("recorded"),
                    [&client](
                            const QVector<int>& arguments) { answer({double(client.hasRecorded(arguments.at(0)))}); }},
            {QStringLiteral("start"), [](const QVector<int>&) { answerStart(); }},
            {QStringLiteral("memory"), [](const QVector<int>&) { answerMemory(); }},
    });
    return QCoreApplication::exec();
}

} // namespace bench
