#include "privatebus.h"
#include "bus/protocol_p.h"

#include <bus/busbackend.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <systemd/sd-bus.h>

using namespace kiv::bus;

/// Many changes, many calls, and clients that do not keep up.
class BusFlowTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int items = 5'000;
    static constexpr int perSecond = 20'000;
    /// KiB that a process may grow by.
    static constexpr int most = 8 * 1024;

    PrivateBus m_bus;
    Child m_service;
    Child m_client;
    Child m_stopped;

    /// Waits until the service has made the changes of some seconds more.
    void letRun(int seconds)
    {
        for (int i = 0; i < seconds; ++i)
            QCOMPARE(m_service.ask("more " + QByteArray::number(perSecond)), QByteArray("reached"));
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QString peer = QCoreApplication::applicationDirPath() + "/buspeer";
        m_service.run(peer, {"service", "numbers", QString::number(items)});
        for (Child* client : {&m_client, &m_stopped}) {
            client->run(peer, {"client", "numbers"});
            QTRY_COMPARE_WITH_TIMEOUT(client->ask("sum"), QByteArray("0"), patience);
        }
    }

    /// One client is stopped. Neither the service nor the bus keeps for it what it does not read, and nobody else
    /// misses a change.
    void stoppedClient()
    {
        const int seconds = qMax(4, qEnvironmentVariableIntValue("UIUTILS_SECONDS"));
        m_service.ask("run " + QByteArray::number(perSecond));
        letRun(2);
        const int service = m_service.resident();
        const int daemon = m_bus.daemon.resident();
        m_stopped.send(SIGSTOP);
        letRun(seconds);
        const int serviceGrowth = m_service.resident() - service;
        const int daemonGrowth = m_bus.daemon.resident() - daemon;
        qInfo("In %d s the service grew by %d KiB to %d, the bus by %d to %d.", seconds, serviceGrowth,
                m_service.resident(), daemonGrowth, m_bus.daemon.resident());
        QVERIFY(daemonGrowth <= most);
#ifndef __SANITIZE_ADDRESS__ // It keeps what was freed.
        QVERIFY(serviceGrowth <= most);
#endif
        const QByteArray sum = m_service.ask("stop");
        QVERIFY(sum.toLongLong() > 0);
        QTRY_COMPARE_WITH_TIMEOUT(m_client.ask("sum"), sum, patience);
        m_stopped.send(SIGCONT);
        QTRY_COMPARE_WITH_TIMEOUT(m_stopped.ask("sum"), sum, patience);
    }

    /// Calls that are worth nothing, as fast as they can be sent, and answers that nobody reads.
    void flood()
    {
        m_service.ask("run " + QByteArray::number(perSecond));
        Stranger stranger;
        for (int i = 0; i < 20'000; ++i) {
            const Message call = stranger.connection.newCall("org.uiutils.kiv.numbers", "/org/uiutils/kiv/numbers",
                    i % 3 ? serviceInterface : "org.example", i % 3 == 1 ? "SetItem" : "Nothing");
            sd_bus_message_append(call.raw(), "sv", ":result:numbers:1:", "i", i);
            stranger.connection.send(call);
        }
        letRun(1);
        const QByteArray sum = m_service.ask("stop");
        QTRY_COMPARE_WITH_TIMEOUT(m_client.ask("sum"), sum, patience);
        QVERIFY(stranger.isConnected());
        const Message call = stranger.connection.newCall(
                "org.uiutils.kiv.numbers", "/org/uiutils/kiv/numbers", serviceInterface, "Subscribe");
        QVERIFY(!stranger.ask(call).isError());
    }
};

QTEST_GUILESS_MAIN(BusFlowTest)

#include "tst_busflow.moc"
