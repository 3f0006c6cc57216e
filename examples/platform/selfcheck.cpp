// Holds the back end to the rules that pages rely on; the headers of the contract state them. A back end of your own is
// best tried like this before its first page.

#include "inibackend.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <memory>

namespace {

int failures = 0;

void check(bool holds, const char* rule)
{
    if (holds)
        return;
    ++failures;
    QTextStream(stderr) << "broken: " << rule << Qt::endl;
}

const QString voltage = QStringLiteral(":config:supply:voltage:");
const QString output = QStringLiteral(":config:supply:output:");
const QString current = QStringLiteral(":result:supply:current:");

/// The service's file in a folder, and a client.
struct Bench
{
    Bench() { write("12", "true", "0.85", "passing"); }

    /// As another program does.
    void write(const char* volts, const char* isOn, const char* amperes, const char* quality) const
    {
        const QString text
                = QStringLiteral("; kept\n[config.voltage]\ntype=double\nminimum=0\nmaximum=30\nvalue=%1\n"
                                 "[config.output]\ntype=bool\nvalue=%2\n"
                                 "[result.current]\ntype=double\nunit=A\nprecision=2\nvalue=%3\nquality=%4\n");
        QFile written(path);
        check(written.open(QIODevice::WriteOnly)
                        && written.write(text.arg(QLatin1String(volts), QLatin1String(isOn), QLatin1String(amperes),
                                                     QLatin1String(quality))
                                                 .toUtf8())
                                > 0,
                "the file can be written");
    }
    QByteArray contents() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("supply.ini"));
};

/// Runs the event loop until `happened`, at most ten seconds.
template<typename Condition> void waitFor(Condition happened, const char* rule)
{
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(10 * 1000);
    while (!happened() && limit.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    check(happened(), rule);
}

void checkReading(KIVClientInterface* client)
{
    check(client->getItemIds() == QStringList({output, voltage, current}), "ids come in ascending order");
    check(client->getItemIds(QStringLiteral(":config:")).size() == 2, "a prefix chooses");
    const KIVClientItem* item = client->getItem(current);
    check(item->getValue() == 0.85 && item->getValueString() == QLatin1String("0.85 A"), "a result has value and text");
    check(item->getQualityCode() == KIVClientItem::QualityPassing, "a result has a quality");
    check(client->getItem(voltage)->getMaxRange() == 30 && !item->getMaxRange().isValid(),
            "limits are given if there are any");
}

void checkWriting(KIVClientInterface* client, const Bench& bench)
{
    const KIVClientItem* item = client->getItem(voltage);
    int changes = 0;
    QObject::connect(item, &KIVClientItem::valueChanged, [&changes] { ++changes; });
    check(client->setItem(voltage, 5.5) && item->getValue() == 5.5 && changes == 1,
            "a value is accepted and reported once");
    check(client->setItem(voltage, QStringLiteral("5.5")) && changes == 1, "the same value is not reported");
    check(bench.contents().contains("value=5.5") && bench.contents().startsWith("; kept"),
            "the file keeps its other lines");
    const QPair<QString, QVariant> wrong[] = {{voltage, 31}, {voltage, -1}, {voltage, qQNaN()},
            {voltage, QStringLiteral("x")}, {current, 1}, {QString(), 1}};
    for (const auto& [id, value] : wrong)
        check(!client->setItem(id, value) && !client->getLastError().isEmpty(),
                "a wrong value is rejected, with a reason");
    const auto batch = [client](const char* json) {
        return client->sendAction(QStringLiteral(":action:supply:applyconfig:"), QLatin1String(json), nullptr, 500);
    };
    check(!batch("{\"output\": false, \"voltage\": 99}") && !bench.contents().contains("value=false"),
            "of a batch with a wrong value nothing is set");
    check(batch("{\"output\": false, \"voltage\": 9}") && client->getItem(output)->getValue() == false && changes == 2
                    && client->getLastError().isEmpty(),
            "a batch is set");
    QObject::disconnect(item, nullptr, nullptr, nullptr);
}

void checkFollowing(KIVClientInterface* client, const Bench& bench)
{
    QStringList seen;
    const KIVClientItem* item = client->getItem(voltage);
    QObject::connect(item, &KIVClientItem::valueChanged, [&] {
        const KIVClientItem* other = client->getItem(current);
        seen += item->getValueString() + QLatin1Char(' ') + other->getValueString() + QLatin1Char(' ')
                + QString::number(other->getQualityCode());
    });
    bench.write("24", "true", "3.1", "failing");
    waitFor([&] { return !seen.isEmpty(); }, "what another program writes is reported");
    bench.write("25", "true", "0", "passing");
    waitFor([&] { return seen.size() > 1; }, "each time");
    check(seen == QStringList({QStringLiteral("24 3.10 A 64"), QStringLiteral("25 0.00 A 16")}),
            "once, when every item has its new value");

    int comings = 0;
    QObject::connect(client, &KIVClientInterface::itemsChanged, [&comings] { ++comings; });
    QFile::remove(bench.path);
    waitFor([&] { return comings > 0; }, "a service that vanishes is reported");
    check(comings == 1 && !client->isValid() && !client->getItem(current), "once, with all its items");
    check(!client->setItem(voltage, 1), "a service that is away accepts nothing");
    bench.write("1", "true", "0", "passing");
    waitFor([&] { return client->isValid() && client->getItem(current); }, "the same client finds the service again");
}

void checkOwnership(std::unique_ptr<IniBackend> backend)
{
    const QString name = QStringLiteral("supply");
    QObject parent;
    QPointer<KIVClientInterface> shared(KIVClientInterface::getSessionBusClient(name));
    QPointer<KIVClientInterface> own(KIVClientInterface::getSessionBusClient(name, &parent));
    check(shared == KIVClientInterface::getSessionBusClient(name) && own != shared,
            "who has a parent has a client alone");
    check(!KIVClientInterface::getSessionBusClient(QStringLiteral("none")), "there are no clients of unknown services");
    check(!KIVClientInterface::getBaseMgrClient(), "there is no base manager here");
    backend.reset();
    check(!shared && !own && !KIVBackend::current(), "no client outlives the back end");
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    const Bench bench;
    auto backend = std::make_unique<IniBackend>(bench.folder.path());
    KIVBackend::setCurrent(backend.get());
    KIVClientInterface* client = KIVClientInterface::getSessionBusClient(QStringLiteral("supply"));
    checkReading(client);
    checkWriting(client, bench);
    checkFollowing(client, bench);
    checkOwnership(std::move(backend));
    QTextStream(stdout) << (failures ? "The back end breaks the contract" : "The back end keeps the contract")
                        << Qt::endl;
    return failures ? 1 : 0;
}
