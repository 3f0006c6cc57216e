#include "files.h"

#include <bus/busbackend.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QTest>

namespace {

constexpr int skipped = 77;
constexpr int patience = 60000;
const QString step = ":config:clock:step:";

/// Why the value is rejected; empty if it is not.
QString rejection(KIVClientInterface* client, int value)
{
    return client->setItem(step, value) ? QString() : client->getLastError();
}

/// Until the next two values have come.
int nextDifference(const KIVClientItem* item)
{
    QVector<int> values;
    QObject context;
    QObject::connect(item, &KIVClientItem::valueChanged, &context, [&] { values += item->getValue().toInt(); });
    return QTest::qWaitFor([&] { return values.size() > 1; }, patience) ? values[1] - values[0] : -1;
}

} // namespace

class ClockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsAndTakesAStep()
    {
        QProcess clock;
        clock.setProcessChannelMode(QProcess::ForwardedChannels);
        clock.start(PYTHON, {CLOCK});
        kiv::bus::BusBackend backend;
        KIVClientInterface* client = backend.serviceClient("clock", nullptr);
        QTRY_VERIFY_WITH_TIMEOUT(client->isValid(), patience);
        QCOMPARE(client->getItemIds(), QStringList({step, ":result:clock:seconds:"}));
        const KIVClientItem* seconds = client->getItem(":result:clock:seconds:");
        QCOMPARE(nextDifference(seconds), 1);

        // A busy machine may exceed the time limit of a request, which is then repeated.
        QTRY_COMPARE_WITH_TIMEOUT(
                rejection(client, 61), QString("Step takes 1 to 60 seconds; nothing else can be set."), patience);
        QTRY_COMPARE_WITH_TIMEOUT(rejection(client, 7), QString(), patience);
        QTRY_COMPARE_WITH_TIMEOUT(client->getItem(step)->getValue(), QVariant(7), patience);
        QCOMPARE(nextDifference(seconds), 7);
        QString reply;
        QVERIFY(!client->sendAction(":action:clock:reset:", "", &reply, patience));
        QCOMPARE(client->getLastError(), QString("The clock has no actions."));

        clock.kill();
        QTRY_VERIFY_WITH_TIMEOUT(!client->isValid(), patience);
    }
};

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (const QString said = outputOf(PYTHON, {"-c", "import dbus, gi"}); !said.isEmpty()) {
        qWarning("skipped: python3 has no D-Bus: %s", qPrintable(said));
        return skipped;
    }
    ClockTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_clock.moc"
