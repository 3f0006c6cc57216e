#include "platformsetup.h"

#include <kiv/kivbackend.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>
#include <kiv/kivitemsnapshot.h>
#include <kiv/system.h>

#include <QLocale>
#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

class PlatformTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PlatformSetup> m_setup;

private Q_SLOTS:
    void init()
    {
        const QString data = QStringLiteral(UIUTILS_TEST_DATA_DIR "/services/");
        m_setup = PlatformSetup::create({data + "basemgr.service.json", data + "kinds.service.json"});
        QVERIFY(m_setup);
    }
    void cleanup() { m_setup.reset(); }

    void clientsByName()
    {
        KIVClientInterface* base = KIVClientInterface::getBaseMgrClient();
        QVERIFY(base);
        QVERIFY(base->isValid());
        QCOMPARE(base->getServiceName(), QString("basemgr"));
        QCOMPARE(KIVClientInterface::getBaseMgrClient(), base);

        KIVClientInterface* shared = KIVClientInterface::getSessionBusClient("kinds");
        QVERIFY(shared);
        QCOMPARE(KIVClientInterface::getSessionBusClient("kinds"), shared);
        QVERIFY(!KIVClientInterface::getSessionBusClient("unknown"));
        QVERIFY(!KIVClientInterface::getSessionBusClient(""));
    }

    void aClientOfOnesOwnDiesWithItsParent()
    {
        auto parent = std::make_unique<QObject>();
        QPointer<KIVClientInterface> own = KIVClientInterface::getSessionBusClient("kinds", parent.get());
        QVERIFY(own);
        QVERIFY(own != KIVClientInterface::getSessionBusClient("kinds"));
        QCOMPARE(own->getItem(":config:kinds:test:speed:"),
                KIVClientInterface::getSessionBusClient("kinds")->getItem(":config:kinds:test:speed:"));
        parent.reset();
        QVERIFY(!own);
    }

    void aClientOutlivesItsService()
    {
        QObject parent;
        KIVClientInterface* own = KIVClientInterface::getSessionBusClient("kinds", &parent);
        const QPointer<KIVClientItem> item = own->getItem(":config:kinds:test:speed:");
        QVERIFY(item);
        m_setup.reset();
        QVERIFY(!item);
        QVERIFY(!own->isValid());
        QVERIFY(!own->getItem(":config:kinds:test:speed:"));
        QVERIFY(own->getItemIds().isEmpty());
        QVERIFY(!KIVBackend::current());
        QVERIFY(!KIVClientInterface::getBaseMgrClient());
        QVERIFY(!KIVClientInterface::getSessionBusClient("kinds"));
    }

    void idsBelowAPrefix()
    {
        const KIVClientInterface* client = KIVClientInterface::getSessionBusClient("kinds");
        QStringList sorted = client->getItemIds();
        QCOMPARE(sorted.size(), 9);
        std::sort(sorted.begin(), sorted.end());
        QCOMPARE(client->getItemIds(), sorted);
        QCOMPARE(client->getItemIds(":result:kinds:trace_"),
                (QStringList {":result:kinds:trace_x:doubleARRAY:", ":result:kinds:trace_y:doubleARRAY:"}));
        QCOMPARE(client->getItemIds(":result:nothing:"), QStringList());
    }

    void items_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("textWithoutUnit");
        QTest::newRow("string") << ":config:kinds:test:name:" << "name" << QVariant("Fiber 7") << "Fiber 7" << "Fiber 7";
        QTest::newRow("bool") << ":config:kinds:test:on:" << "on" << QVariant(true) << "true" << "true";
        QTest::newRow("int") << ":config:kinds:test:level:" << "level" << QVariant(-3) << "-3" << "-3";
        QTest::newRow("double") << ":config:kinds:test:speed:" << "speed" << QVariant(1234.5) << "1,234.50 Mbit/s"
                                << "1,234.50";
        QTest::newRow("texts") << ":config:kinds:test:hosts:stringARRAY:" << "hosts" << QVariant(QStringList {"a", "", "c"})
                               << "a, , c" << "a, , c";
        QTest::newRow("numbers") << ":result:kinds:trace_y:doubleARRAY:" << "trace_y"
                                 << QVariant(QVariantList {0.5, -1.0}) << "0.5, -1 dB" << "0.5, -1";
        QTest::newRow("without a value") << ":result:kinds:pending:" << "pending" << QVariant() << "" << "";
    }
    void items()
    {
        QFETCH(QString, id);
        QFETCH(QString, name);
        QFETCH(QVariant, value);
        QFETCH(QString, text);
        QFETCH(QString, textWithoutUnit);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        const KIVClientItem* item = KIVClientInterface::getSessionBusClient("kinds")->getItem(id);
        QVERIFY(item);
        QCOMPARE(item->getId(), id);
        QCOMPARE(item->getName(), name);
        QCOMPARE(item->getValue(), value);
        QCOMPARE(item->getValue().type(), value.type());
        QCOMPARE(item->getValueString(), text);
        QCOMPARE(item->getValueString(false), textWithoutUnit);
    }

    void shownNumbersFollowTheLocale()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        const KIVClientItem* item
                = KIVClientInterface::getSessionBusClient("kinds")->getItem(":config:kinds:test:speed:");
        QCOMPARE(item->getValueString(), QString("1.234,50 Mbit/s"));
        QCOMPARE(item->getUnitString(), QString("Mbit/s"));
    }

    void attributes()
    {
        const KIVClientItem* item
                = KIVClientInterface::getSessionBusClient("kinds")->getItem(":config:kinds:test:speed:");
        QCOMPARE(item->getAttribute("scale"), QVariant("log"));
        QVERIFY(!item->getAttribute("missing").isValid());
        QCOMPARE(item->getLabel(), QString("Speed"));
    }

    void aChangeIsReportedOnce()
    {
        const KIVClientItem* item
                = KIVClientInterface::getSessionBusClient("kinds")->getItem(":config:kinds:test:speed:");
        QVariant seen;
        connect(item, &KIVClientItem::valueChanged, this, [&] { seen = item->getValue(); });
        QSignalSpy changes(item, &KIVClientItem::valueChanged);
        QVERIFY(m_setup->report("kinds", item->getId(), 99.0));
        QTRY_COMPARE(changes.size(), 1);
        QCOMPARE(seen, QVariant(99.0));
        QVERIFY(m_setup->report("kinds", item->getId(), 99.0));
        QVERIFY(m_setup->report("kinds", item->getId(), 100.0));
        QTRY_COMPARE(item->getValue(), QVariant(100.0));
        QCOMPARE(changes.size(), 2);
        QVERIFY(!m_setup->report("kinds", ":config:kinds:unknown:", 1));
        // A large counter's steps are changes too.
        QVERIFY(m_setup->report("kinds", item->getId(), 2e13));
        QVERIFY(m_setup->report("kinds", item->getId(), 2e13 + 1));
        QTRY_COMPARE(changes.size(), 4);
    }

    void snapshotsKeepWhatWas()
    {
        KIVItemSnapshot snapshot(KIVClientInterface::getSessionBusClient("kinds"), ":config:kinds:test:");
        const auto names = [&] {
            QStringList names;
            for (const KIVItemSnapshot::Item& item : snapshot.items())
                names += item.name;
            return names;
        };
        QCOMPARE(names(), (QStringList {"count", "hosts", "level", "name", "on", "speed"}));
        snapshot.labelSort();
        QCOMPARE(names(), (QStringList {"count", "hosts", "on", "level", "name", "speed"}));
        QVERIFY(m_setup->report("kinds", ":config:kinds:test:speed:", 1.0));
        m_setup.reset();
        QCOMPARE(snapshot.items().last().value, QVariant(1234.5));
        QCOMPARE(snapshot.items().last().label, QString("Speed"));
        QVERIFY(KIVItemSnapshot(nullptr).items().isEmpty());
    }

    void timeOfDay()
    {
        const QRegularExpression form("^[0-2][0-9]:[0-5][0-9]:[0-5][0-9]$");
        QVERIFY(form.match(System::getInstance().getCurrentTime()).hasMatch());
    }
};

QTEST_GUILESS_MAIN(PlatformTest)
#include "tst_platform.moc"
