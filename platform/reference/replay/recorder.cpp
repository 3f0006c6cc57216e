#include "recorder_p.h"

#include "itemwords_p.h"
#include "jsonline_p.h"
#include "recordingentry_p.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivenumclientitem.h>

#include <QSet>

#include <algorithm>
#include <utility>

namespace kiv::replay {

namespace {

constexpr int lookMs = 200;
constexpr int itemsPerLook = 100;
constexpr int usualLine = 4096;
/// Most lines have it.
const QLatin1String valueField(",\"value\":");

/// What screens ask items for beside what has an accessor.
QStringList knownAttributes()
{
    return {QStringLiteral("precision"), QStringLiteral("formatter"), QStringLiteral("regex"),
            QStringLiteral("inputType"), QStringLiteral("scale"), QStringLiteral("mask"), QStringLiteral("lowerLimit"),
            QStringLiteral("upperLimit")};
}

} // namespace

Recorder::Clock clockFromNow()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

Recorder::Recorder(const Sink& sink, const Clock& clock)
    : m_sink(sink)
    , m_clock(clock ? clock : clockFromNow())
    , m_attributes(knownAttributes())
{
    // What is reserved is kept from line to line.
    m_line.reserve(usualLine);
    m_sink(headerLine());
    connect(&m_looks, &QTimer::timeout, this, [this] { lookAround(itemsPerLook); });
    m_looks.start(lookMs);
}

Recorder::~Recorder() = default;

void Recorder::follow(KIVClientInterface* client)
{
    std::unique_ptr<Followed>& service = m_services[client];
    if (service)
        return;
    service = std::make_unique<Followed>();
    service->client = client;
    appendField(&service->place, "service", client->getServiceName());
    Followed* const followed = service.get();
    connect(client, &KIVClientInterface::itemsChanged, this, [this, followed] { look(followed); });
    connect(client, &KIVClientInterface::SigError, this, [this, followed](const QString& error) {
        begin(followed->place);
        appendField(&m_line, "error", error);
        end();
    });
    connect(client, &QObject::destroyed, this, [this, client, followed] {
        lose(followed);
        m_services.erase(client);
    });
    look(followed);
}

void Recorder::look(Followed* service)
{
    if (!service->client->isValid()) {
        lose(service);
        return;
    }
    if (!service->isThere) {
        service->isThere = true;
        service->connections = std::make_unique<QObject>();
        m_counts.services += service->isCounted ? 0 : 1;
        service->isCounted = true;
        begin(service->place);
        QStringList ids;
        service->client->getItemList(service->client->getServiceName(), &ids);
        appendField(&m_line, "snapshot", ids.size());
        end();
    }
    takeItems(service);
}

void Recorder::lose(Followed* service)
{
    if (!service->isThere)
        return;
    service->isThere = false;
    service->connections.reset();
    service->items.clear();
    begin(service->place);
    appendField(&m_line, "gone", true);
    end();
}

/// Records which items have come and gone.
void Recorder::takeItems(Followed* service)
{
    QStringList ids;
    service->client->getItemList(service->client->getServiceName(), &ids);
    const QSet<QString> present(ids.cbegin(), ids.cend());
    for (auto it = service->items.begin(); it != service->items.end();) {
        if (present.contains(it->first)) {
            ++it;
            continue;
        }
        begin(it->second->place);
        appendField(&m_line, "removed", true);
        endChange();
        it = service->items.erase(it);
    }
    for (const QString& id : qAsConst(ids)) {
        KIVClientItem* const item = service->client->getItem(id);
        std::unique_ptr<Watched>& watched = service->items[id];
        if (!item || (watched && watched->item == item))
            continue;
        watched = std::make_unique<Watched>();
        watched->place = service->place;
        appendField(&watched->place, "id", id);
        watch(watched.get(), item, service->connections.get());
        describe(watched.get());
    }
}

void Recorder::watch(Watched* watched, KIVClientItem* item, const QObject* connections)
{
    watched->item = item;
    connect(item, &KIVClientItem::valueChanged, connections, [this, watched] { recordValue(watched); });
    connect(item, &KIVClientItem::unitsChanged, connections, [this, watched] { recordUnit(watched); });
    connect(item, &KIVClientItem::isReadyChanged, connections,
            [this, watched] { recordField(*watched, "ready", watched->item->isReady()); });
    connect(item, &KIVClientItem::qualityChanged, connections,
            [this, watched] { recordField(*watched, "quality", qualityWord(watched->item->getQualityCode())); });
    connect(item, &KIVClientItem::isApplicableChanged, connections,
            [this, watched] { recordField(*watched, "applicable", watched->item->isApplicable()); });
    const auto* const enumeration = qobject_cast<KIVEnumClientItem*>(item);
    const KIVEnumChoicesClientItem* const choices = enumeration ? enumeration->getChoices() : nullptr;
    if (!choices)
        return;
    connect(choices, &KIVEnumChoicesClientItem::valueChanged, connections, [this, watched] {
        begin(watched->place);
        m_line.append(",\"choices\":").append(choicesJson(*watched->item));
        endChange();
    });
}

void Recorder::describe(Watched* watched)
{
    const KIVClientItem& item = *watched->item;
    watched->quiet = quietFacts(item, m_attributes);
    watched->unit = ownUnit(item);
    watched->members = membersJson(item, watched->members);
    begin(watched->place);
    appendDescription(&m_line, item, watched->quiet, watched->members);
    end();
}

void Recorder::recordValue(Watched* watched)
{
    const KIVClientItem& item = *watched->item;
    // A value may be the first to show which types its members have.
    if (!watched->members.isEmpty() && membersJson(item, watched->members) != watched->members) {
        describe(watched);
        ++m_counts.changes;
        return;
    }
    begin(watched->place);
    m_line.append(valueField.data(), valueField.size());
    appendValue(&m_line, item.getValue());
    endChange();
}

/// The unit of a formatter follows the value without being recorded.
void Recorder::recordUnit(Watched* watched)
{
    const QString unit = ownUnit(*watched->item);
    if (unit == watched->unit)
        return;
    watched->unit = unit;
    recordField(*watched, "unit", unit);
}

void Recorder::recordQuiet(Watched* watched)
{
    const QuietFacts now = quietFacts(*watched->item, m_attributes);
    const QuietFacts before = std::exchange(watched->quiet, now);
    if (now == before)
        return;
    // Its end would have to be told as well; it is told anew.
    if (now.attributes != before.attributes) {
        describe(watched);
        ++m_counts.changes;
        return;
    }
    begin(watched->place);
    if (now.label != before.label)
        appendField(&m_line, "label", now.label);
    if (now.minimum != before.minimum || now.maximum != before.maximum) {
        appendField(&m_line, "minimum", now.minimum);
        appendField(&m_line, "maximum", now.maximum);
    }
    endChange();
}

void Recorder::recordField(const Watched& watched, const char* name, const QVariant& value)
{
    begin(watched.place);
    appendField(&m_line, name, value);
    endChange();
}

void Recorder::lookAround(int count)
{
    if (m_services.empty())
        return;
    auto service = m_services.lower_bound(m_lookedAt);
    // Once around all services is enough, also of few items.
    for (size_t turns = 0; turns <= m_services.size() && count > 0; ++turns) {
        if (service == m_services.end()) {
            service = m_services.begin();
            m_lookedAtItem.clear();
        }
        auto item = service->second->items.upper_bound(m_lookedAtItem);
        for (; item != service->second->items.end() && count > 0; ++item, --count) {
            m_lookedAtItem = item->first;
            if (item->second->item)
                recordQuiet(item->second.get());
        }
        if (item == service->second->items.end()) {
            ++service;
            m_lookedAtItem.clear();
        }
    }
    m_lookedAt = service == m_services.end() ? nullptr : service->first;
}

void Recorder::begin(const QByteArray& place)
{
    const qint64 now = m_clock();
    if (now != m_lineTime || m_lineBegin.isEmpty()) {
        m_lineTime = now;
        m_lineBegin = "{\"t\":" + QByteArray::number(now);
    }
    // Keeps what it has allocated.
    m_line.resize(m_lineBegin.size() + place.size());
    std::copy(place.cbegin(), place.cend(), std::copy(m_lineBegin.cbegin(), m_lineBegin.cend(), m_line.begin()));
}

/// Returns false when the line says too much to be read again.
bool Recorder::end()
{
    m_line.append("}\n", 2);
    if (!isReadable(m_line)) {
        ++m_counts.leftOut;
        return false;
    }
    m_sink(m_line);
    return true;
}

void Recorder::endChange()
{
    m_counts.changes += end() ? 1 : 0;
}

} // namespace kiv::replay
