#include "qtsender.h"

#include "commands.h"
#include "roles.h"

#include <QCoreApplication>
#include <QDBusMessage>

namespace bench {

namespace {

QVariantMap valueMap(const QVariant& value)
{
    return {{QStringLiteral("value"), value}};
}

} // namespace

QtSender::QtSender()
    : m_bus(QDBusConnection::sessionBus())
{
    registerTypes();
    m_bus.registerObject(QString::fromLatin1(peerPath), this, QDBusConnection::ExportAllSlots);
    m_bus.registerService(QString::fromLatin1(peerName));
}

QtSender::~QtSender() = default;

void QtSender::prepare(int items)
{
    m_items = itemMaps(items);
    m_ids.clear();
    for (int item = 0; item < items; ++item)
        m_ids += itemId(item);
}

void QtSender::send(const ItemMaps& changes)
{
    QDBusMessage message = QDBusMessage::createSignal(
            QString::fromLatin1(peerPath), QString::fromLatin1(peerInterface), QStringLiteral("Changed"));
    message << QVariant::fromValue(changes);
    m_bus.send(message);
}

void QtSender::change(int items)
{
    const double time = now();
    ItemMaps changes;
    ++m_changes;
    for (int item = 0; item < items - 1; ++item)
        changes.insert(m_ids.at(item), valueMap(valueOf(item, m_changes)));
    changes.insert(m_ids.at(items - 1), valueMap(time));
    send(changes);
}

void QtSender::sendTurn(int first, bool isSingle)
{
    ItemMaps changes;
    for (int change = first; change < first + changesPerTurn; ++change) {
        const int item = change % itemCount;
        changes.insert(m_ids.at(item), valueMap(valueOf(item, change)));
        if (!isSingle)
            continue;
        send(changes);
        changes.clear();
    }
    if (!isSingle)
        send(changes);
}

void QtSender::load(bool isSingle)
{
    m_load = std::make_unique<Load>([this, isSingle](int first) { sendTurn(first, isSingle); });
}

int qtSenderRole()
{
    QtSender sender;
    const Commands commands({
            {QStringLiteral("items"),
                    [&sender](const QVector<int>& arguments) {
                        sender.prepare(arguments.at(0));
                        answer({});
                    }},
            {QStringLiteral("change"), [&sender](const QVector<int>& arguments) { sender.change(arguments.at(0)); }},
            {QStringLiteral("load"),
                    [&sender](const QVector<int>& arguments) { sender.load(arguments.value(0) != 0); }},
    });
    return QCoreApplication::exec();
}

} // namespace bench
