// The other processes of the bus tests. "buspeer client SERVICE" reads and writes as it is told, "buspeer service NAME
// COUNT" publishes whole numbers and changes them. Both take commands, a line each, and answer each with a line.

#include <bus/busbackend.h>
#include <bus/buspublisher.h>
#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <functional>

namespace {

using Command = std::function<QByteArray(const QList<QByteArray>& words)>;

void say(const QByteArray& line)
{
    std::printf("%s\n", line.constData());
    std::fflush(stdout);
}

int serve(const Command& command)
{
    QFile input;
    input.open(0, QIODevice::ReadOnly | QIODevice::Unbuffered);
    QSocketNotifier notifier(0, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, [&] {
        const QByteArray line = input.readLine().trimmed();
        if (line.isEmpty()) {
            QCoreApplication::quit();
            return;
        }
        const QByteArray answer = command(line.split(' '));
        if (!answer.isEmpty())
            say(answer);
    });
    return QCoreApplication::exec();
}

QString idOf(int number)
{
    return QString(":result:numbers:%1:").arg(number);
}

int beClient(const QString& service)
{
    kiv::bus::BusBackend backend;
    backend.waitForServices(60'000);
    KIVClientInterface* client = backend.serviceClient(service, nullptr);
    QTimer hammer;
    QByteArray hammered;
    int written = 0;
    QObject::connect(&hammer, &QTimer::timeout, [&] {
        // Far from each other, so that a value that comes twice is seen.
        client->setItem(hammered, ++written % 1000);
    });
    return serve([&](const QList<QByteArray>& words) -> QByteArray {
        const QByteArray id = words.value(1);
        const KIVClientItem* item = client->getItem(id);
        if (words.first() == "value")
            return item ? item->getValue().toByteArray() : "none";
        if (words.first() == "set")
            return client->setItem(id, words.value(2)) ? "done" : client->getLastError().toUtf8();
        if (words.first() == "hammer") {
            hammered = id;
            hammer.start(0);
            return "hammering";
        }
        if (words.first() == "rest") {
            hammer.stop();
            return "resting";
        }
        qint64 sum = 0;
        const QStringList ids = client->getItemIds();
        for (const QString& one : ids)
            sum += client->getItem(one)->getValue().toLongLong();
        return QByteArray::number(sum);
    });
}

int beService(const QString& name, int count)
{
    kiv::embedded::EmbeddedBackend services;
    kiv::embedded::ServiceDescription description;
    description.service = name;
    for (int i = 0; i < count; ++i) {
        kiv::embedded::ItemDescription item;
        item.id = idOf(i);
        item.type = "int";
        item.value = 0;
        description.items += item;
    }
    kiv::embedded::ItemDescription die;
    die.id = ":action:numbers:die:";
    die.type = "action";
    description.items += die;
    kiv::embedded::EmbeddedService* service = services.publish(description);
    service->setActionHandler(":action:numbers:die:", [](const QString&, QString*) { return ::raise(SIGKILL) != 0; });
    kiv::bus::BusPublisher publisher;
    if (!publisher.publish(service))
        return 1;
    QTimer turns;
    turns.setTimerType(Qt::PreciseTimer);
    int changesATurn = 0;
    qint64 changes = 0;
    qint64 awaited = 0;
    QObject::connect(&turns, &QTimer::timeout, [&] {
        for (int i = 0; i < changesATurn; ++i, ++changes)
            service->setValue(idOf(int(changes % count)), int(changes));
        if (awaited > 0 && changes >= awaited) {
            awaited = 0;
            say("reached");
        }
    });
    return serve([&](const QList<QByteArray>& words) -> QByteArray {
        if (words.first() == "more") {
            // Answered when so many more changes have been made.
            awaited = changes + words.value(1).toInt();
            return {};
        }
        if (words.first() == "run") {
            changesATurn = words.value(1).toInt() / 100;
            turns.start(10);
        } else if (words.first() == "stop") {
            turns.stop();
        }
        qint64 sum = 0;
        for (int i = 0; words.first() == "stop" && i < count; ++i)
            sum += service->item(idOf(i))->getValue().toLongLong();
        return QByteArray::number(words.first() == "stop" ? sum : changes);
    });
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    return arguments.value(1) == "client" ? beClient(arguments.value(2))
                                          : beService(arguments.value(2), arguments.value(3).toInt());
}
