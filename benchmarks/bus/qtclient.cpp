#include "qtclient.h"

#include "benchmarks/plainwrapper.h"
#include "benchmarks/timing.h"
#include "commands.h"
#include "roles.h"
#include "settling.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QQmlContext>

namespace bench {

namespace {

/// Wall-clock and CPU milliseconds until all items are there as maps.
void answerStart()
{
    constexpr int patienceMs = 30'000;
    const double wall = now();
    const double cpu = cpuMilliseconds();
    const QDBusMessage reply = QDBusConnection::sessionBus().call(
            QDBusMessage::createMethodCall(QString::fromLatin1(peerName), QString::fromLatin1(peerPath),
                    QString::fromLatin1(peerInterface), QStringLiteral("items")),
            QDBus::Block, patienceMs);
    const ItemMaps items = qdbus_cast<ItemMaps>(reply.arguments().value(0));
    answer({(now() - wall) * 1e3, cpuMilliseconds() - cpu});
    if (items.size() != itemCount)
        qFatal("There are %d items: %s", int(items.size()), qPrintable(reply.errorMessage()));
}

} // namespace

QtClient::QtClient() = default;
QtClient::~QtClient() = default;

void QtClient::listen()
{
    if (!QDBusConnection::sessionBus().connect(QString(), QString::fromLatin1(peerPath),
                QString::fromLatin1(peerInterface), QStringLiteral("Changed"), this, SLOT(onChanged(bench::ItemMaps))))
        qFatal("The changes cannot be heard.");
}

void QtClient::open(int count, int first, int step)
{
    listen();
    for (int item = 0; item < count; ++item) {
        m_items.push_back(std::make_unique<PlainLabels>());
        m_byId.insert(itemId(item), m_items.back().get());
    }
    const QVector<int> shown = everyItem(count, first, step);
    m_page = std::make_unique<Page>(shown, [this, &shown](QQmlContext* context) {
        for (const int item : shown)
            context->setContextProperty(itemName(item), m_items.at(size_t(item)).get());
    });
}

void QtClient::watch(int item)
{
    m_watched = itemId(item);
}

void QtClient::onChanged(const ItemMaps& changes)
{
    const double arrived = now();
    const QString name = QStringLiteral("value");
    if (!m_watched.isEmpty()) {
        answer({(arrived - changes.value(m_watched).value(name).toDouble()) * 1e6});
        return;
    }
    for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
        if (PlainLabels* item = m_byId.value(it.key()))
            item->setValue(it->value(name));
    }
}

void QtClient::settle(int changes) const
{
    answerWhenSettled(
            changes,
            [this](int item, int count) { return m_items.at(size_t(item))->value() == lastValue(item, count); },
            [this, changes] { return m_page->isSettled(changes); });
}

int qtClientRole()
{
    registerTypes();
    QtClient client;
    const Commands commands({
            {QStringLiteral("listen"),
                    [&client](const QVector<int>&) {
                        client.listen();
                        answer({});
                    }},
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
            {QStringLiteral("start"), [](const QVector<int>&) { answerStart(); }},
    });
    return QCoreApplication::exec();
}

} // namespace bench
