#include "columns.h"

#include "loopbackmeasurement.h"
#include "loopbackprotocol.h"
#include "measurementsettings.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QTcpServer>
#include <QTcpSocket>

#include <climits>
#include <functional>
#include <memory>

using namespace uiutils::demo;
using uiutils::Status;

/// What a server does with a connection.
using Serve = std::function<void(QTcpSocket*)>;
Q_DECLARE_METATYPE(Serve)

namespace {

constexpr int samples = LoopbackMeasurement::fewestSamples;
constexpr int longWait = 60000;
const char* const serviceFile = UIUTILS_SOURCE_DIR "/platform/reference/services/loopback.service.json";
const char* const roundTripLimit = ":config:loopback:limits:maximumRtt:";

/// A server that does with each connection what the test says.
class TestServer : public QTcpServer
{
public:
    explicit TestServer(const Serve& serve)
    {
        connect(this, &QTcpServer::newConnection, this, [this, serve] { serve(nextPendingConnection()); });
        if (!listen(QHostAddress::LocalHost))
            qFatal("The test server cannot listen: %s", qPrintable(errorString()));
    }
};

/// Answers according to the protocol, each request `delay` milliseconds after its last byte, and at most `most`
/// requests.
Serve answeringAfter(int delay, int most = INT_MAX)
{
    return [delay, most](QTcpSocket* socket) {
        struct Request
        {
            protocol::Header header;
            QByteArray bytes;
            qint64 missing = -1;
            int answersLeft = 0;
        };
        const auto request = std::make_shared<Request>();
        request->answersLeft = most;
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket, delay, request] {
            if (request->missing < 0) {
                request->bytes = socket->read(protocol::headerSize);
                if (!protocol::decode(request->bytes, &request->header))
                    qFatal("The client sent no request.");
                request->missing = qint64(request->header.payload);
            }
            const QByteArray payload = socket->read(request->missing);
            request->missing -= payload.size();
            if (request->header.kind == protocol::Echo)
                request->bytes += payload;
            if (request->missing > 0)
                return;
            request->missing = -1;
            if (request->answersLeft-- <= 0)
                return;
            QTimer::singleShot(
                    delay, Qt::PreciseTimer, socket, [socket, request] { socket->write(request->bytes); });
        });
    };
}

} // namespace

class MeasurementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_measurement = std::make_unique<LoopbackMeasurement>();
        m_measurement->setPause(0);
        m_finished = std::make_unique<QSignalSpy>(m_measurement.get(), &LoopbackMeasurement::finished);
        m_failed = std::make_unique<QSignalSpy>(m_measurement.get(), &LoopbackMeasurement::failed);
        m_cancelled = std::make_unique<QSignalSpy>(m_measurement.get(), &LoopbackMeasurement::cancelled);
        m_taken = std::make_unique<QSignalSpy>(m_measurement.get(), &LoopbackMeasurement::sampleTaken);
    }

    void completeRun_data()
    {
        addColumns<int, int, int>();
        QTest::newRow("smallest message") << samples << samples + 3 << LoopbackMeasurement::smallestMessage;
        QTest::newRow("largest message") << samples + 3 << samples << LoopbackMeasurement::largestMessage;
    }

    void completeRun()
    {
        const auto [roundTrips, throughputs, messageBytes] = currentRow<int, int, int>();
        m_measurement->setRoundTripSamples(roundTrips);
        m_measurement->setThroughputSamples(throughputs);
        m_measurement->setMessageBytes(messageBytes);
        m_measurement->cancel();
        QCOMPARE(m_cancelled->count(), 0);
        QCOMPARE(m_measurement->state(), LoopbackMeasurement::Idle);
        QCOMPARE(m_measurement->progress(), 0.0);
        QList<LoopbackMeasurement::State> states;
        connect(m_measurement.get(), &LoopbackMeasurement::stateChanged, this,
                [&] { states += m_measurement->state(); });
        m_measurement->start();
        // A second start has no effect while the first runs.
        m_measurement->start();
        QVERIFY(m_finished->wait(longWait));

        QCOMPARE(states,
                (QList<LoopbackMeasurement::State>{LoopbackMeasurement::Connecting,
                        LoopbackMeasurement::MeasuringRoundTrip, LoopbackMeasurement::MeasuringThroughput,
                        LoopbackMeasurement::Finished}));
        QCOMPARE(m_taken->count(), roundTrips + throughputs);
        QCOMPARE(m_measurement->roundTrip()->count(), roundTrips);
        QCOMPARE(m_measurement->throughput()->count(), throughputs);
        QVERIFY(m_measurement->method().contains(QLocale().toString(messageBytes)));
        QVERIFY(m_measurement->roundTrip()->minimum() > 0);
        QVERIFY(m_measurement->throughput()->minimum() > 0);
        QCOMPARE(m_measurement->progress(), 1.0);
        QVERIFY(m_measurement->status() != Status::None);
        QVERIFY(m_measurement->serverAddress().startsWith("127.0.0.1:"));
        QVERIFY(QDateTime::fromString(m_measurement->startTime(), Qt::ISODate).isValid());
        QCOMPARE(m_failed->count(), 0);
    }

    void followsTheService_data()
    {
        using Settings = MeasurementSettings;
        addColumns<QString, double, int, double>();
        const QString roundTrips = ":config:loopback:test:rttSamples:";
        const QString throughputs = ":config:loopback:test:throughputSamples:";
        const QString bytes = ":config:loopback:test:messageSize:";
        QTest::newRow("round trips") << roundTrips << 30.0 << int(Settings::FollowSampleCounts) << 30.0;
        QTest::newRow("too many") << roundTrips << 9999.0 << int(Settings::FollowSampleCounts) << 200.0;
        QTest::newRow("counts asked for otherwise") << roundTrips << 30.0 << int(Settings::KeepSampleCounts) << 20.0;
        QTest::newRow("throughputs") << throughputs << 31.0 << int(Settings::FollowSampleCounts) << 31.0;
        QTest::newRow("too few") << throughputs << 1.0 << int(Settings::FollowSampleCounts) << 20.0;
        QTest::newRow("message") << bytes << 1024.0 << int(Settings::KeepSampleCounts) << 1024.0;
        QTest::newRow("message without room") << bytes << 1.0 << int(Settings::KeepSampleCounts) << 20.0;
        QTest::newRow("round-trip limit") << QString(roundTripLimit) << 0.25 << int(Settings::KeepSampleCounts) << 0.25;
        QTest::newRow("no time at all") << QString(roundTripLimit) << 0.0 << int(Settings::FollowSampleCounts) << 0.0;
        QTest::newRow("throughput limit")
                << QString(":config:loopback:limits:minimumThroughput:") << 5.0 << int(Settings::FollowSampleCounts) << 5.0;
    }

    /// Read at the start, and from a service that returned.
    void followsTheService()
    {
        const auto [id, value, counts, expected] = currentRow<QString, double, int, double>();
        kiv::embedded::EmbeddedBackend services;
        QVERIFY(services.loadFile(serviceFile));
        const double before = taken(id);
        services.service("loopback")->setValue(id, value);
        const MeasurementSettings settings(m_measurement.get(), KIVClientInterface::getSessionBusClient("loopback"),
                MeasurementSettings::SampleCounts(counts));
        QCOMPARE(taken(id), expected);

        // Back with the values of its file, and changed once more.
        services.withdraw("loopback");
        QVERIFY(services.loadFile(serviceFile));
        services.service("loopback")->setValue(id, before);
        QCOMPARE(taken(id), before);
        services.service("loopback")->setValue(id, value);
        QCOMPARE(taken(id), expected);
    }

    /// The service and the measurement end with the same limit, whichever of them changed it.
    void oneLimit()
    {
        kiv::embedded::EmbeddedBackend services;
        QVERIFY(services.loadFile(serviceFile));
        const MeasurementSettings settings(m_measurement.get(), KIVClientInterface::getSessionBusClient("loopback"),
                MeasurementSettings::FollowSampleCounts);
        for (const QString& refusal : {QString(), QString("The limits are the customer's.")}) {
            services.service("loopback")->setRefusal(roundTripLimit, refusal);
            if (!refusal.isEmpty())
                QTest::ignoreMessage(QtWarningMsg, qPrintable(refusal));
            m_measurement->roundTrip()->setLimit(refusal.isEmpty() ? 5 : 7);
            QTRY_COMPARE(m_measurement->roundTrip()->limit(), 5.0);
            QCOMPARE(services.service("loopback")->item(roundTripLimit)->getValue(), QVariant(5.0));
        }
    }

    /// A server of known slowness bounds every sample from below, the wall clock bounds their sum from above: an error
    /// in a unit or in the timing breaks one of the two.
    void samplesAgreeWithTheClock()
    {
        constexpr int delay = 4;
        constexpr double transferMegabits = 8 * 1024 * 1024 * 8 / 1e6;
        const TestServer server(answeringAfter(delay));
        m_measurement->setServerPort(server.serverPort());
        QElapsedTimer clock;
        clock.start();
        m_measurement->start();
        QVERIFY(m_finished->wait(longWait));
        const double elapsed = double(clock.elapsed()) + 1;

        double sum = 0;
        for (int i = 0; i < samples; ++i) {
            const double roundTrip = m_measurement->roundTrip()->valueAt(i);
            const double transfer = transferMegabits / m_measurement->throughput()->valueAt(i) * 1000;
            // Timers may be early by less than a millisecond.
            QVERIFY2(roundTrip > delay - 1, qPrintable(QString::number(roundTrip)));
            QVERIFY2(transfer > delay - 1, qPrintable(QString::number(transfer)));
            sum += roundTrip + transfer;
        }
        QVERIFY2(sum <= elapsed, qPrintable(QStringLiteral("%1 ms of %2 ms").arg(sum).arg(elapsed)));
    }

    void cancelledInMidRunAndStartedAgain_data()
    {
        QTest::addColumn<int>("after");
        QTest::newRow("before the first sample") << 0;
        QTest::newRow("in the round-trip time") << 3;
        QTest::newRow("in the throughput") << samples + 3;
    }

    void cancelledInMidRunAndStartedAgain()
    {
        QFETCH(const int, after);
        const auto cancelIfDue = [&] {
            if (m_taken->count() == after)
                m_measurement->cancel();
        };
        const auto connection
                = connect(m_measurement.get(), &LoopbackMeasurement::sampleTaken, this, cancelIfDue);
        m_measurement->start();
        cancelIfDue();
        QTRY_COMPARE_WITH_TIMEOUT(m_cancelled->count(), 1, longWait);
        QCOMPARE(m_measurement->state(), LoopbackMeasurement::Cancelled);
        QCOMPARE(m_taken->count(), after);
        QCOMPARE(m_measurement->status(), int(Status::None));
        disconnect(connection);

        // Queued samples of the first run must not be counted in the second.
        m_measurement->start();
        QVERIFY(m_finished->wait(longWait));
        QCOMPARE(m_taken->count(), after + 2 * samples);
        QCOMPARE(m_measurement->roundTrip()->count(), samples);
        QCOMPARE(m_measurement->throughput()->count(), samples);
        QCOMPARE(m_cancelled->count(), 1);
        QCOMPARE(m_failed->count(), 0);
    }

    void badServerFailsInWords_data()
    {
        addColumns<Serve, QString>();
        QTest::newRow("never answers") << Serve([](QTcpSocket*) {}) << "was silent for 0.2 s";
        QTest::newRow("falls silent") << answeringAfter(0, 4) << "was silent for 0.2 s while measuring round-trip time, sample 4 of 20";
        QTest::newRow("closes") << Serve([](QTcpSocket* socket) { socket->close(); }) << "broke while";
        QTest::newRow("is not there") << Serve() << "while connecting";
        QTest::newRow("babbles") << Serve([](QTcpSocket* socket) { socket->write(QByteArray(64, 'x')); })
                                 << "does not match the request";
    }

    void badServerFailsInWords()
    {
        const auto [serve, what] = currentRow<Serve, QString>();
        TestServer server(serve);
        const int port = server.serverPort();
        if (!serve)
            server.close();
        m_measurement->setServerPort(port);
        m_measurement->setPatience(200);
        m_measurement->start();
        QVERIFY(m_failed->wait(longWait));

        QCOMPARE(m_measurement->state(), LoopbackMeasurement::Failed);
        const QString text = m_measurement->errorText();
        QVERIFY2(text.contains(what), qPrintable(text));
        QVERIFY2(text.contains(QStringLiteral("127.0.0.1:%1").arg(port)), qPrintable(text));
        QVERIFY2(text.contains("start again"), qPrintable(text));
        QVERIFY(m_taken->count() < samples);
        QCOMPARE(m_finished->count(), 0);

        // The next run, with a server of its own, is not affected.
        m_measurement->setServerPort(0);
        m_measurement->setPatience(longWait);
        m_measurement->start();
        QVERIFY(m_measurement->errorText().isEmpty());
        QVERIFY(m_finished->wait(longWait));
        QCOMPARE(m_failed->count(), 1);
    }

    /// What a draft has kept is another run's, and may be damaged.
    void resultsAreRestored()
    {
        QVERIFY(m_measurement->results().isEmpty());
        const QVariantMap results {{"startTime", "2026-01-31T14:25:00+01:00"}, {"server", "127.0.0.1:7"}, {"messageBytes", 100},
                {"roundTrip", QVariantList {0.5, 0.25}}, {"throughput", QVariantList {2000}}};
        const auto with = [&](const QString& key, const QVariant& value) {
            QVariantMap changed = results;
            changed.insert(key, value);
            return changed;
        };
        QVariantList many;
        for (int i = 0; i <= LoopbackMeasurement::mostSamples; ++i)
            many += 1;
        for (const QVariantMap& damaged : {QVariantMap(), with("startTime", "yesterday"), with("roundTrip", QVariantList()),
                     with("roundTrip", many), with("throughput", QVariantList {-1}), with("throughput", QVariantList {qQNaN()}),
                     with("throughput", QVariantList {"fast"})}) {
            QVERIFY(!m_measurement->restore(damaged));
            QCOMPARE(m_measurement->state(), LoopbackMeasurement::Idle);
        }
        QVERIFY(m_measurement->restore(results));
        QCOMPARE(m_finished->count(), 1);
        QCOMPARE(m_measurement->results(), results);
        QCOMPARE(m_measurement->roundTrip()->median(), 0.375);
        QCOMPARE(m_measurement->progress(), 1.0);
        m_measurement->start();
        QVERIFY(!m_measurement->restore(results));
    }

    void destroyedInMidRun()
    {
        m_measurement->start();
        QTRY_VERIFY_WITH_TIMEOUT(m_measurement->throughput()->count() > 2, longWait);
        m_measurement.reset();

        // It may have hardly begun.
        LoopbackMeasurement shortLived;
        shortLived.start();
    }

private:
    /// The measurement's value of that setting.
    double taken(const QString& id)
    {
        if (id.contains(":limits:"))
            return (id == roundTripLimit ? m_measurement->roundTrip() : m_measurement->throughput())->limit();
        if (id.contains("message"))
            return m_measurement->messageBytes();
        return id.contains("rtt") ? m_measurement->roundTripSamples() : m_measurement->throughputSamples();
    }

    std::unique_ptr<LoopbackMeasurement> m_measurement;
    std::unique_ptr<QSignalSpy> m_finished;
    std::unique_ptr<QSignalSpy> m_failed;
    std::unique_ptr<QSignalSpy> m_cancelled;
    std::unique_ptr<QSignalSpy> m_taken;
};

QTEST_GUILESS_MAIN(MeasurementTest)
#include "tst_measurement.moc"
