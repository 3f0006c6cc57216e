#include "stand.h"

#include "inspector/changefollower.h"
#include "inspector/changelog.h"
#include "inspector/servicerecording.h"
#include "inspector/favourites.h"
#include "inspector/inspectedservice.h"
#include "inspector/itemglance.h"
#include "inspector/itemrows.h"
#include "service/kivdata.h"
#include "service/manifest.h"

using namespace uiutils::inspector;
using uiutils::PendingChanges;
using kiv::embedded::EmbeddedService;
using kiv::embedded::ItemDescription;

namespace {

QStringList column(const QAbstractItemModel& model, int role)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts += model.index(row, 0).data(role).toString();
    return texts;
}

QStringList names(const ItemRows& rows)
{
    return column(rows, ItemRows::NameRole);
}

const QStringList allNames {"clock_cfg_zone", "meter_cfg_range", "meter_cfg_locked", "meter_res_power", "meter_res_trace",
        "meter_res_table", "meter_act_run"};

/// Time that stands until the test moves it on.
struct Time
{
    qint64 now = 1'000'000;
    ChangeLog::Clock clock()
    {
        return [this] { return now; };
    }
};

} // namespace

/// What the panel shows, without the panel.
class InspectorModelsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Stand> m_stand;

    Manifest* manifest() const { return m_stand->host.manifest("com.example.meter"); }
    void fill(ItemRows* rows) const
    {
        for (const QString& name : m_stand->host.serviceNames())
            rows->add(m_stand->host.manifest(name));
    }
    InspectedService* inspected(QObject* parent) const
    {
        return new InspectedService(manifest(), [this] { return m_stand->host.ownService("com.example.meter"); }, parent);
    }

private Q_SLOTS:
    void init() { m_stand = std::make_unique<Stand>(); }
    void cleanup() { m_stand.reset(); }

    // --- Rows ---

    void rowsAreFoundByWords_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("everything, service by service, in their order") << "" << allNames;
        QTest::newRow("label") << "power" << QStringList {"clock_cfg_zone", "meter_res_power"};
        QTest::newRow("every word, in any order and case") << " OPTICAL  met" << QStringList {"meter_res_power"};
        QTest::newRow("accents") << u8"pówer" << QStringList {"clock_cfg_zone", "meter_res_power"};
        QTest::newRow("page's name") << "res_t" << QStringList {"meter_res_trace", "meter_res_table"};
        QTest::newRow("id") << ":trace:" << QStringList {"meter_res_trace"};
        QTest::newRow("one word is not there") << "power nowhere" << QStringList();
        QTest::newRow("words do not reach over fields") << "power:" << QStringList {"meter_res_power"};
        QTest::newRow("a service") << "clock_" << QStringList {"clock_cfg_zone"};
    }
    void rowsAreFoundByWords()
    {
        QFETCH(QString, text);
        Favourites favourites({});
        ItemRows rows(&favourites);
        fill(&rows);
        rows.setText(text);
        QTEST(names(rows), "found");
        QCOMPARE(rows.count(), rows.rowCount());
        QCOMPARE(rows.total(), allNames.size());
    }

    void favouritesAreKept()
    {
        const QString file = m_stand->path("deep/favourites");
        {
            Favourites favourites(file);
            ItemRows rows(&favourites);
            fill(&rows);
            rows.setFavouritesOnly(true);
            QCOMPARE(names(rows), QStringList());
            rows.setFavourite(powerId, true);
            rows.setFavourite(rangeId, true);
            rows.setFavourite(lockedId, true);
            rows.setFavourite(lockedId, false);
            QCOMPARE(names(rows), QStringList({"meter_cfg_range", "meter_res_power"}));
        }
        QCOMPARE(contentsOf(file), QByteArray(rangeId.toUtf8() + '\n' + powerId.toUtf8() + '\n'));
        Favourites again(file);
        ItemRows rows(&again);
        fill(&rows);
        QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
        rows.setFavourite(powerId, false);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(names(rows).at(changes.first().first().toModelIndex().row()), "meter_res_power");
        QCOMPARE(column(rows, ItemRows::FavouriteRole), QStringList({"false", "true", "false", "false", "false", "false", "false"}));
    }

    /// A service that is away leaves its rows as they are, with their names and their place on the screen.
    void rowsFollowServices()
    {
        Favourites favourites({});
        ItemRows rows(&favourites);
        fill(&rows);
        QSignalSpy resets(&rows, &QAbstractItemModel::modelReset);
        m_stand->meter->setReachable(false);
        QCOMPARE(names(rows), allNames);
        m_stand->meter->setReachable(true);
        QCOMPARE(names(rows), allNames);
        QCOMPARE(resets.size(), 0);

        ItemDescription added;
        added.id = ":result:meter:late:";
        added.type = "int";
        QVERIFY(m_stand->meter->addItem(added));
        QCOMPARE(names(rows), allNames + QStringList("meter_res_late"));
        QVERIFY(m_stand->meter->removeItem(powerId));
        QStringList left = allNames + QStringList("meter_res_late");
        left.removeOne("meter_res_power");
        QCOMPARE(names(rows), left);
        QCOMPARE(rows.rowOf(Manifest::getKivData(rangeId)), 1);
        QCOMPARE(rows.rowOf(Manifest::getKivData(powerId)), -1);
        QCOMPARE(rows.rowOf(nullptr), -1);
        {
            Manifest second(m_stand->client, "second", "com.example.meter");
            rows.add(&second);
            QCOMPARE(rows.count(), 2 * left.size() - 1);
            QCOMPARE(names(rows).last(), "second_res_late");
        }
        QCOMPARE(names(rows), left);
    }

    // --- One item ---

    void aGlanceFollowsItsItem()
    {
        ItemGlance glance;
        QCOMPARE(glance.text() + glance.title() + glance.trouble(), "");
        KivData* const power = Manifest::getKivData(powerId);
        glance.setItem(power);
        QCOMPARE(glance.title(), "Optical Power");
        QCOMPARE(glance.name(), "meter_res_power");
        QCOMPARE(glance.text(), "1.5 dBm");
        QVERIFY(glance.isNumber());

        // What comes too fast to be read is shown a little later, the last of it.
        QSignalSpy changes(&glance, &ItemGlance::changed);
        for (int i = 0; i < 100; ++i)
            m_stand->meter->setValue(powerId, i);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(glance.text(), "0 dBm");
        QTRY_COMPARE(glance.text(), "99 dBm");

        m_stand->meter->setReady(powerId, false);
        m_stand->meter->setQuality(powerId, KIVClientItem::QualityFailing);
        QTRY_COMPARE(glance.trouble(), "Not ready");
        QTRY_COMPARE(glance.quality(), 64);
        m_stand->meter->setReady(powerId, true);
        m_stand->meter->setApplicable(powerId, false);
        QTRY_COMPARE(glance.trouble(), "Not applicable");
        m_stand->meter->setReachable(false);
        QTRY_COMPARE(glance.trouble(), "Not available");
        QCOMPARE(glance.title() + glance.name() + glance.type(), "Optical Powermeter_res_powerdouble");
        m_stand->meter->setReachable(true);
        QTRY_COMPARE(glance.trouble(), "Not applicable");

        // The item before is heard no more.
        glance.setItem(Manifest::getKivData(rangeId));
        QCOMPARE(glance.text(), "7");
        changes.clear();
        ItemGlance witness;
        witness.setItem(Manifest::getKivData(powerId));
        m_stand->meter->setValue(powerId, 5);
        QTRY_VERIFY(witness.text().startsWith('5'));
        QCOMPARE(changes.size(), 0);
    }

    void longValuesAreShort()
    {
        ItemGlance trace;
        trace.setItem(Manifest::getKivData(":result:meter:trace:doubleARRAY:"));
        QCOMPARE(trace.text(), "3 elements");
        ItemGlance table;
        table.setItem(Manifest::getKivData(":result:meter:test:table:"));
        QCOMPARE(table.text(), "2 elements");
        m_stand->meter->setValue(":result:meter:test:table:", QVariantList {QVariantMap {{"a", 1}}, QVariantMap {{"a", 1}}, QVariantMap {{"a", 1}}});
        QTRY_COMPARE(table.text(), "3 elements");
        ItemGlance text;
        text.setItem(Manifest::getKivData(":config:clock:zone:"));
        m_stand->host.ownService("clock")->setValue(":config:clock:zone:", "a\nb " + QString(5000, 'x'));
        QTRY_COMPARE(text.text(), "a b " + QString(116, 'x') + QChar(0x2026));
    }

    // --- The log ---

    void theLogIsBounded()
    {
        Time time;
        ChangeLog log(5, time.clock());
        for (int i = 0; i < 8; ++i) {
            time.now = 1'000'000 + i;
            log.add({ChangeLog::Value, powerId, "power", QString::number(i), double(i)});
            if (i == 3)
                log.flush();
        }
        log.flush();
        QCOMPARE(column(log, ChangeLog::TextRole), QStringList({"7", "6", "5", "4", "3"}));
        QCOMPARE(column(log, ChangeLog::TimeRole).last(), QDateTime::fromMSecsSinceEpoch(1'000'003).toString("HH:mm:ss.zzz"));
        QCOMPARE(log.fallen(), 3.0);
        QCOMPARE(log.history(powerId), QVariantList({QVariantList {1000.003, 1000.004, 1000.005, 1000.006, 1000.007}, QVariantList {3., 4., 5., 6., 7.}}));
        QCOMPARE(log.history(rangeId), QVariantList({QVariantList(), QVariantList()}));
        // A loop that does not run does not make it grow.
        for (int i = 0; i < 23; ++i)
            log.add({ChangeLog::Value, powerId, "power", QString::number(i), double(i)});
        QVERIFY(log.count() <= 5);
        log.flush();
        QCOMPARE(column(log, ChangeLog::TextRole), QStringList({"22", "21", "20", "19", "18"}));
        QCOMPARE(log.fallen(), 26.0);
        log.clear();
        QCOMPARE(log.count() + int(log.fallen()), 0);
    }

    /// However much happens, the memory has a limit, and what is saved begins with everything as it was.
    void aRecordingBeginsAnew()
    {
        ServiceRecording recording(&m_stand->host, m_stand->path("root"));
        recording.begin();
        for (int i = 0; i < 100; ++i) {
            QVERIFY(m_stand->meter->setValue(":result:meter:trace:doubleARRAY:", QVariantList::fromVector(QVector<QVariant>(100'000, 100.5 + i))));
            QCoreApplication::processEvents();
        }
        recording.save();
        const QString path = recording.text().section(": ", 0, 0);
        const QByteArray lines = contentsOf(path);
        QVERIFY2(lines.size() < ServiceRecording::mostBytes && lines.contains("199.5") && !lines.contains("100.5"), qPrintable(recording.text()));
        for (const char* service : {"com.example.meter", "clock"})
            QVERIFY(lines.contains(QByteArray("\"service\":\"") + service + "\",\"snapshot\""));
        // Never over another one.
        recording.save();
        QVERIFY(recording.text().contains("exists") || recording.text() != path);
        QCOMPARE(contentsOf(path).size(), lines.size());
    }

    void aPausedLogStays()
    {
        ChangeLog log(5);
        log.add({ChangeLog::Value, powerId, "power", "before", double(1)});
        log.setPaused(true);
        QCOMPARE(column(log, ChangeLog::TextRole), QStringList("before"));
        log.add({ChangeLog::Value, powerId, "power", "meanwhile", double(2)});
        log.add({ChangeLog::Value, powerId, "power", "meanwhile", double(3)});
        log.setPaused(false);
        log.add({ChangeLog::Value, powerId, "power", "after", double(4)});
        QTRY_COMPARE(column(log, ChangeLog::TextRole), QStringList({"after", "before"}));
        QCOMPARE(log.missed(), 2.0);
    }

    void everyChangeIsNoted()
    {
        ChangeLog log;
        const ChangeFollower follower(m_stand->client, &log);
        QTRY_VERIFY(follower.isComplete());
        const auto noted = [&log] {
            log.flush();
            QStringList lines;
            for (int row = 0; row < log.count(); ++row)
                lines += column(log, ChangeLog::NameRole).at(row) + "|" + column(log, ChangeLog::KindRole).at(row) + "|" + column(log, ChangeLog::TextRole).at(row);
            log.clear();
            return lines;
        };
        EmbeddedService* const meter = m_stand->meter;
        meter->setValue(powerId, 2.5);
        meter->setValue(powerId, 2.5);
        meter->setUnit(powerId, "dB");
        meter->setReady(powerId, false);
        meter->setQuality(powerId, KIVClientItem::QualityWarning);
        meter->setApplicable(powerId, false);
        meter->reportError("Too hot");
        QCOMPARE(noted(), QStringList({"com.example.meter|Error|Too hot", "meter_res_power|Applicability|Not applicable",
                                  "meter_res_power|Quality|Warning", "meter_res_power|Readiness|Not ready",
                                  "meter_res_power|Unit|dB", "meter_res_power|Value|2.5 dBm"}));
        meter->setReachable(false);
        meter->setValue(powerId, 3);
        QCOMPARE(noted(), QStringList("com.example.meter|Service|The service has gone"));
        meter->setReachable(true);
        QTRY_VERIFY(follower.isComplete());
        meter->setValue(powerId, 4);
        // Once, although the item was listened to before.
        QCOMPARE(noted(), QStringList({"meter_res_power|Value|4 dB", "com.example.meter|Service|The service has come"}));
        ItemDescription added;
        added.id = ":result:meter:late:";
        added.type = "int";
        QVERIFY(meter->addItem(added));
        QTRY_VERIFY(follower.isComplete());
        meter->setValue(added.id, 1);
        meter->setValue(powerId, 5);
        meter->removeItem(added.id);
        QCOMPARE(noted(), QStringList({"meter_res_late|Service|The item has gone", "meter_res_power|Value|5 dB", "meter_res_late|Value|1",
                                  "meter_res_late|Service|The item has come"}));
    }

    // --- Hands ---

    void clientsSeeWhatHandsDo()
    {
        QObject parent;
        InspectedService* const hands = inspected(&parent);
        QVERIFY(hands->isOwn());
        QCOMPARE(hands->itemCount(), 7);
        const KIVClientItem* const power = m_stand->client->getItem(powerId);
        QVERIFY(hands->setQuality(powerId, 16) && hands->setReady(powerId, false) && hands->setApplicable(powerId, false));
        QCOMPARE(power->getQualityCode(), 16);
        QVERIFY(!power->isReady() && !power->isApplicable());
        QCOMPARE(hands->setValue(powerId, "-3.25"), "");
        QCOMPARE(power->getValue(), QVariant(-3.25));
        QVERIFY(hands->setValue(powerId, "many") != "");
        QCOMPARE(hands->setValue(":result:meter:trace:doubleARRAY:", "[4, 5]"), "");
        QCOMPARE(m_stand->client->getItem(":result:meter:trace:doubleARRAY:")->getValue(), QVariant(QVariantList {4.0, 5.0}));
        QCOMPARE(hands->setLimits(rangeId, "3", ""), "");
        QCOMPARE(m_stand->client->getItem(rangeId)->getMinRange(), QVariant(3));
        QVERIFY(!m_stand->client->getItem(rangeId)->getMaxRange().isValid());
        QVERIFY(!m_stand->client->setItem(rangeId, 2));
        QVERIFY(hands->setLimits(rangeId, "9", "8") != "");
        QVERIFY(!hands->setQuality(":nowhere:", 16));
    }

    /// What was done to a service ends with the object, and what the service did by itself is there again.
    void servicesAreDisturbedAndPutRight()
    {
        QObject parent;
        InspectedService* hands = inspected(&parent);
        m_stand->meter->setDelay(3);
        hands->setSlow(true);
        QCOMPARE(m_stand->meter->delay(), InspectedService::slowness);
        hands->setSlow(false);
        QCOMPARE(m_stand->meter->delay(), 3);
        hands->setRefusing(true);
        QVERIFY(hands->isRefusing() && !m_stand->client->setItem(rangeId, 8));
        QCOMPARE(m_stand->client->getLastError(), "Rejected by hand");
        hands->setRefusing(false);
        QVERIFY(m_stand->client->setItem(rangeId, 8));
        QVERIFY(!m_stand->client->setItem(lockedId, 8));
        QCOMPARE(m_stand->client->getLastError(), "The key is turned.");

        QSignalSpy changes(hands, &InspectedService::changed);
        hands->setAway(true);
        QVERIFY(hands->isAway() && !hands->isAvailable() && !m_stand->client->isValid() && !changes.isEmpty());
        hands->setSlow(true);
        hands->setRefusing(true);
        delete hands;
        QVERIFY(m_stand->client->isValid());
        QCOMPARE(m_stand->meter->delay(), 3);
        QVERIFY(m_stand->client->setItem(rangeId, 9));
        // A service that went by itself stays away.
        hands = inspected(&parent);
        m_stand->meter->setReachable(false);
        delete hands;
        QVERIFY(!m_stand->client->isValid());
    }

    void aServiceElsewhereIsLeftAlone()
    {
        InspectedService hands(manifest(), [] { return nullptr; });
        QVERIFY(!hands.isOwn());
        hands.setSlow(true);
        hands.setRefusing(true);
        hands.setAway(true);
        QVERIFY(!hands.isSlow() && !hands.isRefusing() && !hands.isAway() && m_stand->client->isValid());
        QVERIFY(!hands.setReady(powerId, false) && hands.setValue(powerId, 1) != "" && hands.setLimits(rangeId, "1", "2") != "");
        QCOMPARE(m_stand->client->getItem(powerId)->getValue(), QVariant(1.5));
    }

    void pendingChangesAreShown()
    {
        QObject parent;
        InspectedService* const service = inspected(&parent);
        const PendingChanges& pending = *service->pending();
        KivData* const range = Manifest::getKivData(rangeId);
        QVERIFY(!pending.isChanging());
        manifest()->startChanges();
        QVERIFY(pending.isChanging() && pending.count() == 0);
        range->setValue(42);
        QCOMPARE(pending.count(), 1);
        const QModelIndex row = pending.index(0);
        QCOMPARE(service->nameOf(row.data(PendingChanges::ItemRole).value<KivData*>()), QString("meter_cfg_range"));
        QCOMPARE(row.data(PendingChanges::OldValueRole), QVariant(7));
        QCOMPARE(row.data(PendingChanges::NewValueRole), QVariant(42));
        QCOMPARE(m_stand->client->getItem(rangeId)->getValue(), QVariant(7));
        manifest()->revertChanges();
        QVERIFY(!pending.isChanging() && pending.count() == 0);

        // What the service rejected stays pending, with the reason.
        manifest()->startChanges();
        range->setValue(42);
        m_stand->meter->setRefusal(rangeId, "No");
        manifest()->applyChanges();
        QVERIFY(!pending.isChanging());
        QCOMPARE(pending.index(0).data(PendingChanges::ProblemRole), QVariant("No"));
        m_stand->meter->setRefusal(rangeId, "");
        manifest()->applyChanges();
        QCOMPARE(pending.count(), 0);
        QCOMPARE(m_stand->client->getItem(rangeId)->getValue(), QVariant(42));
    }
};

QTEST_MAIN(InspectorModelsTest)
#include "tst_models.moc"
