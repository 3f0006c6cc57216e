#include "columns.h"
#include "recordingbench.h"
#include "signallog.h"

#include "replay/playback_p.h"

#include <limits>

using kiv::embedded::EmbeddedService;
using kiv::replay::Playback;
using kiv::replay::Player;

namespace {

const QString a = ":result:otdr:a:";
const QString mode = ":config:otdr:mode:";

/// Items of every kind.
const QByteArray kinds = R"(
{"id": ":config:otdr:on:", "type": "bool", "label": "On", "value": true},
{"id": ":config:otdr:mode:", "type": "int", "value": -2, "choices": [{"value": -2, "name": "Manual", "label": "By hand"},
 {"value": 1, "name": "Auto", "applicable": false}]},
{"id": ":config:otdr:range:", "type": "double", "label": "Range", "unit": "km", "value": 20, "minimum": 0.5, "maximum": 260,
 "precision": 2, "applicable": "cfg.mode == 1"},
{"id": ":result:otdr:a:", "type": "double", "value": 1500, "attributes": {"formatter": "frequency"}, "quality": "warning"},
{"id": ":config:otdr:name:", "type": "std::string", "value": "Fiber 7", "attributes": {"regex": "[a-z]*", "inputType": 8}},
{"id": ":result:otdr:names:stringARRAY:", "type": "stringARRAY", "value": ["a", "b"]},
{"id": ":result:otdr:trace:doubleARRAY:", "type": "doubleARRAY", "value": [0.1, -2], "attributes": {"lowerLimit": -20}},
{"id": ":config:otdr:limits:", "type": "aggregate", "members": [{"name": "lower", "type": "double"}, {"name": "n", "type": "uint"}],
 "value": {"lower": -1.5, "n": 3}},
{"id": ":result:otdr:events:", "type": "listAggregate", "members": [{"name": "at", "type": "double"}, {"name": "kind", "type": "std::string"}],
 "value": [{"at": 4.2, "kind": "Splice"}, {"at": 5, "kind": "End"}]},
{"id": ":result:otdr:count:", "type": "uint", "value": 4294967295, "ready": false},
{"id": ":action:otdr:start:", "type": "action", "label": "Start"})";

QByteArray item(const QByteArray& keys)
{
    return R"({"id": ":result:otdr:a:", )" + keys + "}";
}

kiv::embedded::ItemDescription newItem(const QString& id, const QString& type)
{
    kiv::embedded::ItemDescription item;
    item.id = id;
    item.type = type;
    return item;
}

const QByteArray start = R"({"t":0,"service":"otdr","snapshot":1}
{"t":0,"service":"otdr","id":":result:otdr:a:","type":"int","value":1}
)";

QByteArray value(qint64 time, int number)
{
    return QString(R"({"t":%1,"service":"otdr","id":":result:otdr:a:","value":%2})").arg(time).arg(number).toUtf8() + '\n';
}

} // namespace

/// What is recorded of services, and what a player makes of it.
class RecordingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void describesItems_data()
    {
        addColumns<QByteArray, QByteArray>();
        const auto row = [](const char* name, const QByteArray& keys, const QByteArray& line) { QTest::newRow(name) << keys << line; };
        row("nothing", R"("type": "int")", R"("type":"int")");
        row("label, unit, limits", R"("type": "int", "label": "L", "unit": "m", "minimum": -1, "maximum": 9)",
                R"("type":"int","label":"L","unit":"m","minimum":-1,"maximum":9)");
        row("choices", R"("type": "int", "choices": [{"value": -2, "name": "A", "label": "a"}, {"value": 1, "name": "B", "applicable": false}])",
                R"("type":"int","choices":[{"value":-2,"name":"A","label":"a"},{"value":1,"name":"B","applicable":false}])");
        row("no choice yet", R"("type": "uint", "choices": [])", R"("type":"uint","choices":[])");
        row("state", R"("type": "bool", "value": false, "quality": "failing", "ready": false, "applicable": false)",
                R"("type":"bool","quality":"failing","ready":false,"applicable":false,"value":false)");
        row("expression", R"("type": "bool", "applicable": "cfg.m == 2")", R"("type":"bool","applicable":"cfg.m == 2")");
        row("all digits", R"("type": "double", "value": 0.1000000000000000055511)", R"("type":"double","value":0.1)");
        row("large", R"("type": "double", "value": 12e299)", R"("type":"double","value":1.2e+300)");
        row("text", "\"type\": \"std::string\", \"value\": \"a\\\"\\\\\\n\\u001b\\u009b\\u202e\\u00e4\\ud83d\\ude00\\ud83d\"",
                "\"type\":\"std::string\",\"value\":\"a\\\"\\\\\\n\\u001b\\u009b\\u202e\u00e4\U0001F600\\ud83d\"");
        row("table without rows", R"("type": "listAggregate", "members": [{"name": "at", "type": "double"}])",
                R"("type":"listAggregate","members":[{"name":"at","type":"std::string"}])");
        row("attributes", R"("type": "double", "precision": 2, "attributes": {"scale": "log", "mask": true, "private": 1})",
                R"("type":"double","precision":2,"attributes":{"mask":true,"scale":"log"})");
        row("unit of the formatter", R"("type": "double", "value": 1500, "attributes": {"formatter": "dB"})",
                R"("type":"double","attributes":{"formatter":"dB"},"value":1500)");
    }
    void describesItems()
    {
        const auto [keys, fields] = currentRow<QByteArray, QByteArray>();
        RecordingBench bench;
        bench.publish("otdr", item(keys));
        bench.follow({"otdr"});
        QCOMPARE(bench.take().last(), "{\"t\":0," + fields + '}');
        // What is read again is the same, down to the text on the screen.
        const KIVClientItem* const recorded = bench.client()->getItem(a);
        PlayingBench played(bench.text, {});
        QVERIFY2(played.isOpen && played.item(), qPrintable(played.problem));
        QCOMPARE(played.item()->getValueString(), recorded->getValueString());
        QCOMPARE(played.item()->getValue(), recorded->getValue());
        QCOMPARE(played.item()->getUnitString(), recorded->getUnitString());
        QCOMPARE(played.item()->getQualityCode(), recorded->getQualityCode());
        QCOMPARE(played.item()->getMaxRange(), recorded->getMaxRange());
        QCOMPARE(played.player.troubles(), QString());
    }

    void recordsChanges()
    {
        RecordingBench bench;
        bench.publish("otdr", item(R"("type": "double", "choices": [])").replace("double", "int"));
        bench.follow({"otdr"});
        bench.take();
        bench.now = 512;
        bench.service()->setValue(a, 3);
        bench.service()->setValue(a, 3);
        bench.service()->setQuality(a, KIVClientItem::QualityPassing);
        bench.service()->setReady(a, false);
        bench.now = 513;
        bench.service()->setApplicable(a, false);
        bench.service()->setUnit(a, "m");
        bench.service()->setChoices(a, {{1, "One", "", false}});
        bench.service()->setValue(a, {});
        bench.service()->reportError("Hot");
        QCOMPARE(bench.take(), (QByteArrayList {R"({"t":512,"value":3})", R"({"t":512,"quality":"passing"})", R"({"t":512,"ready":false})",
                R"({"t":513,"applicable":false})", R"({"t":513,"unit":"m"})",
                R"({"t":513,"choices":[{"value":1,"name":"One","applicable":false}]})", R"({"t":513,"value":null})", R"({"t":513,"error":"Hot"})"}));
        QCOMPARE(bench.recorder->counts().changes, qint64(7));
    }

    /// JSON has none of these.
    void numbersThatAreNone()
    {
        RecordingBench bench;
        bench.publish("otdr", item(R"("type": "double", "value": 0)"));
        bench.follow({"otdr"});
        for (const double number : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(), std::nan("")}) {
            ++bench.now;
            bench.service()->setValue(a, number);
        }
        PlayingBench played(bench.text, {});
        played.player.advanceTo(1);
        QCOMPARE(played.value().toDouble(), std::numeric_limits<double>::infinity());
        played.player.advanceTo(2);
        QCOMPARE(played.value().toDouble(), -std::numeric_limits<double>::infinity());
        played.player.advanceTo(3);
        QVERIFY(std::isnan(played.value().toDouble()));
        QCOMPARE(played.player.troubles(), QString());
    }

    /// Neither has a signal; the unit of a formatter has one, and is none of the item's.
    void quietChanges()
    {
        RecordingBench bench;
        bench.publish("otdr", item(R"("type": "double", "value": 1)") + R"(, {"id": ":result:otdr:b:", "type": "int"})");
        bench.publish("other", R"({"id": ":result:other:c:", "type": "int"})");
        bench.publish("third", R"({"id": ":result:third:f:", "type": "double", "value": 1, "attributes": {"formatter": "frequency"}})");
        bench.follow({"otdr", "other", "third"});
        bench.recorder->lookAround(100);
        bench.take();
        const SignalLog log(bench.client("third")->getItem(":result:third:f:"));
        bench.service("third")->setValue(":result:third:f:", 2e6);
        QVERIFY(log.names.contains("unitsChanged"));
        QCOMPARE(bench.take(), QByteArrayList {R"({"t":0,"service":"third","id":":result:third:f:","value":2000000})"});
        bench.service()->setLabel(a, "L");
        bench.service()->setRange(a, {}, 7);
        bench.service()->setRange(":result:otdr:b:", 1, {});
        bench.service("other")->setLabel(":result:other:c:", "C");
        QCOMPARE(bench.take(), QByteArrayList());
        for (int i = 0; i < 4; ++i)
            bench.recorder->lookAround(1);
        QByteArrayList lines = bench.take();
        std::sort(lines.begin(), lines.end());
        QCOMPARE(lines, (QByteArrayList {R"({"t":0,"id":":result:otdr:b:","minimum":1,"maximum":null})", R"({"t":0,"label":"L","minimum":null,"maximum":7})",
                R"({"t":0,"service":"other","id":":result:other:c:","label":"C"})"}));
        bench.service()->setAttribute(a, "scale", "log");
        bench.recorder->lookAround(100);
        QCOMPARE(bench.take(), QByteArrayList {R"({"t":0,"type":"double","label":"L","maximum":7,"attributes":{"scale":"log"},"value":1})"});
        bench.recorder->lookAround(100);
        QCOMPARE(bench.take(), QByteArrayList());
    }

    void servicesComeAndGo()
    {
        RecordingBench bench;
        bench.publish("otdr", item(R"("type": "int", "value": 1)"));
        bench.service()->setReachable(false);
        bench.follow({"otdr"});
        QCOMPARE(bench.take().size(), 1);
        bench.service()->setReachable(true);
        bench.service()->addItem(newItem(":config:otdr:b:", "bool"));
        bench.service()->removeItem(a);
        bench.service()->setReachable(false);
        bench.service()->setReachable(true);
        bench.backend.withdraw("otdr");
        QCOMPARE(bench.take(), (QByteArrayList {R"({"t":0,"snapshot":1})", R"({"t":0,"type":"int","value":1})",
                R"({"t":0,"id":":config:otdr:b:","type":"bool"})", R"({"t":0,"removed":true})", R"({"t":0,"gone":true})",
                R"({"t":0,"snapshot":1})", R"({"t":0,"id":":config:otdr:b:","type":"bool"})", R"({"t":0,"gone":true})"}));
        // A client of its own may end before its service.
        bench.publish("other", item(R"("type": "int", "value": 1)").replace("otdr", "other"));
        auto owner = std::make_unique<QObject>();
        bench.recorder->follow(bench.backend.serviceClient("other", owner.get()));
        bench.take();
        owner.reset();
        bench.service("other")->setValue(":result:other:a:", 2);
        bench.service("other")->setReachable(false);
        QCOMPARE(bench.take(), QByteArrayList {R"({"t":0,"service":"other","gone":true})"});
    }

    /// What is recorded of a replay is what was recorded of the instrument.
    void roundTrip()
    {
        RecordingBench bench;
        bench.publish("otdr", kinds);
        bench.publish("late", R"({"id": ":result:late:a:", "type": "int", "value": 1})");
        bench.service("late")->setReachable(false);
        bench.follow({"otdr", "late"});
        EmbeddedService& otdr = *bench.service();
        const QVector<std::function<void()>> steps {[&] { otdr.setValue(a, 2.5e-7); }, [&] { otdr.setValue(":result:otdr:names:stringARRAY:", QStringList()); },
                [&] { otdr.setValue(":result:otdr:trace:doubleARRAY:", QVariantList {1.5, 2e300}); },
                [&] { otdr.setValue(":result:otdr:events:", QVariantList()); }, [&] { otdr.setValue(":result:otdr:events:", QVariantList {QVariantMap {{"at", 1.0}, {"kind", "x"}}}); },
                [&] { otdr.setReady(":result:otdr:count:", true); }, [&] { otdr.setValue(mode, 1); }, [&] { bench.service("late")->setReachable(true); },
                [&] { otdr.setChoices(mode, {{1, "Auto", "", true}}); }, [&] { otdr.setReachable(false); }, [&] { bench.service("late")->setValue(":result:late:a:", 2); },
                [&] { otdr.setReachable(true); }, [&] { otdr.removeItem(mode); }, [&] { otdr.addItem(newItem(":config:otdr:new:", "int")); },
                [&] { otdr.setUnit(a, "dB"); }, [&] { otdr.reportError("Hot"); }, [&] { bench.backend.withdraw("late"); }};
        for (const auto& step : steps) {
            bench.now += 10;
            step();
        }
        PlayingBench played(bench.text, {});
        QVERIFY2(played.isOpen, qPrintable(played.problem));
        QByteArray again;
        qint64 now = 0;
        kiv::replay::Recorder recorder([&again](const QByteArray& line) { again += line; }, [&now] { return now; });
        for (const QString& name : played.player.services())
            recorder.follow(played.client(name));
        while (const auto next = played.player.nextTime()) {
            now = *next;
            QVERIFY(played.player.advanceTo(now) && played.player.nextTime() != next);
        }
        const auto lines = [](const QByteArray& text) { return text.split('\n').mid(1); };
        QCOMPARE(lines(again), lines(bench.text));
        QCOMPARE(played.player.troubles(), QString());
    }

    /// A table that had no rows shows its types with the first one.
    void typesThatComeLate()
    {
        RecordingBench bench;
        bench.publish("otdr", R"({"id": ":result:otdr:a:", "type": "listAggregate", "members": [{"name": "at", "type": "double"}]})");
        bench.follow({"otdr"});
        bench.now = 1;
        bench.service()->setValue(a, QVariantList {QVariantMap {{"at", 1.5}}});
        bench.now = 2;
        bench.service()->setValue(a, QVariantList());
        QCOMPARE(bench.take().mid(3), (QByteArrayList {R"({"t":1,"type":"listAggregate","members":[{"name":"at","type":"double"}],"value":[{"at":1.5}]})",
                R"({"t":2,"value":[]})"}));
        PlayingBench played(bench.text, {});
        played.player.advanceTo(1);
        QCOMPARE(played.value().toList().at(0).toMap().value("at"), QVariant(1.5));
    }

    void clientsOfARecording()
    {
        PlayingBench played(R"({"t":0,"service":"otdr","snapshot":2}
{"t":0,"service":"otdr","id":":config:otdr:b:","type":"int","value":1}
{"t":0,"service":"otdr","id":":action:otdr:go:","type":"action"}
{"t":9,"service":"otdr","id":":config:otdr:b:","value":3}
)");
        QVERIFY(played.client()->setItem(":config:otdr:b:", 2));
        QVERIFY(!played.client()->sendAction(":action:otdr:go:", "", nullptr, 1000));
        QVERIFY(played.client()->getLastError().contains("recording"));
        played.player.advanceTo(8);
        QCOMPARE(played.value(":config:otdr:b:"), QVariant(2));
        played.player.advanceTo(9);
        QCOMPARE(played.value(":config:otdr:b:"), QVariant(3));
    }

    /// Back at the beginning everything is as it was there. Items that were there all the time are the same objects, and
    /// tell only what differs.
    void goesBack()
    {
        const QByteArray other = R"({"t":0,"service":"otdr","id":":result:otdr:b:","type":"int","value":5})" "\n";
        PlayingBench played(QByteArray(start).replace("snapshot\":1", "snapshot\":2") + other + value(10, 2)
                + R"({"t":20,"service":"late","snapshot":1}
{"t":20,"service":"late","id":":result:late:c:","type":"int"}
{"t":30,"service":"otdr","id":":result:otdr:d:","type":"int"}
{"t":40,"service":"otdr","id":":result:otdr:a:","label":"L","quality":"failing","ready":false,"unit":"m","minimum":1,"maximum":2}
)");
        QVERIFY(played.client("late") && !played.client("late")->isValid());
        const QPointer<KIVClientItem> first = played.item();
        const QPointer<KIVClientItem> same = played.item(":result:otdr:b:");
        played.player.seek(40);
        QVERIFY(played.client("late")->isValid());
        QCOMPARE(played.client()->getItemIds().size(), 3);
        SignalLog log(same);
        played.player.seek(5);
        QCOMPARE(played.value(), QVariant(1));
        QCOMPARE(played.item(), first.data());
        QCOMPARE(played.item()->getLabel() + played.item()->getUnitString(), QString());
        QVERIFY(played.item()->isReady() && played.item()->getQualityCode() == 0 && !played.item()->getMinRange().isValid());
        QCOMPARE(log.names, QStringList());
        QCOMPARE(played.client()->getItemIds().size(), 2);
        QVERIFY(!played.client("late")->isValid());
        played.player.seek(10);
        QCOMPARE(played.value(), QVariant(2));
    }

    /// Clients in other processes hear of a turn of the event loop as a whole.
    void everyChangeIsHeard()
    {
        PlayingBench played(start + value(10, 2) + value(10, 3) + value(11, 4) + R"({"t":11,"service":"otdr","gone":true})" "\n");
        QVERIFY(!played.player.advanceTo(20, Player::EachHeard));
        QCOMPARE(played.value(), QVariant(2));
        QVERIFY(!played.player.advanceTo(20, Player::EachHeard));
        QCOMPARE(played.value(), QVariant(3));
        QVERIFY(!played.player.advanceTo(20, Player::EachHeard));
        QCOMPARE(played.value(), QVariant(4));
        QVERIFY(played.player.advanceTo(20, Player::EachHeard));
        QVERIFY(!played.item());
    }

    void followsAClock()
    {
        PlayingBench played(start + value(100, 2) + value(200, 3));
        qint64 now = 1000;
        Playback playback(&played.player, [&now] { return now; });
        QStringList log;
        connect(&playback, &Playback::ended, [&log] { log += "ended"; });
        const auto at = [&](qint64 time) {
            now = time;
            playback.turn();
            return played.value().toInt();
        };
        QCOMPARE(at(9000), 1);
        playback.setSpeed(10);
        playback.setPaused(false);
        QCOMPARE(at(9009), 1);
        QCOMPARE(at(9010), 2);
        playback.setPaused(true);
        QCOMPARE(at(9900), 2);
        playback.setPaused(false);
        playback.setSpeed(1);
        QCOMPARE(at(9999), 2);
        playback.jumpTo(50);
        QCOMPARE(at(10'048), 1);
        QCOMPARE(at(10'049), 2);
        QCOMPARE(log, QStringList());
        QCOMPARE(at(10'149), 3);
        // Clients hear of the last change first.
        QCOMPARE(log, QStringList());
        QCOMPARE(at(10'149), 3);
        QCOMPARE(log, QStringList("ended"));
        playback.jumpTo(150);
        playback.setLooped(true);
        playback.setPaused(false);
        QCOMPARE(at(10'199), 3);
        QCOMPARE(at(10'199), 1);
        QCOMPARE(at(10'298), 1);
        QCOMPARE(at(10'299), 2);
        QCOMPARE(log, QStringList("ended"));
    }
};

QTEST_GUILESS_MAIN(RecordingsTest)
#include "tst_recordings.moc"
