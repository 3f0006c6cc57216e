#include "servicepublication_p.h"

#include "bustexts_p.h"
#include "descriptioncodec_p.h"
#include "fieldcodec_p.h"
#include "protocol_p.h"
#include "serviceproperties_p.h"
#include "valuecodec_p.h"

#include "embedded/servicedata_p.h"

#include <QRandomGenerator>

#include <algorithm>

namespace kiv::bus {

namespace {

using embedded::EmbeddedService;
using embedded::ItemDescription;
using embedded::ItemField;
using embedded::ItemState;
using embedded::Outcome;
using embedded::ServiceData;

/// Calls that wait for a slow service, of all clients.
constexpr int mostRequests = 1024;
constexpr int mostSubscribers = 256;
/// Errors that a client which does not listen is told later.
constexpr int mostErrors = 32;

constexpr ChangedItem::Fields bit(ItemField field)
{
    return ChangedItem::Fields(1) << unsigned(field);
}

ItemField firstOf(ChangedItem::Fields fields)
{
    return ItemField(qCountTrailingZeroBits(fields));
}

/// A call may leave the interface out.
bool isKnownInterface(const QByteArray& interface)
{
    return interface.isEmpty() || interface == serviceInterface || interface == propertiesInterface
            || interface == introspectableInterface || interface == "org.freedesktop.DBus.Peer";
}

} // namespace

ServicePublication::ServicePublication(EmbeddedService* service, Connection* connection, QObject* parent)
    : QObject(parent)
    , key(service)
    , m_service(service)
    , m_connection(connection)
    , m_busName(bus::busName(service->name()))
    , m_objectPath(bus::objectPath(service->name()))
    , m_wasReachable(service->isReachable())
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ServicePublication::sendChanges);
    connect(service, &EmbeddedService::itemsChanged, this, &ServicePublication::onItemsChanged);
    connect(service, &EmbeddedService::errorReported, this, &ServicePublication::onError);
    ServiceData& data = ServiceData::of(*service);
    data.items.setWatcher(this);
    data.mountsChanged = [this] {
        m_changes.note(0, ChangedItem::Fields(1) << fieldMounts);
        changeSoon();
    };
    numberItems();
}

ServicePublication::~ServicePublication()
{
    if (!m_service)
        return;
    ServiceData& data = ServiceData::of(*m_service);
    data.items.setWatcher(nullptr);
    data.mountsChanged = nullptr;
}

void ServicePublication::forgetAll()
{
    isOwner = false;
    m_subscribers.clear();
}

// --- What changes --------------------------------------------------------------------------------

void ServicePublication::numberItems()
{
    m_generation = QRandomGenerator::system()->generate64();
    m_items = ServiceData::of(*m_service).items.inOrder();
    m_items.prepend(nullptr);
    for (int number = 1; number < m_items.size(); ++number)
        m_items.at(number)->number = quint32(number);
    m_changes.setEnd(m_items.size());
}

void ServicePublication::fieldChanged(ItemState* state, ItemField field)
{
    // One that came while the service cannot be reached gets its number when that returns.
    if (state->number == 0)
        return;
    m_changes.note(state->number, bit(field));
    changeSoon();
}

void ServicePublication::onItemsChanged()
{
    const bool isReachable = m_service->isReachable();
    if (isReachable != m_wasReachable) {
        m_wasReachable = isReachable;
        // Those who subscribed lose the owner of the name, and begin anew when there is one again.
        m_subscribers.clear();
        Q_EMIT reachableChanged();
    }
    numberItems();
    for (auto& [client, subscriber] : m_subscribers) {
        subscriber.changes.forgetItems();
        subscriber.isOutdated = true;
    }
    changeSoon();
}

void ServicePublication::onError(const QString& text)
{
    for (auto& [client, subscriber] : m_subscribers) {
        if (subscriber.errors.size() < mostErrors)
            subscriber.errors += withoutNul(text.left(10 * 1000));
    }
    changeSoon();
}

/// One message tells of all that changes within a turn of the event loop.
void ServicePublication::changeSoon()
{
    if (!m_timer.isActive())
        m_timer.start(0);
}

void ServicePublication::sendChanges()
{
    const QVector<ChangedItem> changes = m_changes.take();
    for (auto& [client, subscriber] : m_subscribers) {
        subscriber.changes.unite(changes);
        serve(client);
    }
}

/// Sends a client what it has to hear, as far as it may be sent more.
void ServicePublication::serve(const QByteArray& client)
{
    Subscriber& subscriber = m_subscribers.at(client);
    while (subscriber.mayBeSent() && (subscriber.isOutdated || !subscriber.changes.isEmpty())) {
        if (!sendMessage(client, subscriber))
            return;
    }
    sendErrors(client, subscriber);
}

bool ServicePublication::sendMessage(const QByteArray& client, Subscriber& subscriber)
{
    const Message message = m_connection->newSignal(client, m_objectPath, serviceInterface, "ItemsChanged");
    if (!message)
        return false;
    Writer writer(message);
    writer.uint64(m_generation);
    writer.uint64(subscriber.lastSerial() + 1);
    writer.open('a', "(uyv)");
    int size = 64;
    while (size < largestPage && !subscriber.changes.isEmpty()) {
        const ChangedItem change = subscriber.changes.first();
        const ItemField field = firstOf(change.fields);
        size += appendChange(writer, change.number, field);
        subscriber.changes.removeFirst(bit(field));
    }
    writer.close();
    subscriber.isOutdated = false;
    subscriber.countMessage(size);
    return writer.isGood() && m_connection->send(message);
}

/// Returns about how many bytes it took.
int ServicePublication::appendChange(Writer& writer, quint32 number, ItemField field) const
{
    writer.open('r', "uyv");
    writer.uint32(number);
    const int size = number == 0 ? writeField(writer, field, mountsOf(*m_service))
                                 : writeField(writer, field, *m_items.at(int(number)));
    writer.close();
    return size;
}

void ServicePublication::sendErrors(const QByteArray& client, Subscriber& subscriber)
{
    while (subscriber.mayBeSent() && !subscriber.errors.isEmpty()) {
        const Message message = m_connection->newSignal(client, m_objectPath, serviceInterface, "SigError");
        if (!message)
            return;
        const QString text = subscriber.errors.takeFirst();
        subscriber.countMessage(64 + 3 * text.size());
        Writer(message).text(text);
        m_connection->send(message);
    }
}

// --- What is asked -------------------------------------------------------------------------------

void ServicePublication::handle(const Message& call)
{
    struct Known
    {
        const char* interface;
        const char* member;
        const char* signature;
        Method method;
    };
    static constexpr Known methods[] = {
            {serviceInterface, "GetItems", "suu", &ServicePublication::getItems},
            {serviceInterface, "Subscribe", "", &ServicePublication::subscribe},
            {serviceInterface, "Unsubscribe", "", &ServicePublication::unsubscribe},
            {serviceInterface, "Acknowledge", "t", &ServicePublication::acknowledge},
            {serviceInterface, "SetItem", "sv", &ServicePublication::setItem},
            {serviceInterface, "SendAction", "ss", &ServicePublication::sendAction},
            {serviceInterface, "SendBatch", "ss", &ServicePublication::sendBatch},
            {propertiesInterface, "Get", "ss", &ServicePublication::getProperty},
            {propertiesInterface, "GetAll", "s", &ServicePublication::getProperties},
            {propertiesInterface, "Set", "ssv", &ServicePublication::setProperty},
            {introspectableInterface, "Introspect", "", &ServicePublication::introspect},
    };
    const QByteArray interface = call.interface();
    const QByteArray member = call.member();
    const auto known = std::find_if(std::begin(methods), std::end(methods), [&](const Known& method) {
        return member == method.member && (interface.isEmpty() || interface == method.interface);
    });
    if (known == std::end(methods)) {
        m_connection->reject(call, isKnownInterface(interface) ? errorUnknownMethod : errorUnknownInterface,
                BusTexts::tr("There is no method %1.%2.").arg(QString::fromUtf8(interface), QString::fromUtf8(member)));
        return;
    }
    if (call.signature() != known->signature) {
        m_connection->reject(call, errorInvalidArguments,
                BusTexts::tr("%1 takes arguments of the signature \"%2\", not \"%3\".")
                        .arg(QString::fromLatin1(known->member), QString::fromLatin1(known->signature),
                                QString::fromLatin1(call.signature())));
        return;
    }
    (this->*known->method)(call);
}

void ServicePublication::getItems(const Message& call)
{
    Reader arguments(call);
    const QString prefix = arguments.text();
    const quint32 from = arguments.uint32();
    const quint32 wanted = arguments.uint32();
    const Message reply = Connection::newReply(call);
    Writer writer(reply);
    const auto subscriber = m_subscribers.find(call.sender());
    writer.uint64(m_generation);
    writer.uint64(subscriber == m_subscribers.end() ? 0 : subscriber->second.lastSerial());
    writer.open('a', "(usa{sv})");
    quint32 position = std::min(from, quint32(m_items.size()) - 1);
    quint32 count = 0;
    int size = 128;
    for (; position + 1 < quint32(m_items.size()) && (wanted == 0 || count < wanted); ++position) {
        const ItemDescription& item = m_items.at(int(position) + 1)->description;
        if (!item.id.startsWith(prefix))
            continue;
        const ItemDescription fitting = travelling(item);
        size += descriptionSize(fitting);
        if (count > 0 && size > largestPage)
            break;
        writer.open('r', "usa{sv}");
        writer.uint32(position + 1);
        writer.text(item.id);
        writeDescription(writer, fitting);
        writer.close();
        ++count;
    }
    writer.close();
    const bool isEnd = position + 1 >= quint32(m_items.size());
    writer.uint32(isEnd ? 0 : position);
    if (!writer.isGood() || !m_connection->send(reply))
        m_connection->reject(call, errorLimits, BusTexts::tr("The items of the service are too large for a message."));
}

void ServicePublication::subscribe(const Message& call)
{
    const QByteArray client = call.sender();
    if (m_subscribers.size() >= mostSubscribers && m_subscribers.count(client) == 0) {
        m_connection->reject(call, errorLimits, BusTexts::tr("The service has as many clients as it can serve."));
        return;
    }
    // What changed before is in the answers to GetItems, which come later than this one.
    m_subscribers[client] = Subscriber();
    const Message reply = Connection::newReply(call);
    Writer(reply).uint64(m_generation);
    m_connection->send(reply);
}

void ServicePublication::unsubscribe(const Message& call)
{
    m_subscribers.erase(call.sender());
    m_connection->send(Connection::newReply(call));
}

void ServicePublication::acknowledge(const Message& call)
{
    const quint64 serial = Reader(call).uint64();
    const auto subscriber = m_subscribers.find(call.sender());
    if (subscriber != m_subscribers.end() && subscriber->second.acknowledge(serial))
        serve(call.sender());
    m_connection->send(Connection::newReply(call));
}

void ServicePublication::setItem(const Message& call)
{
    Reader arguments(call);
    const QString id = arguments.text();
    const QVariant value = readValue(arguments);
    if (!arguments.isGood()) {
        m_connection->reject(call, errorInvalidArguments, BusTexts::tr("The value cannot be read."));
        return;
    }
    carryOutLater(call, 0, Answer::Nothing,
            [id, value](ServiceData& service) { return setSetting(service, id, value); });
}

void ServicePublication::carryOutAction(const Message& call, Answer answer)
{
    Reader arguments(call);
    const QString id = arguments.text();
    const QString argument = arguments.text();
    carryOutLater(call, actionDelay(ServiceData::of(*m_service), id), answer,
            [id, argument](ServiceData& service) { return carryOut(service, id, argument); });
}

/// Carries out a request when the service's own time for it is over, and answers.
void ServicePublication::carryOutLater(const Message& call, int delayMs, Answer answer, const Request& request)
{
    if (m_requests >= mostRequests) {
        m_connection->reject(call, errorLimits, BusTexts::tr("The service has too much to do. Try again later."));
        return;
    }
    // Who hears of what is done may end the service, its publication and the connection.
    const QPointer<ServicePublication> self(this);
    const QPointer<Connection> connection = m_connection;
    const auto carryOut = [self, connection, call, answer, request] {
        if (!self || !self->m_service)
            return;
        if (!self->m_service->isReachable()) {
            connection->reject(call, errorRejected,
                    BusTexts::tr("The service %1 was withdrawn before it could answer.").arg(self->m_service->name()));
            return;
        }
        const Outcome outcome = request(ServiceData::of(*self->m_service));
        if (!connection)
            return;
        if (!outcome.isDone && answer != Answer::Everything) {
            connection->reject(call, errorRejected, withoutNul(outcome.text));
            return;
        }
        const Message reply = Connection::newReply(call);
        Writer writer(reply);
        if (answer == Answer::Everything)
            writer.boolean(outcome.isDone);
        if (answer != Answer::Nothing)
            writer.text(withoutNul(outcome.text));
        if (answer == Answer::Everything)
            writeTexts(writer, outcome.rejected);
        connection->send(reply);
    };
    const qint64 delay = qint64(ServiceData::of(*m_service).delayMs) + delayMs;
    if (delay == 0) {
        carryOut();
        return;
    }
    ++m_requests;
    QTimer::singleShot(std::chrono::milliseconds(delay), this, [this, carryOut] {
        --m_requests;
        carryOut();
    });
}

} // namespace kiv::bus
