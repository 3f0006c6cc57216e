#include "recordedservice.h"

#include "service/kivaggregatedata.h"
#include "service/kivlistaggregatedata.h"
#include "service/kivsignal.h"
#include "service/manifest.h"
#include "service/qmllistaggregate.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QQmlPropertyMap>
#include <QtTest>

#include <memory>
#include <utility>

namespace {

const QString limitsId = ":config:rec:limits:";
const QString eventsId = ":result:rec:events:";

KivAggregate limits(double low, double high)
{
    return KivAggregate({{"low", low}, {"high", high}, {QString::fromUtf8("größe").toUtf8(), "big"}});
}

KivListAggregate events(int rows)
{
    QVector<QVariantList> list;
    for (int i = 0; i < rows; ++i)
        list.append({i * 10, QString("event %1").arg(i)});
    return KivListAggregate({"distance", "kind"}, list);
}

} // namespace

class AggregatesTest : public QObject
{
    Q_OBJECT

private:
    QQmlEngine m_engine;
    std::unique_ptr<RecordedClient> m_client;
    std::unique_ptr<Manifest> m_manifest;
    RecordedAggregate* m_limits = nullptr;
    RecordedList* m_events = nullptr;

    static QQmlPropertyMap* map() { return Manifest::getKivData(limitsId)->getValue().value<QQmlPropertyMap*>(); }
    QVariant evaluated(const QString& text) { return QQmlExpression(m_engine.rootContext(), nullptr, text).evaluate(); }
    static QMLListAggregate* model() { return Manifest::getKivData(eventsId)->getValue().value<QMLListAggregate*>(); }

private Q_SLOTS:
    void init()
    {
        m_client = std::make_unique<RecordedClient>();
        m_limits = m_client->add<RecordedAggregate>(limitsId);
        m_limits->aggregate = limits(1, 2);
        m_events = m_client->add<RecordedList>(eventsId);
        m_events->list = events(2);
        m_manifest = std::make_unique<Manifest>(m_client.get(), "t", "rec");
        Manifest::setQmlContext(m_engine.rootContext());
    }
    void cleanup()
    {
        m_manifest.reset();
        m_client.reset();
    }

    void anAggregateIsAMap()
    {
        QCOMPARE(map()->value("low"), QVariant(1.0));
        QCOMPARE(map()->value(QString::fromUtf8("größe")), QVariant("big"));
        QSignalSpy changes(Manifest::getKivData(limitsId), &KivData::valueChanged);
        m_limits->aggregate = limits(3, 4);
        Q_EMIT m_limits->valueChanged();
        QCOMPARE(map()->value("high"), QVariant(4.0));
        QCOMPARE(changes.size(), 1);
        // Numbers with a tiny difference are different.
        for (const double low : {1690000000000.0, 1690000000001.0}) {
            m_limits->aggregate = limits(low, 2);
            Q_EMIT m_limits->valueChanged();
            QVERIFY(map()->value("low").toDouble() == low);
        }
    }

    void aMemberWrittenFromQml()
    {
        QSignalSpy changes(Manifest::getKivData(limitsId), &KivData::valueChanged);
        QQmlExpression write(m_engine.rootContext(), nullptr, "t_cfg_limits.value.low = 7; t_cfg_limits.value.low");
        // The service decides.
        QCOMPARE(write.evaluate(), QVariant(1.0));
        QVERIFY2(!write.hasError(), qPrintable(write.error().toString()));
        QCOMPARE(m_client->calls.size(), 1);
        QCOMPARE(m_client->calls.first().id, limitsId);
        const QVariantMap sent = m_client->calls.first().argument.toMap();
        QCOMPARE(sent.value("low"), QVariant(7.0));
        QCOMPARE(sent.value("high"), QVariant(2.0));
        QCOMPARE(changes.size(), 2);

        m_client->refusal = "low is over high";
        QSignalSpy errors(Manifest::getKivData(limitsId), &KivData::errorChanged);
        write.evaluate();
        QCOMPARE(errors.size(), 1);
        QCOMPARE(errors.first().at(1), QVariant("low is over high"));
        static_cast<KivAggregateData*>(Manifest::getKivData(limitsId))->updateAggregateProperty("none", 1);
        QCOMPARE(errors.size(), 2);
        QCOMPARE(m_client->calls.size(), 2);
    }

    void aPendingAggregateStartsFromTheItemsOwn()
    {
        auto* record = static_cast<KivAggregateData*>(Manifest::getKivData(limitsId));
        m_manifest->startChanges();
        record->updateAggregateProperty("low", 5);
        record->updateAggregateProperty("high", 6);
        QVERIFY(m_client->calls.isEmpty());
        m_manifest->applyChanges();
        QVERIFY(m_client->calls.last().argument.toString().contains("\"high\": 6"));
        QVERIFY(m_client->calls.last().argument.toString().contains("\"low\": 1"));
    }

    void anAggregateWithoutItsItem()
    {
        auto* record = static_cast<KivAggregateData*>(Manifest::getKivData(limitsId));
        m_client->remove(limitsId);
        record->updateAggregateProperty("low", 5);
        record->updateQmlMapFromItem();
        QCOMPARE(map()->value("low"), QVariant(1.0));
        QVERIFY(m_client->calls.isEmpty());
        m_client->add<RecordedAggregate>(limitsId)->aggregate = limits(8, 9);
        Q_EMIT m_client->itemsChanged();
        QCOMPARE(map()->value("low"), QVariant(8.0));
    }

    void aTableIsAModel()
    {
        QCOMPARE(model()->rowCount(), 2);
        QCOMPARE(model()->roleNames(), (QHash<int, QByteArray> {{257, "distance"}, {258, "kind"}}));
        QCOMPARE(model()->data(model()->index(1), 257), QVariant(10));
        QVERIFY(!model()->data(model()->index(2), 257).isValid());
        QVERIFY(!model()->data(model()->index(0), 259).isValid());
        QVERIFY(!model()->data(QModelIndex(), 257).isValid());
        QCOMPARE(model()->rowCount(model()->index(0)), 0);
    }

    void aNewTableResetsTheModel()
    {
        QSignalSpy before(model(), &QAbstractItemModel::modelAboutToBeReset);
        QSignalSpy after(model(), &QAbstractItemModel::modelReset);
        QSignalSpy changes(Manifest::getKivData(eventsId), &KivData::valueChanged);
        QMLListAggregate* same = model();
        m_events->list = events(0);
        Q_EMIT m_events->valueChanged();
        QCOMPARE(before.size(), 1);
        QCOMPARE(after.size(), 1);
        QVERIFY(changes.isEmpty());
        QCOMPARE(model(), same);
        QCOMPARE(model()->rowCount(), 0);
        QCOMPARE(model()->roleNames().size(), 2);
        // It may return with other members.
        m_client->remove(eventsId);
        m_client->add<RecordedList>(eventsId)->list = KivListAggregate({"loss"}, {{0.5}});
        Q_EMIT m_client->itemsChanged();
        QCOMPARE(model()->roleNames().values(), QList<QByteArray> {"loss"});
        QCOMPARE(model()->data(model()->index(0), 257), QVariant(0.5));
        QCOMPARE(changes.size(), 2);
    }

    /// A slot that receives one member may make the service report a complete new aggregate or table.
    void reportsWithinReports()
    {
        QQmlExpression watch(m_engine.rootContext(), nullptr, "t_cfg_limits.value.low");
        watch.setNotifyOnValueChanged(true);
        watch.evaluate();
        bool isFirst = true;
        connect(&watch, &QQmlExpression::valueChanged, this, [&] {
            if (!std::exchange(isFirst, false))
                return;
            m_limits->aggregate = limits(30, 30);
            Q_EMIT m_limits->valueChanged();
        });
        m_limits->aggregate = limits(20, 20);
        Q_EMIT m_limits->valueChanged();
        QCOMPARE(map()->value("low"), QVariant(30.0));
        QCOMPARE(map()->value("high"), QVariant(30.0));

        connect(model(), &QAbstractItemModel::modelAboutToBeReset, this, [&] { m_events->list = events(5); });
        m_events->list = events(4);
        Q_EMIT m_events->valueChanged();
        QCOMPARE(model()->rowCount(), 5);
    }

    /// A write within a write, and then the end of everything.
    void nestedWrites()
    {
        int depth = 0;
        const QPointer<KivData> record = Manifest::getKivData(limitsId);
        connect(record, &KivData::valueChanged, this, [&] {
            if (++depth == 1)
                evaluated("t_cfg_limits.value.high = 8");
            else
                m_manifest.reset();
        });
        evaluated("t_cfg_limits.value.low = 7");
        QVERIFY(!record);

        m_manifest = std::make_unique<Manifest>(m_client.get(), "t", "rec");
        Manifest::setQmlContext(m_engine.rootContext());
        connect(map(), &QQmlPropertyMap::valueChanged, this, [this] { m_manifest.reset(); });
        evaluated("t_cfg_limits.value.low = 9");
        QVERIFY(!m_manifest);
    }

    void aHandlerThatWritesItsAggregate()
    {
        auto* record = static_cast<KivAggregateData*>(Manifest::getKivData(limitsId));
        int runs = 0;
        connect(record, &KivData::valueChanged, this, [&] { record->updateAggregateProperty("low", qMin(++runs + 1, 3)); });
        Q_EMIT m_limits->valueChanged();
        QCOMPARE(m_client->calls.last().argument.toMap().value("low"), QVariant(3.0));
        QCOMPARE(m_client->calls.size(), 2);
    }

    void theEngineNeverCollectsTheMap()
    {
        const QPointer<QQmlPropertyMap> kept = map();
        evaluated("var m = t_cfg_limits.value; m.low");
        m_engine.collectGarbage();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(kept);
    }

    void errorsThatAServiceReports()
    {
        RecordedBackend backend;
        backend.client = m_client.get();
        KIVSignal relay;
        QSignalSpy errors(&relay, &KIVSignal::signalKIVError);
        QSignalSpy changes(&relay, &KIVSignal::serviceChanged);
        relay.setProperty("service", "rec");
        relay.setService("rec");
        Q_EMIT m_client->SigError("out of paper");
        QCOMPARE(errors.size(), 1);
        QCOMPARE(errors.first().first(), QVariant("out of paper"));
        QVERIFY(changes.isEmpty());
        relay.setService("unknown");
        Q_EMIT m_client->SigError("again");
        QCOMPARE(errors.size(), 1);
        // One that can be reached only later is heard from then, once.
        m_client->valid = false;
        relay.setService("rec");
        Q_EMIT m_client->SigError("too early");
        m_client->valid = true;
        Q_EMIT m_client->itemsChanged();
        Q_EMIT m_client->itemsChanged();
        Q_EMIT m_client->SigError("in time");
        QCOMPARE(errors.size(), 2);
        QCOMPARE(errors.last().first(), QVariant("in time"));
        m_manifest.reset();
        m_client.reset();
        relay.setService("unknown");
    }
};

QTEST_GUILESS_MAIN(AggregatesTest)
#include "tst_aggregates.moc"
