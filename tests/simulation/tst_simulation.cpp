#include "columns.h"
#include "embedded/servicedata_p.h"
#include "servicetexts.h"
#include "signallog.h"
#include "simulatedservice.h"
#include "simulation/simulation_p.h"

using namespace kiv::simulation;
using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;
using kiv::embedded::ServiceData;

namespace {

/// The final states, and the results, of that many measurements.
QStringList outcomes(int count, const QByteArray& seed)
{
    SimulatedService service(meter(failing, seed));
    QStringList outcomes;
    for (int i = 0; i < count; ++i) {
        service.act(start, QString::number(i));
        service.to(service.now + 5000);
        outcomes += service.value(state).toString() + ' ' + service.value(":result:s:loss:").toString() + ' '
                + service.value(":result:s:events:").toString();
    }
    return outcomes;
}

const QByteArray counting = R"({"as": "ramp", "from": 0, "to": 1000, "period": 100000, "every": 100})";

} // namespace

class SimulationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void measurement()
    {
        SimulatedService s(meter());
        QCOMPARE(s.value(level), QVariant(-1));
        QCOMPARE(s.driver->due(), never);
        s.now = 1000;
        QCOMPARE(s.act(start, "fiber 7"), "Measuring fiber 7.");
        QCOMPARE(s.value(state), QVariant("measuring fiber 7"));
        QCOMPARE(s.value(progress), QVariant(0u));
        QCOMPARE(s.value(level), QVariant(0));
        s.to(3400);
        QCOMPARE(s.value(progress), QVariant(48u));
        QCOMPARE(s.value(level), QVariant(24));
        QCOMPARE(s.act(start), "!Start is running already. Stop it, or wait until it is done.");
        QVERIFY(!s.value(":result:s:loss:").isValid());

        // However late it is seen, nothing has moved after the end.
        s.to(20'000);
        QCOMPARE(s.value(progress), QVariant(100u));
        QCOMPARE(s.value(state), QVariant("fiber 7 done"));
        QCOMPARE(s.value(level), QVariant(49));
        const double loss = s.value(":result:s:loss:").toDouble();
        QVERIFY(loss >= 3.5 && loss <= 4.5);
        QCOMPARE(s.item(":result:s:loss:")->getQualityCode(),
                int(loss <= 4 ? KIVClientItem::QualityPassing : KIVClientItem::QualityWarning));
        QVERIFY((QSet<int> {1, 2, 3}).contains(s.value(":result:s:events:").toInt()));
        QCOMPARE(s.driver->due(), never);
        QCOMPARE(s.act(start, "again"), "Measuring again.");
        QVERIFY(s.value(power) == 0);
        s.to(24'999);
        QCOMPARE(s.value(state), QVariant("measuring again"));
        QCOMPARE(s.value(progress), QVariant(96u));
        QVERIFY(s.value(power) != 0);
    }

    void stoppedMeasurement()
    {
        SimulatedService s(meter());
        QCOMPARE(s.act(":action:s:stop:"), "Stopped.");
        QCOMPARE(s.value(state), QVariant("idle"));
        s.act(start);
        s.to(2000);
        QCOMPARE(s.act(":action:s:stop:"), "Stopped.");
        QCOMPARE(s.value(state), QVariant("stopped"));
        s.to(9000);
        QCOMPARE(s.value(state), QVariant("stopped"));
        QCOMPARE(s.value(progress), QVariant(40u));
        QCOMPARE(s.value(level), QVariant(20));
        // It begins from the beginning.
        s.act(start);
        QCOMPARE(s.value(progress), QVariant(0u));
        QCOMPARE(s.value(level), QVariant(0));
        s.to(13'999);
        QVERIFY(s.value(state) != QVariant(" done"));
        s.to(14'000);
        QCOMPARE(s.value(state), QVariant(" done"));
    }

    void seeds()
    {
        const QStringList first = outcomes(1000, "1");
        QCOMPARE(outcomes(1000, "1"), first);
        QVERIFY(outcomes(1000, "2") != first);
        const int failures = first.filter("failed").size();
        QVERIFY2(failures > 70 && failures < 130, qPrintable(QString::number(failures)));
        for (const char* events : {" 1", " 2", " 3"})
            QVERIFY(QString(first.join('\n') + '\n').contains(events + QString('\n')));
        QVERIFY(QSet<QString>(first.cbegin(), first.cend()).size() > 800);
    }

    /// A run that fails ends early, says so to everybody, and has no results.
    void failedMeasurement()
    {
        SimulatedService s(meter(R"("fail": "No light.", "failed": {":result:s:state:": "failed"},)"));
        QStringList errors;
        connect(s.client, &KIVClientInterface::SigError, this, [&](const QString& text) { errors += text; });
        QCOMPARE(s.act(start, "x"), "Measuring x.");
        s.to(4999);
        QCOMPARE(errors, QStringList {"No light."});
        QCOMPARE(s.value(state), QVariant("failed"));
        QVERIFY(s.value(progress).toUInt() < 100);
        QVERIFY(!s.value(":result:s:loss:").isValid());
    }

    /// An action that is done at once fails in its answer, in its share of attempts.
    void failedAttempts()
    {
        SimulatedService s(service(R"({"id": ":result:s:n:", "type": "int", "value": 0},
            {"id": ":action:s:zero:", "type": "action", "does": {"set": {":result:s:n:": "%1"}, "fail": "Busy.", "fails": 0.1}})"));
        int failures = 0;
        for (int i = 1; i <= 1000; ++i) {
            const bool isFailing = s.act(":action:s:zero:", QString::number(i)) == "!Busy.";
            failures += int(isFailing);
            QCOMPARE(s.value(":result:s:n:").toInt() == i, !isFailing);
        }
        QVERIFY2(failures > 70 && failures < 130, qPrintable(QString::number(failures)));
        QVERIFY(s.act(":action:s:zero:", "x").startsWith("!"));
    }

    void judgedWhoeverSetsIt()
    {
        SimulatedService s(service(R"(
            {"id": ":config:s:gain:", "type": "int", "value": 5, "judged": {"passing": {"to": 5}}, "ready": {"to": 10}},
            {"id": ":result:s:cold:", "type": "int", "ready": false}, {"id": ":result:s:warm:", "type": "int", "value": 1},
            {"id": ":action:s:set:", "type": "action", "does": {"set": {":config:s:gain:": "%1"}}})",
                R"([{"after": 1000, "for": 1000, "ready": false}, {"after": 2500, "for": 100, "ready": false}, {"after": 3000, "for": 1000, "vanish": true}])"));
        const auto seen = [&s] {
            const KIVClientItem* gain = s.item(":config:s:gain:");
            return qMakePair(gain->getQualityCode(), gain->isReady());
        };
        QCOMPARE(seen(), qMakePair(int(KIVClientItem::QualityPassing), true));
        QVERIFY(s.client->setItem(":config:s:gain:", 6));
        QCOMPARE(seen(), qMakePair(int(KIVClientItem::QualityFailing), true));
        s.act(":action:s:set:", "11");
        QCOMPARE(seen(), qMakePair(int(KIVClientItem::QualityFailing), false));
        // Kept from being ready whatever its value, and free again.
        s.to(1000);
        s.backend.service("s")->setValue(":config:s:gain:", 4);
        QCOMPARE(seen(), qMakePair(int(KIVClientItem::QualityPassing), false));
        QVERIFY(!s.item(":result:s:warm:")->isReady());
        s.to(2000);
        QCOMPARE(seen(), qMakePair(int(KIVClientItem::QualityPassing), true));
        QVERIFY(s.item(":result:s:warm:")->isReady() && !s.item(":result:s:cold:")->isReady());
        // Its value keeps it from being ready when nothing else does any more, without a moment in which it is.
        s.to(2500);
        s.backend.service("s")->setValue(":config:s:gain:", 11);
        SignalLog held(s.item(":config:s:gain:"));
        s.to(2600);
        QCOMPARE(held.take(), QStringList());
        QCOMPARE(seen(), qMakePair(int(KIVClientItem::QualityFailing), false));
        // What changed while the service was away is judged when it returns, and after that as before.
        s.to(3000);
        s.backend.service("s")->setValue(":config:s:gain:", 9);
        s.to(4000);
        QCOMPARE(seen(), qMakePair(int(KIVClientItem::QualityFailing), true));
        SignalLog log(s.item(":config:s:gain:"));
        s.backend.service("s")->setValue(":config:s:gain:", 3);
        QCOMPARE(log.take().count("qualityChanged"), 1);
    }

    void refusingAndSlow()
    {
        SimulatedService s(service(R"(
            {"id": ":config:s:a:", "type": "int", "value": 1, "refuse": "Sealed."}, {"id": ":config:s:b:", "type": "int", "value": 1},
            {"id": ":config:s:c:", "type": "int", "value": 1}, {"id": ":action:s:d:", "type": "action", "does": {"reply": "Done."}})",
                R"([{"after": 1000, "for": 1000, "refuse": "Locked.", "items": [":config:s:a:", ":config:s:b", ":action:"]},
                    {"after": 1500, "for": 1000, "refuse": "Hot.", "items": [":config:s:b"]},
                    {"after": 1500, "for": 500, "slow": 90}, {"after": 1000, "for": 2000, "slow": 40}], "delay": 3)"));
        const auto answers = [&s] {
            QStringList answers;
            for (const char* id : {":config:s:a:", ":config:s:b:", ":config:s:c:"})
                answers += s.client->setItem(id, 2) ? QString("ok") : s.client->getLastError();
            answers += s.act(":action:s:d:");
            return answers + QStringList {QString::number(ServiceData::of(*s.backend.service("s")).delayMs)};
        };
        const QStringList usual {"Sealed.", "ok", "ok", "Done.", "3"};
        QCOMPARE(answers(), usual);
        s.to(1000);
        QCOMPARE(answers(), (QStringList {"Locked.", "Locked.", "ok", "!Locked.", "40"}));
        s.to(1600);
        QCOMPARE(answers(), (QStringList {"Locked.", "Hot.", "ok", "!Locked.", "90"}));
        s.to(2000);
        QCOMPARE(answers(), (QStringList {"Sealed.", "Hot.", "ok", "Done.", "40"}));
        s.to(3000);
        QCOMPARE(answers(), usual);
        QCOMPARE(s.driver->due(), never);
    }

    /// What is done to items by hand elsewhere can be done by the file, and is undone.
    void conditions()
    {
        SimulatedService s(service(R"(
            {"id": ":result:s:a:", "type": "int", "value": 1, "quality": "warning"},
            {"id": ":result:s:b:", "type": "int", "value": 1, "judged": {"passing": {"to": 1}}, "applicable": false},
            {"id": ":result:s:c:", "type": "std::string", "value": "x", "moves": {"as": "steps", "every": 1000, "values": ["x", null]}},
            {"id": ":action:s:clear:", "type": "action", "does": {"set": {":result:s:a:": null}}})",
                R"([{"after": 1000, "for": 2000, "applicable": false}, {"after": 1500, "for": 100, "applicable": false},
                    {"after": 1000, "for": 1000, "quality": "failing", "items": [":result:"]}])"));
        const auto seen = [&s] {
            QStringList seen;
            for (const char* id : {":result:s:a:", ":result:s:b:", ":result:s:c:"})
                seen += QString("%1 %2 %3").arg(s.item(id)->getQualityCode()).arg(s.item(id)->isApplicable()).arg(s.value(id).toString());
            return seen;
        };
        QCOMPARE(seen(), (QStringList {"32 1 1", "16 0 1", "0 1 x"}));
        s.to(1000);
        QCOMPARE(seen(), (QStringList {"64 0 1", "64 0 1", "64 0 "}));
        QVERIFY(!s.value(":result:s:c:").isValid());
        s.backend.service("s")->setValue(":result:s:b:", 0);
        QCOMPARE(s.item(":result:s:b:")->getQualityCode(), int(KIVClientItem::QualityFailing));
        s.backend.service("s")->setReady(":result:s:a:", false);
        s.to(1500);
        s.to(1600);
        QVERIFY(!s.item(":result:s:a:")->isApplicable());
        s.to(2000);
        QCOMPARE(seen(), (QStringList {"32 0 1", "16 0 0", "0 0 x"}));
        s.to(3000);
        QCOMPARE(s.act(":action:s:clear:"), QString());
        QCOMPARE(seen(), (QStringList {"32 1 ", "16 0 0", "0 1 "}));
        QVERIFY(!s.value(":result:s:a:").isValid() && !s.item(":result:s:a:")->isReady());
    }

    /// A service that vanishes ends what it does, and what it published goes on when it returns.
    void vanishing()
    {
        QByteArray json = meter();
        json.replace(R"({"service": "s",)", R"({"service": "s", "happens": [{"after": 2000, "for": 3000, "every": 20000, "vanish": true},
            {"after": 9000, "every": 1000, "error": "Hot.", "set": {":result:s:events:": 7}}],)");
        SimulatedService s(json);
        SignalLog log(s.client);
        s.act(start);
        s.to(2000);
        QVERIFY(!s.client->isValid());
        QCOMPARE(log.take(), QStringList {"itemsChanged"});
        s.to(4999);
        QVERIFY(!s.client->isValid());
        s.to(5000);
        QVERIFY(s.client->isValid());
        QCOMPARE(log.take(), QStringList {"itemsChanged"});
        QCOMPARE(s.value(state), QVariant("stopped"));
        s.to(8999);
        QCOMPARE(log.take(), QStringList());
        s.to(9000);
        s.to(10'000);
        QCOMPARE(log.take(), (QStringList {"SigError Hot.", "SigError Hot."}));
        QCOMPARE(s.value(":result:s:events:"), QVariant(7));
        s.to(22'000);
        QVERIFY(!s.client->isValid());
    }

    void stillness()
    {
        SimulatedService s(service(item("n", counting) + R"(, {"id": ":result:s:m:", "type": "int", "value": 3, "judged": {"passing": {"to": 2}}})",
                                   R"([{"after": 10, "vanish": true}])"), true);
        QCOMPARE(s.driver->due(), never);
        QVERIFY(!s.value(":result:s:n:").isValid());
        QCOMPARE(s.item(":result:s:m:")->getQualityCode(), int(KIVClientItem::QualityFailing));
        s.to(1000);
        QVERIFY(s.client->isValid());

        SimulatedService running(meter(), true);
        running.act(start);
        running.to(2500);
        QCOMPARE(running.value(level), QVariant(25));
        running.to(5000);
        QCOMPARE(running.value(state), QVariant(" done"));
    }

    /// Values in between that nobody could have seen are left out, and a value is announced once.
    void announcedOnce()
    {
        SimulatedService s(service(item("slow", R"({"as": "ramp", "from": 0, "to": 10, "period": 100000, "every": 1000})") + ","
                + item("quick", counting)));
        SignalLog slow(s.item(":result:s:slow:"));
        SignalLog quick(s.item(":result:s:quick:"));
        const auto counts = [&] { return qMakePair(slow.take().size(), quick.take().size()); };
        QCOMPARE(s.driver->due(), qint64(100));
        s.to(99);
        QCOMPARE(counts(), qMakePair(0, 0));
        s.to(100);
        s.to(100);
        QCOMPARE(counts(), qMakePair(0, 1));
        s.to(2050);
        QCOMPARE(counts(), qMakePair(0, 1));
        QCOMPARE(s.value(":result:s:quick:"), QVariant(20));
        QCOMPARE(s.driver->due(), qint64(2100));
        s.to(10'000);
        QCOMPARE(counts(), qMakePair(1, 1));
        QCOMPARE(s.value(":result:s:slow:"), QVariant(1));
    }

    /// What a slot does is the newest: later values are not replaced by older ones, and what is gone stays alone.
    void slotsThatGoOn()
    {
        SimulatedService s(service(item("a", counting) + "," + item("b", counting)));
        auto nested = connect(s.item(":result:s:a:"), &KIVClientItem::valueChanged, this, [&] {
            if (s.now < 5000)
                s.to(5000);
        });
        s.to(100);
        QCOMPARE(s.value(":result:s:a:"), QVariant(50));
        QCOMPARE(s.value(":result:s:b:"), QVariant(50));
        disconnect(nested);
        connect(s.item(":result:s:a:"), &KIVClientItem::valueChanged, this, [&] { s.backend.withdraw("s"); });
        s.to(6000);
        QVERIFY(!s.backend.service("s"));
        s.to(7000);
    }
    void slotsThatEndTheService_data()
    {
        addColumns<QString, int>();
        QTest::newRow("progress") << progress << 1000;
        QTest::newRow("at its end") << state << 5000;
        QTest::newRow("result") << ":result:s:loss:" << 5000;
        QTest::newRow("what moves meanwhile") << level << 1000;
        QTest::newRow("what an event sets") << ":result:s:events:" << 4000;
    }
    void slotsThatEndTheService()
    {
        const auto [id, time] = currentRow<QString, int>();
        QByteArray json = meter();
        json.replace(R"({"service": "s",)", R"({"service": "s", "happens":
            [{"after": 4000, "set": {":result:s:events:": 9}, "error": "x", "vanish": true, "ready": false}],)");
        SimulatedService s(time == 4000 ? json : meter());
        s.act(start, "x");
        connect(s.item(id), &KIVClientItem::valueChanged, this, [&] { s.backend.withdraw("s"); });
        s.to(time);
        QVERIFY(!s.backend.service("s"));
        s.to(20'000);
    }

    /// By the real time, on the event loop, without a trace in the state files.
    void onTheEventLoop()
    {
        QTemporaryDir folder;
        const QString path = writeFile(folder.filePath("s.service.json"),
                service(item("n", R"({"as": "steps", "every": 10, "values": [1, 2, 3], "then": "stay"})")));
        for (const Simulated what : {Simulated::All, Simulated::Actions}) {
            EmbeddedBackend backend;
            backend.setStateFolder(folder.filePath("state"));
            simulate(backend, what);
            QVERIFY(backend.loadFile(path));
            KIVClientInterface* client = KIVClientInterface::getSessionBusClient("s");
            if (what == Simulated::All)
                QTRY_COMPARE(client->getItem(":result:s:n:")->getValue(), QVariant(3));
            else
                QCOMPARE(client->getItem(":result:s:n:")->getValue(), QVariant());
        }
        QVERIFY(!QDir(folder.filePath("state")).exists());
    }

    /// A slot that runs an event loop stops nobody else, and when all is done nothing wakes the process any more.
    void nestedLoopAndRest()
    {
        QTemporaryDir folder;
        EmbeddedBackend backend;
        simulate(backend, Simulated::Actions);
        QVERIFY(backend.loadFile(writeFile(folder.filePath("s.service.json"), meter().replace("5000", "500"))));
        KIVClientInterface* client = KIVClientInterface::getSessionBusClient("s");
        const auto reaches = [client](const QString& id, const QVariant& value) {
            return QTest::qWaitFor([&] { return client->getItem(id)->getValue() == value; }, 30'000);
        };
        bool isNested = false;
        connect(client->getItem(level), &KIVClientItem::valueChanged, this, [&] {
            if (client->getItem(level)->getValue() == 1)
                isNested = reaches(state, " done");
        });
        const auto* timer = backend.service("s")->findChild<QTimer*>();
        QVERIFY(timer && !timer->isActive());
        QVERIFY(client->invokeAction(start));
        QVERIFY(timer->isActive());
        QVERIFY(reaches(state, " done"));
        QTRY_VERIFY(isNested && !timer->isActive());
    }
};

QTEST_GUILESS_MAIN(SimulationTest)
#include "tst_simulation.moc"
