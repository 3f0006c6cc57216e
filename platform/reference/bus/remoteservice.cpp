#include "remoteservice_p.h"

#include "busclient_p.h"
#include "bustexts_p.h"
#include "descriptioncodec_p.h"
#include "itemchanges_p.h"
#include "protocol_p.h"
#include "serviceproperties_p.h"
#include "valuecodec_p.h"

#include "embedded/descriptioncheck_p.h"
#include "embedded/texts_p.h"

#include <QPointer>

namespace kiv::bus {

namespace {

using embedded::ItemDescription;
using embedded::ItemField;
using embedded::ItemState;
using embedded::Outcome;
using embedded::ServiceFileTexts;

/// More than any service has; one that sends more is ill.
constexpr int mostItems = 200 * 1000;

} // namespace

RemoteService::RemoteService(const QString& name, Connection* connection, QObject* parent)
    : QObject(parent)
    , m_name(name)
    , m_busName(bus::busName(name))
    , m_path(bus::objectPath(name))
    , m_connection(connection)
    , m_sharedClient(new BusClient(this, this))
    , m_calls(name, m_path, connection)
{
}

RemoteService::~RemoteService() = default;

void RemoteService::setOwner(const QByteArray& owner)
{
    m_isOwnerKnown = true;
    if (owner == m_owner)
        return;
    m_owner = owner;
    m_calls.setOwner(owner);
    ++m_session;
    m_isLoading = !owner.isEmpty();
    m_isReading = false;
    m_refusal.clear();
    m_mounts.clear();
    m_snapshot = Snapshot();
    if (closeItems() && owner.isEmpty())
        Q_EMIT settled();
}

/// Ends what clients have of the items. Returns false when somebody who heard of that has ended this as well.
bool RemoteService::closeItems()
{
    const QPointer<RemoteService> self(this);
    m_numbered.clear();
    if (isReachable()) {
        m_items.clear();
        if (self)
            Q_EMIT itemsChanged();
    }
    return self;
}

void RemoteService::giveUp(const QString& reason)
{
    // What it was asked for is not wanted any more.
    ++m_session;
    m_isReading = false;
    qWarning("%s", qUtf8Printable(reason));
    m_refusal = reason;
    m_isLoading = false;
    // What it said before is not known to hold.
    if (closeItems())
        Q_EMIT settled();
}

// --- Reading -------------------------------------------------------------------------------------

Message RemoteService::newCall(const char* interface, const char* member) const
{
    return m_connection->newCall(m_owner, m_path, interface, member);
}

void RemoteService::ask(const Message& call, const Connection::Answer& answer)
{
    m_connection->call(call, patienceMs, this, [this, answer, session = m_session](const Message& reply) {
        if (session != m_session || !m_connection->isReady())
            return;
        if (!Connection::isTimeout(reply)) {
            answer(reply);
            return;
        }
        // It may be stopped, and wake up later.
        ++m_session;
        load();
    });
}

void RemoteService::load()
{
    const Message properties = newCall(propertiesInterface, "GetAll");
    Writer(properties).text(QString::fromLatin1(serviceInterface));
    ask(properties, [this](const Message& reply) { onProperties(reply); });
    ask(newCall(serviceInterface, "Subscribe"), [this](const Message& reply) { onSubscribed(reply); });
    m_serial = 0;
    m_unacknowledged = 0;
    m_unacknowledgedBytes = 0;
    readSnapshot();
}

void RemoteService::onProperties(const Message& reply)
{
    const QVariantMap properties = readProperties(reply);
    const QString theirs = properties.value(QStringLiteral("Version")).toString();
    if (theirs.section(QLatin1Char('.'), 0, 0) == QString::number(majorVersion)) {
        m_mounts = cleanPaths(properties.value(QStringLiteral("Mounts")));
        m_calls.setKnowsBatches(theirs.section(QLatin1Char('.'), 1, 1).toInt() >= minorVersionOfBatches);
        return;
    }
    giveUp(theirs.isEmpty()
                    ? BusTexts::tr("The service %1 does not say which version of the interface it has: %2")
                              .arg(m_name, reply.errorText())
                    : BusTexts::tr("The service %1 has version %2 of the interface, and this program knows version %3. "
                                   "Use programs of one release.")
                              .arg(m_name, theirs, version));
}

void RemoteService::onSubscribed(const Message& reply)
{
    m_serial = 0;
    if (reply.isError())
        giveUp(BusTexts::tr("The service %1 takes no more clients: %2").arg(m_name, reply.errorText()));
}

void RemoteService::readSnapshot()
{
    m_snapshot = Snapshot();
    m_isReading = true;
    ++m_readings;
    askForPage(0);
}

void RemoteService::askForPage(quint32 from)
{
    const Message call = newCall(serviceInterface, "GetItems");
    Writer writer(call);
    writer.text(QString());
    writer.uint32(from);
    writer.uint32(0);
    // A page that was asked for before the list changed belongs to another list.
    ask(call, [this, reading = m_readings](const Message& reply) {
        if (reading == m_readings)
            onPage(reply);
    });
}

void RemoteService::onPage(const Message& reply)
{
    if (!m_isReading)
        return;
    if (reply.isError()) {
        giveUp(BusTexts::tr("The items of the service %1 cannot be read: %2").arg(m_name, reply.errorText()));
        return;
    }
    Reader reader(reply);
    const quint64 generation = reader.uint64();
    reader.uint64();
    if (!m_snapshot.items.isEmpty() && generation != m_snapshot.generation) {
        readSnapshot();
        return;
    }
    m_snapshot.generation = generation;
    const int before = m_snapshot.items.size();
    const bool isSound = readPage(reader);
    const quint32 next = reader.uint32();
    // A page without items that is not the last one would lead on for ever.
    if (!isSound || !reader.isGood() || (next > 0 && m_snapshot.items.size() == before)) {
        giveUp(BusTexts::tr("The items of the service %1 cannot be read: they are not what the interface says.")
                        .arg(m_name));
        return;
    }
    if (next > 0)
        askForPage(next);
    else
        adopt();
}

bool RemoteService::readPage(Reader& reader)
{
    if (!reader.enter('a', "(usa{sv})"))
        return false;
    while (!reader.atEnd() && reader.enter('r', "usa{sv}")) {
        const quint32 number = reader.uint32();
        ItemDescription item;
        item.id = reader.text();
        readDescription(reader, &item);
        reader.leave();
        // Items come in the order of their numbers, which begin at 1.
        if (number != quint32(m_snapshot.items.size()) + 1 || number > mostItems)
            return false;
        m_snapshot.items.append(item);
    }
    reader.leave();
    return reader.isGood();
}

/// Takes the items that were read for those of the service.
void RemoteService::adopt()
{
    const Snapshot snapshot = std::exchange(m_snapshot, Snapshot());
    const QPointer<RemoteService> self(this);
    const int session = m_session;
    m_isReading = false;
    m_isLoading = false;
    m_generation = snapshot.generation;
    const int before = m_items.size();
    const bool isNew = !isReachable();
    // Whoever hears of an item's end may end anything.
    if (!removeOthers(snapshot.items))
        return;
    const int kept = m_items.size();
    const QVector<ItemChange> changes = takeItems(snapshot.items);
    const bool isListChanged = isNew || kept != before || m_items.size() != kept;
    m_items.open();
    bus::take(changes);
    if (self && session == m_session && isListChanged)
        Q_EMIT itemsChanged();
    if (self && session == m_session)
        Q_EMIT settled();
}

/// Removes the items that are not among these, or are others now. Returns false when nothing may be touched any more.
bool RemoteService::removeOthers(const QVector<ItemDescription>& items)
{
    QHash<QString, const ItemDescription*> byId;
    for (const ItemDescription& item : items)
        byId.insert(item.id, &item);
    const QPointer<RemoteService> self(this);
    const int session = m_session;
    m_numbered.clear();
    for (const StatePtr& state : m_items.inOrder()) {
        const ItemDescription* now = byId.value(state->description.id);
        if (now && isSameItem(state->description, *now))
            continue;
        m_items.remove(state->description.id);
        if (!self || session != m_session)
            return false;
    }
    return true;
}

/// Adds the items that are new and returns what became of the others.
QVector<ItemChange> RemoteService::takeItems(const QVector<ItemDescription>& items)
{
    QVector<ItemChange> changes;
    m_numbered.reserve(items.size() + 1);
    m_numbered = {nullptr};
    for (const ItemDescription& item : items) {
        StatePtr state = m_items.find(item.id);
        const bool isTwice = state && m_numbered.value(int(state->position)) == state;
        const QString problem = isTwice ? ServiceFileTexts::tr("the id %1 stands twice").arg(item.id)
                : state                 ? QString()
                                        : itemProblem(item);
        if (!problem.isEmpty()) {
            qWarning("The item %s of the service %s is left out: %s", qUtf8Printable(item.id), qUtf8Printable(m_name),
                    qUtf8Printable(problem));
            state.reset();
        } else if (state) {
            const QVector<FieldChange> fields = differences(state->description, item);
            for (const FieldChange& field : fields)
                changes += ItemChange {state, field};
        } else {
            state = std::make_shared<ItemState>(item);
            m_items.add(state);
        }
        if (state)
            state->position = quint64(m_numbered.size());
        m_numbered += state;
    }
    return changes;
}

// --- Hearing -------------------------------------------------------------------------------------

void RemoteService::hear(const Message& signal)
{
    if (signal.path() != m_path || !m_refusal.isEmpty())
        return;
    if (signal.isSignal(serviceInterface, "ItemsChanged") && signal.signature() == "tta(uyv)") {
        hearChanges(signal);
    } else if (signal.isSignal(serviceInterface, "SigError") && signal.signature() == "s") {
        ++m_serial;
        const QString text = Reader(signal).text();
        countMessage(sizeOf(text));
        Q_EMIT errorReported(text);
    }
}

void RemoteService::hearChanges(const Message& signal)
{
    Reader reader(signal);
    const quint64 generation = reader.uint64();
    const quint64 serial = reader.uint64();
    const bool isInOrder = serial == ++m_serial;
    m_serial = serial;
    const quint64 expected = m_isReading ? m_snapshot.generation : m_generation;
    const bool isFirstPageMissing = m_isReading && m_snapshot.items.isEmpty();
    if (!isInOrder || (generation != expected && !isFirstPageMissing)) {
        countMessage(0);
        readSnapshot();
        return;
    }
    int bytes = 0;
    QVector<ItemChange> changes;
    if (reader.enter('a', "(uyv)")) {
        while (!reader.atEnd() && reader.enter('r', "uyv")) {
            bytes += readChange(reader, &changes);
            reader.leave();
        }
    }
    countMessage(bytes);
    bus::take(changes);
}

/// Puts a change where it belongs and returns about how many bytes it took.
int RemoteService::readChange(Reader& reader, QVector<ItemChange>* changes)
{
    const quint32 number = reader.uint32();
    const quint8 code = reader.byte();
    FieldChange change;
    change.field = ItemField(code & ~withoutValue);
    const StatePtr state = m_isReading ? nullptr : m_numbered.value(int(number));
    if (change.field == ItemField::Choices && reader.enterIfNext('v', "a(issb)")) {
        change.choices = readChoices(reader);
        reader.leave();
    } else {
        change.value = readValue(reader, state ? state->description.value : QVariant());
    }
    const int bytes = changeSize(change.value, change.choices);
    if (code & withoutValue)
        change.value = QVariant();
    if (number == 0) {
        if (code == fieldMounts)
            m_mounts = cleanPaths(change.value);
    } else if (m_isReading) {
        // What is still to be read will be newer than this.
        if (number <= quint32(m_snapshot.items.size()))
            bus::apply(change, &m_snapshot.items[int(number) - 1]);
    } else if (state) {
        changes->append({state, change});
    }
    return bytes;
}

void RemoteService::countMessage(int bytes)
{
    ++m_unacknowledged;
    m_unacknowledgedBytes += bytes;
    if (m_unacknowledged < acknowledgedMessages && m_unacknowledgedBytes < acknowledgedBytes)
        return;
    m_unacknowledged = 0;
    m_unacknowledgedBytes = 0;
    const Message call = newCall(serviceInterface, "Acknowledge");
    Writer(call).uint64(m_serial);
    Connection::expectNoReply(call);
    m_connection->send(call);
}

// --- Calling -------------------------------------------------------------------------------------

Outcome RemoteService::setItem(const QString& id, const QVariant& value, int timeoutMs)
{
    return isReachable() ? m_calls.setItem(id, value, timeoutMs) : gone();
}

Outcome RemoteService::sendAction(const QString& id, const QString& argument, int timeoutMs)
{
    return isReachable() ? m_calls.sendAction(id, argument, timeoutMs) : gone();
}

Outcome RemoteService::gone() const
{
    return m_refusal.isEmpty() ? m_calls.gone() : Outcome {false, m_refusal};
}

} // namespace kiv::bus
