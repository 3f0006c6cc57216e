#include "columns.h"
#include "platformsetup.h"

#include <kiv/filesystemusage.h>
#include <kiv/kivaggregateclientitem.h>
#include <kiv/kivbackend.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>
#include <kiv/kivenumclientitem.h>
#include <kiv/kivitemsnapshot.h>
#include <kiv/kivrejectedsettings.h>
#include <kiv/kivvecclientitem.h>
#include <kiv/system.h>

#include <functional>
#include <map>

namespace {

KIVClientInterface* station()
{
    return KIVClientInterface::getSessionBusClient("station");
}

KIVClientItem* stationItem(const char* id)
{
    return station()->getItem(id);
}

const QString modeId = QStringLiteral(":config:station:setup:mode:");
const QString levelId = QStringLiteral(":config:station:setup:level_3:");
const QString stateId = QStringLiteral(":result:station:state:");
const QString applyId = QStringLiteral(":action:station:applyconfig:");

QString json(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace

class PlatformTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PlatformSetup> m_setup;

private Q_SLOTS:
    void init()
    {
        const QString data = QStringLiteral(UIUTILS_TEST_DATA_DIR "/services/");
        m_setup = PlatformSetup::create({data + "basemgr.service.json", data + "kinds.service.json",
                data + "station.service.json"});
        QVERIFY(m_setup);
    }
    void cleanup() { m_setup.reset(); }

    void clientsByName()
    {
        KIVClientInterface* base = KIVClientInterface::getBaseMgrClient();
        QVERIFY(base && base->isValid());
        QCOMPARE(base->getServiceName(), QString("basemgr"));
        QCOMPARE(KIVClientInterface::getBaseMgrClient(), base);

        KIVClientInterface* shared = KIVClientInterface::getSessionBusClient("kinds");
        QVERIFY(shared);
        QCOMPARE(KIVClientInterface::getSessionBusClient("kinds"), shared);
        // Where a service may still come, there is a client to wait for it.
        const KIVClientInterface* unknown = KIVClientInterface::getSessionBusClient("unknown");
        QVERIFY(!unknown || !unknown->isValid());
        QVERIFY(!KIVClientInterface::getSessionBusClient(""));

        // A client with a parent is deleted with the parent.
        auto parent = std::make_unique<QObject>();
        QPointer<KIVClientInterface> own = KIVClientInterface::getSessionBusClient("kinds", parent.get());
        QVERIFY(own && own != shared);
        QCOMPARE(own->getItem(":config:kinds:test:speed:"), shared->getItem(":config:kinds:test:speed:"));
        parent.reset();
        QVERIFY(!own);
    }

    void aClientOutlivesItsService()
    {
        QObject parent;
        KIVClientInterface* own = KIVClientInterface::getSessionBusClient("kinds", &parent);
        const QPointer<KIVClientItem> item = own->getItem(":config:kinds:test:speed:");
        QVERIFY(item);
        QSignalSpy lists(own, &KIVClientInterface::itemsChanged);
        m_setup.reset();
        QCOMPARE(lists.size(), 1);
        QVERIFY(!item && !own->isValid());
        QVERIFY(!own->getItem(":config:kinds:test:speed:"));
        QVERIFY(own->getItemIds().isEmpty() && !KIVBackend::current());
        QVERIFY(!KIVClientInterface::getBaseMgrClient());
        QVERIFY(!KIVClientInterface::getSessionBusClient("kinds"));
    }

    void idsBelowAPrefixAndInTheOrderOfTheService()
    {
        const KIVClientInterface* client = KIVClientInterface::getSessionBusClient("kinds");
        QStringList sorted = client->getItemIds();
        QCOMPARE(sorted.size(), 9);
        std::sort(sorted.begin(), sorted.end());
        QCOMPARE(client->getItemIds(), sorted);
        QCOMPARE(client->getItemIds(":result:kinds:trace_"),
                (QStringList {":result:kinds:trace_x:doubleARRAY:", ":result:kinds:trace_y:doubleARRAY:"}));
        QCOMPARE(client->getItemIds(":result:nothing:"), QStringList());

        QStringList ids {"old"};
        QVERIFY(station()->getItemList("station", &ids));
        QCOMPARE(ids.size(), station()->getItemIds().size());
        QCOMPARE(ids.mid(0, 3), (QStringList {":result:station:manifest:", modeId, levelId}));
        QVERIFY(!station()->getItemList("kinds", &ids));
        QVERIFY(ids.isEmpty());
    }

    void values()
    {
        using Row = std::tuple<const char*, const char*, QVariant, const char*, const char*>;
        const KIVClientInterface* kinds = KIVClientInterface::getSessionBusClient("kinds");
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        for (const auto& [id, name, value, text, textWithoutUnit] :
                {Row(":config:kinds:test:name:", "name", "Fiber 7", "Fiber 7", "Fiber 7"),
                     Row(":config:kinds:test:on:", "on", true, "true", "true"), Row(":config:kinds:test:level:", "level", -3, "-3", "-3"),
                     Row(":config:kinds:test:speed:", "speed", 1234.5, "1,234.50 Mbit/s", "1,234.50"),
                     Row(":config:kinds:test:hosts:stringARRAY:", "hosts", QStringList {"a", "", "c"}, "a, , c", "a, , c"),
                     Row(":result:kinds:trace_y:doubleARRAY:", "trace_y", QVariantList {0.5, -1.0}, "0.5, -1 dB", "0.5, -1"),
                     Row(":result:kinds:pending:", "pending", QVariant(), "", "")}) {
            const KIVClientItem* item = kinds->getItem(id);
            QVERIFY2(item && item->getId() == id && item->getName() == name, id);
            QCOMPARE(item->getValue(), value);
            QCOMPARE(item->getValue().type(), value.type());
            QCOMPARE(item->getValueString(), QString(text));
            QCOMPARE(item->getValueString(false), QString(textWithoutUnit));
        }
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(kinds->getItem(":config:kinds:test:speed:")->getValueString(), QString("1.234,50 Mbit/s"));
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
        // The steps of a large counter are changes too.
        QVERIFY(m_setup->report("kinds", item->getId(), 2e13));
        QTRY_COMPARE(changes.size(), 3);
        QVERIFY(m_setup->report("kinds", item->getId(), 2e13 + 1));
        QTRY_COMPARE(changes.size(), 4);
    }

    void kinds_data()
    {
        addColumns<QString, unsigned, QString, QByteArray, QString>();
        using Item = KIVClientItem;
        const auto row = [](const char* id, unsigned type, const char* typeName, const char* kind, const char* text) {
            QTest::newRow(id) << QString(id) << type << QString(typeName) << QByteArray(kind) << QString(text);
        };
        row(":config:station:setup:mode:", Item::TypeInt, "int", "KIVEnumClientItem", "Automatic");
        row(":config:station:setup:level_3:", Item::TypeInt, "int", "KIVClientItem", "5 dB");
        row(":config:station:setup:count:", Item::TypeUInt, "uint", "KIVClientItem", "7");
        row(":config:station:setup:on:", Item::TypeBool, "bool", "KIVClientItem", "true");
        row(":config:station:setup:title:", Item::TypeString, "std::string", "KIVClientItem", "First");
        row(":config:station:setup:hosts:stringARRAY:", Item::TypeStringArray, "std::vector<string>", "KIVVecClientItem", "a");
        row(":config:station:setup:points:doubleARRAY:", Item::TypeDoubleArray, "std::vector<double>", "KIVVecClientItem",
                "1, 2");
        row(":config:station:setup:limits:", Item::TypeAggregate, "aggregate", "KivAggregateClientItem", "2.5, -1");
        row(":result:station:events:", Item::TypeListAggregate, "listAggregate", "KivListAggregateClientItem",
                "1.5, Splice; 20, End");
        row(":action:station:start:", Item::TypeAction, "action", "KIVClientItem", "");
        // A formatter has a unit, but the item's own comes first.
        row(":result:station:loss:", Item::TypeDouble, "double", "KIVClientItem", "3.22 dB");
        row(":result:station:gain:", Item::TypeDouble, "double", "KIVClientItem", "1,500.0 dBm");
    }
    void kinds()
    {
        const auto [id, type, typeName, kind, text] = currentRow<QString, unsigned, QString, QByteArray, QString>();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        const KIVClientItem* item = station()->getItem(id);
        QVERIFY(item);
        QCOMPARE(item->getType(), type);
        QCOMPARE(item->getTypeName(), typeName);
        QCOMPARE(item->getAttribute("type").toString(), typeName);
        QCOMPARE(item->getValueString(), text);
        for (const char* one : {"KIVEnumClientItem", "KIVVecClientItem", "KivAggregateClientItem", "KivListAggregateClientItem"})
            QCOMPARE(item->inherits(one), kind == one);
        QCOMPARE(item->getAttribute("enum").toString(), kind == "KIVEnumClientItem" ? item->getName() : QString());
    }

    void whatAnItemSaysOfItself()
    {
        const KIVClientItem* level = station()->getItem(levelId);
        QCOMPARE(level->getMinRange(), QVariant(-10));
        QCOMPARE(level->getMaxRange(), QVariant(10));
        QCOMPARE(level->getAttribute("minRange"), QVariant(-10));
        QCOMPARE(level->getAttribute("maxRange"), QVariant(10));
        QCOMPARE(level->getAttribute("label"), QVariant("Level"));
        QCOMPARE(level->getLabel(), QString("Level"));
        QVERIFY(!level->getAttribute("precision").isValid());
        QVERIFY(level->isReady() && level->isApplicable() && level->getApplicableExpr().isEmpty());

        const KIVClientItem* power = stationItem(":config:station:setup:power:");
        QCOMPARE(power->getAttribute("precision"), QVariant(1));
        QCOMPARE(power->getApplicableExpr(), QString("cfg.mode == 2"));
        QCOMPARE(stationItem(":config:station:setup:title:")->getMaxRange(), QVariant(8));
        QVERIFY(!stationItem(":config:station:setup:count:")->getMinRange().isValid());
        QVERIFY(!stationItem(":config:station:setup:warming:")->isReady());
        QVERIFY(!stationItem(":result:station:gain:")->isApplicable());
        QCOMPARE(stationItem(":result:station:loss:")->getQualityCode(), int(KIVClientItem::QualityWarning));
        QCOMPARE(stationItem(":result:station:loss:")->getUnitString(), QString("dB"));
    }

    void aggregatesAndTables()
    {
        const auto* limits = qobject_cast<KivAggregateClientItem*>(stationItem(":config:station:setup:limits:"));
        KivAggregate aggregate = limits->getAggregate();
        QCOMPARE(aggregate.getPropertyNames(), (QList<QByteArray> {"upper", "lower"}));
        QCOMPARE(aggregate.getPropertyVariant("lower"), QVariant(-1));
        QCOMPARE(aggregate.toVariant(), limits->getValue());
        QVERIFY(aggregate.setPropertyFromVariant("upper", 9.5));
        QVERIFY(station()->setItem(limits->getId(), aggregate.toVariant()));
        QTRY_COMPARE(limits->getAggregate().getPropertyVariant("upper"), QVariant(9.5));

        const auto* events = qobject_cast<KivListAggregateClientItem*>(stationItem(":result:station:events:"));
        QSignalSpy changes(events, &KIVClientItem::valueChanged);
        const KivListAggregate table = events->getListAggregate();
        QCOMPARE(table.getSize(), 2);
        QCOMPARE(table.getPropertyNames(), (QList<QByteArray> {"position", "kind"}));
        QCOMPARE(table.getPropertyVariant("position", 1), QVariant(20.0));
        QVERIFY(m_setup->report("station", events->getId(), table.toVariant()));
        QVERIFY(m_setup->report("station", events->getId(), QVariantList()));
        QTRY_COMPARE(events->getListAggregate().getSize(), 0);
        QCOMPARE(events->getListAggregate().getPropertyNames().size(), 2);
        QCOMPARE(changes.size(), 1);
    }

    void choicesChange()
    {
        const auto* mode = qobject_cast<KIVEnumClientItem*>(station()->getItem(modeId));
        KIVEnumChoicesClientItem* choices = mode->getChoices();
        QCOMPARE(choices->count(), 3);
        QCOMPARE(choices->indexOf(-2), 1);
        QCOMPARE(choices->labelForValue(unsigned(-2)), QString("Manual"));
        QCOMPARE(choices->labelAt(2), QString("From afar"));
        QVERIFY(choices->isApplicableAt(1) && !choices->isApplicableAt(2));
        QCOMPARE(choices->valueAt(3), -1);
        QVERIFY(choices->nameAt(-1).isEmpty() && !choices->isApplicableAt(3));

        QSignalSpy changes(choices, &KIVEnumChoicesClientItem::valueChanged);
        QSignalSpy values(mode, &KIVClientItem::valueChanged);
        QVERIFY(m_setup->setChoices("station", modeId, {{1, "One"}, {4, "Four"}}));
        QVERIFY(m_setup->setChoices("station", modeId, {{1, "One"}, {4, "Four"}}));
        QTRY_COMPARE(changes.size(), 1);
        QCOMPARE(mode->getChoices(), choices);
        QCOMPARE(mode->getValueString(), QString("One"));
        QVERIFY(!station()->setItem(modeId, -2));
        QVERIFY(station()->setItem(modeId, 4));
        QTRY_COMPARE(values.size(), 1);
        QVERIFY(!m_setup->setChoices("station", levelId, {{1, "One"}}));
    }

    void answersThatChange_data()
    {
        addColumns<int, QVariant, QVariant, QByteArray>();
        using Answer = PlatformSetup::Answer;
        const auto row = [](const char* name, Answer answer, const QVariant& before, const QVariant& after) {
            QTest::newRow(name) << int(answer) << before << after << QByteArray(name);
        };
        row("isReadyChanged()", Answer::Ready, true, false);
        row("qualityChanged()", Answer::Quality, KIVClientItem::QualityNone, KIVClientItem::QualityFailing);
        row("unitsChanged()", Answer::Unit, "dB", "dBm");
        row("isApplicableChanged()", Answer::Applicable, true, false);
    }
    void answersThatChange()
    {
        const auto [answer, before, after, changed] = currentRow<int, QVariant, QVariant, QByteArray>();
        const KIVClientItem* item = station()->getItem(levelId);
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        for (const char* signal : {SIGNAL(valueChanged()), SIGNAL(unitsChanged()), SIGNAL(isReadyChanged()),
                     SIGNAL(qualityChanged()), SIGNAL(isApplicableChanged())})
            spies.push_back(std::make_unique<QSignalSpy>(item, signal));
        const auto drive = [&, answer = answer](const QVariant& value) {
            return m_setup->change("station", levelId, PlatformSetup::Answer(answer), value);
        };
        QVERIFY(drive(before));
        QVERIFY(drive(after));
        QVERIFY(drive(after));
        for (const auto& spy : spies)
            QTRY_COMPARE(spy->size(), spy->signal() == changed ? 1 : 0);
        const QVariantList now {item->isReady(), item->getQualityCode(), item->getUnitString(), item->isApplicable()};
        QCOMPARE(now.at(answer), after);
        QVERIFY(!m_setup->change("station", ":config:station:none:", PlatformSetup::Answer(answer), before));
    }

    void aFormatterScalesTheUnit()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        const KIVClientItem* rate = stationItem(":result:station:rate:");
        QSignalSpy units(rate, &KIVClientItem::unitsChanged);
        QCOMPARE(rate->getValueString(), QString("999 bit/s"));
        QVERIFY(m_setup->report("station", rate->getId(), 998));
        QVERIFY(m_setup->report("station", rate->getId(), 5000));
        QTRY_COMPARE(units.size(), 1);
        QCOMPARE(rate->getUnitString(), QString("kbit/s"));
        QCOMPARE(rate->getValueString(false), QString("5"));
    }

    void writes_data()
    {
        addColumns<QString, QVariant, QVariant, QStringList>();
        const auto take = [](const char* row, const char* name, const QVariant& given, const QVariant& taken) {
            QTest::newRow(row) << QString(name) << given << taken << QStringList();
        };
        take("double for an int", "level_3", 7.0, 7);
        take("text for an int", "level_3", "-10", -10);
        take("exponent for an int", "level_3", "1e1", 10);
        take("text for a double", "power", "12.25", 12.25);
        take("int for a double", "power", 12, 12.0);
        take("whole uint", "count", 4294967295.0, 4294967295u);
        take("number for a text", "note", 5, "5");
        take("one for a bool", "on", 0, false);
        take("text for a bool", "on", "false", false);
        take("choice", "mode", -2.0, -2);
        take("texts", "hosts:stringARRAY", QVariantList {"x", 5}, QStringList {"x", "5"});
        take("numbers", "points:doubleARRAY", QVariantList {"1.5", 2}, QVariantList {1.5, 2.0});
        take("aggregate", "limits", QVariantMap {{"lower", 3.0}, {"upper", "1"}}, QVariantMap {{"lower", 3}, {"upper", 1.0}});
        take("at the limit of the length", "title", "Abcdefgh", "Abcdefgh");
        take("broken pattern", "note", "any", "any");

        const auto refuse = [](const char* row, const char* name, const QVariant& given, const QStringList& words) {
            QTest::newRow(row) << QString(name) << given << QVariant() << words;
        };
        refuse("no number", "level_3", "loud", {"Level", "\"loud\"", "-10 to 10 dB"});
        refuse("empty text", "level_3", "", {"Level", "not a number"});
        refuse("number of another locale", "power", "1,234", {"Power", "not a number"});
        refuse("fraction", "level_3", 1.5, {"Level", "1.5", "whole"});
        refuse("nothing", "level_3", QVariant(), {"Level", "nothing"});
        refuse("truth value", "level_3", true, {"Level", "not a number"});
        refuse("above", "level_3", 11, {"Level", "11", "-10 to 10 dB"});
        refuse("below", "power", -0.001, {"Power", "0 to 100"});
        refuse("not a number", "power", qQNaN(), {"Power", "finite"});
        refuse("text of no number", "power", "inf", {"Power"});
        refuse("below a uint", "count", -1, {"Count", "-1", "4,294,967,295"});
        refuse("above a uint", "count", 4294967296.0, {"Count"});
        refuse("neither", "on", 2, {"On", "true or false"});
        refuse("no choice", "mode", 7, {"Mode", "7", "Automatic, Manual"});
        refuse("choice that is not applicable", "mode", 3, {"Mode", "not available"});
        refuse("short text", "title", "A", {"Title", "\"A\"", "2 to 8 characters"});
        refuse("endless text", "title", QString(100'000, 'A'), {"Title", "2 to 8 characters"});
        refuse("pattern that matches a part", "title", "Ab9", {"Title", "form"});
        refuse("list for a text", "title", QVariantList {"Abc"}, {"Title", "not a text"});
        refuse("text for a list", "hosts:stringARRAY", "abc", {"Hosts", "not a list"});
        refuse("long element", "hosts:stringARRAY", QStringList {"a", "123456"}, {"Hosts", "element 2", "1 to 5 characters"});
        refuse("element of another type", "points:doubleARRAY", QVariantList {1, "x"}, {"Points", "element 2"});
        refuse("element that is none", "points:doubleARRAY", QVariantList {qInf()}, {"Points", "element 1", "finite"});
        refuse("missing member", "limits", QVariantMap {{"lower", 1}}, {"Limits", "\"upper\""});
        refuse("further member", "limits", QVariantMap {{"lower", 1}, {"upper", 1}, {"x", 1}}, {"Limits", "\"x\""});
        refuse("member of another type", "limits", QVariantMap {{"lower", 1.5}, {"upper", 1}}, {"Limits", "\"lower\"", "whole"});
        refuse("number for an aggregate", "limits", 1, {"Limits", "not an aggregate"});
        refuse("refused", "locked", 2, {"The laser is on."});
        refuse("not ready", "warming", 2, {"Warm-up", "not ready"});
    }
    void writes()
    {
        const auto [name, given, taken, words] = currentRow<QString, QVariant, QVariant, QStringList>();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        const QString id = ":config:station:setup:" + name + ":";
        const KIVClientItem* item = station()->getItem(id);
        QVERIFY(item);
        const QVariant before = item->getValue();
        QSignalSpy changes(item, &KIVClientItem::valueChanged);
        QCOMPARE(station()->setItem(id, given), taken.isValid());
        const QString error = station()->getLastError();
        QCOMPARE(error.isEmpty(), taken.isValid());
        for (const QString& word : words)
            QVERIFY2(error.contains(word), qPrintable(error));
        QVERIFY(error.size() < 300);
        QTRY_COMPARE(item->getValue(), taken.isValid() ? taken : before);
        QCOMPARE(item->getValue().userType(), (taken.isValid() ? taken : before).userType());
        QCOMPARE(changes.size(), taken.isValid() ? 1 : 0);
    }

    void onlySettingsAreSet()
    {
        for (const char* id : {":result:station:loss:", ":action:station:start:", ":config:station:setup:none:", ""}) {
            QVERIFY2(!station()->setItem(id, 1), id);
            QVERIFY2(station()->getLastError().contains("station") || station()->getLastError().contains("setting"),
                    qPrintable(station()->getLastError()));
        }
        QVERIFY(station()->setItem(levelId, 1));
        QVERIFY(station()->getLastError().isEmpty());
        QVERIFY(m_setup->change("station", levelId, PlatformSetup::Answer::Refusal, "Not while it measures."));
        QVERIFY(!station()->setItem(levelId, 2));
        QCOMPARE(station()->getLastError(), QString("Not while it measures."));
        QTRY_COMPARE(station()->getItem(levelId)->getValue(), QVariant(1));
    }

    void actions()
    {
        const KIVClientItem* state = station()->getItem(stateId);
        QString reply = "untouched";
        QVERIFY(station()->sendAction(":action:station:start:", "fast", &reply, 1000));
        QCOMPARE(reply, QString("Started fast (%2)."));
        QTRY_COMPARE(state->getValue(), QVariant("runs fast"));
        QTRY_COMPARE(stationItem(":config:station:setup:count:")->getValue(), QVariant(1u));

        QVERIFY(!station()->sendAction(":action:station:fail:", "", &reply, 1000));
        QCOMPARE(station()->getLastError(), QString("No fiber is connected."));
        QVERIFY(!station()->invokeAction(":action:station:orphan:"));
        QVERIFY(station()->getLastError().contains("Orphan"));
        QVERIFY(!station()->invokeAction(":action:station:none:"));
        QVERIFY(station()->getLastError().contains(":action:station:none:"));
        QCOMPARE(reply, QString("Started fast (%2)."));
        QCOMPARE(state->getValue(), QVariant("runs fast"));
        QVERIFY(station()->invokeAction(":action:station:start:"));
        QTRY_COMPARE(state->getValue(), QVariant("runs "));
    }

    void aLateAnswerIsLost()
    {
        const KIVClientItem* state = station()->getItem(stateId);
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!station()->invokeAction(":action:station:slow:"));
        QVERIFY2(clock.elapsed() >= KIVClientInterface::callTimeout && clock.elapsed() < 3000,
                qPrintable(QString::number(clock.elapsed())));
        const QString error = station()->getLastError();
        QVERIFY2(error.contains("station") && error.contains("500"), qPrintable(error));
        QCOMPARE(state->getValue(), QVariant("idle"));
        QTRY_COMPARE(state->getValue(), QVariant("late"));

        QString reply = "untouched";
        QVERIFY(m_setup->setDelay("station", 20));
        QVERIFY(!station()->sendAction(":action:station:start:", "late", &reply, 1));
        QCOMPARE(reply, QString("untouched"));
        QTRY_COMPARE(state->getValue(), QVariant("runs late"));
        QVERIFY(station()->sendAction(":action:station:start:", "in time", &reply, 1000));
        QCOMPARE(reply, QString("Started in time (%2)."));
    }

    void batches_data()
    {
        addColumns<QString, QVariantMap, QStringList>();
        const QString speedId = ":config:kinds:test:speed:";
        QTest::newRow("own") << json({{"level_3", 4}, {"mode", -2}}) << QVariantMap {{levelId, 4}, {modeId, -2}}
                             << QStringList();
        QTest::newRow("travelling name") << json({{"level:3", "4"}}) << QVariantMap {{levelId, 4}} << QStringList();
        QTest::newRow("other services") << json({{"level_3", 4}, {"speed", 2}, {"interval", 9}})
                                        << QVariantMap {{levelId, 4}, {speedId, 2.0}, {":config:basemgr:gps:interval:", 9}}
                                        << QStringList();
        QTest::newRow("nothing to set") << "{}" << QVariantMap() << QStringList();
        QTest::newRow("one is refused") << json({{"level_3", 4}, {"mode", 7}, {"on", "maybe"}}) << QVariantMap()
                                        << QStringList {"Mode", "Automatic, Manual", "On", "true or false"};
        QTest::newRow("other service refuses") << json({{"level_3", 4}, {"speed", "x"}}) << QVariantMap()
                                               << QStringList {"Speed"};
        QTest::newRow("unknown") << json({{"level_3", 4}, {"levle", 4}}) << QVariantMap() << QStringList {"levle"};
        QTest::newRow("result") << json({{"loss", 4}}) << QVariantMap() << QStringList {"loss"};
        QTest::newRow("twice") << json({{"level_3", 4}, {"level:3", 5}}) << QVariantMap() << QStringList {"Level", "twice"};
        QTest::newRow("null") << "{\"level_3\": null}" << QVariantMap() << QStringList {"Level", "nothing"};
        QTest::newRow("no object") << "[1]" << QVariantMap() << QStringList {"station"};
        QTest::newRow("no JSON") << "{" << QVariantMap() << QStringList {"station", "unterminated"};
    }
    void batches()
    {
        const auto [argument, set, words] = currentRow<QString, QVariantMap, QStringList>();
        const QStringList clients {"station", "kinds", "basemgr"};
        const auto valueOf = [&](const QString& id) {
            for (const QString& name : clients) {
                if (const KIVClientItem* item = KIVClientInterface::getSessionBusClient(name)->getItem(id))
                    return item->getValue();
            }
            return QVariant();
        };
        const QVariant level = valueOf(levelId);
        QSignalSpy changes(station()->getItem(levelId), &KIVClientItem::valueChanged);
        QString reply;
        QCOMPARE(station()->sendAction(applyId, argument, &reply, 1000), words.isEmpty());
        QCOMPARE(reply.isEmpty(), !words.isEmpty());
        for (const QString& word : words)
            QVERIFY2(station()->getLastError().contains(word), qPrintable(station()->getLastError()));
        for (auto it = set.cbegin(); it != set.cend(); ++it)
            QTRY_COMPARE(valueOf(it.key()), *it);
        // Behind whatever the batch has changed.
        QVERIFY(station()->setItem(":config:station:setup:count:", 8));
        QTRY_COMPARE(valueOf(":config:station:setup:count:"), QVariant(8U));
        QTRY_COMPARE(valueOf(levelId), set.value(levelId, level));
        QCOMPARE(changes.size(), set.contains(levelId) ? 1 : 0);
        QVERIFY(!KIVClientInterface::getSessionBusClient("kinds")->invokeAction(":action:kinds:applyconfig:"));
    }

    /// A rejected batch names the settings as the batch did, and gives the reason that each would have had alone.
    void rejectedSettings()
    {
        const auto* report = qobject_cast<KIVRejectedSettings*>(station());
        QVERIFY(report);
        const QString argument = json({{"level:3", 4}, {"mode", 7}, {"levle", 1}, {":config:station:setup:on:", "maybe"}});
        QVERIFY(!station()->sendAction(applyId, argument, nullptr, 1000));
        const QMap<QString, QString> rejected = report->rejectedSettings();
        QCOMPARE(rejected.keys(), (QStringList {":config:station:setup:on:", "levle", "mode"}));
        for (const QString& reason : rejected)
            QVERIFY2(station()->getLastError().contains(reason), qPrintable(reason));
        QVERIFY(!station()->setItem(modeId, 7));
        QCOMPARE(station()->getLastError(), rejected.value("mode"));
        QVERIFY(report->rejectedSettings().isEmpty());
        // Nothing is named where nothing could be read, and after a success.
        const QStringList others {"{", json({{"level_3", 4}})};
        for (const QString& other : others) {
            station()->sendAction(applyId, json({{"mode", 7}}), nullptr, 1000);
            QCOMPARE(report->rejectedSettings().size(), 1);
            station()->sendAction(applyId, other, nullptr, 1000);
            QVERIFY(report->rejectedSettings().isEmpty());
        }
    }

    void itemsComeAndGo()
    {
        QSignalSpy lists(station(), &KIVClientInterface::itemsChanged);
        const QString id = ":result:station:extra:";
        QVERIFY(m_setup->addItem("station", id, "double", 2));
        QTRY_COMPARE(lists.size(), 1);
        const QPointer<KIVClientItem> item = station()->getItem(id);
        QVERIFY(item);
        QCOMPARE(item->getValue(), QVariant(2.0));
        QStringList ids;
        QVERIFY(station()->getItemList("station", &ids));
        QCOMPARE(ids.last(), id);
        QVERIFY(!m_setup->addItem("station", id, "double", 2));
        QVERIFY(!m_setup->addItem("station", ":result:station:other:", "nonsense", 2));

        QVERIFY(m_setup->removeItem("station", id));
        QTRY_COMPARE(lists.size(), 2);
        QVERIFY(!item && !station()->getItem(id));
        QVERIFY(!station()->getItemIds().contains(id));
        QVERIFY(!m_setup->removeItem("station", id));
        QCOMPARE(lists.size(), 2);
    }

    void aServiceVanishesAndReturns()
    {
        QObject parent;
        KIVClientInterface* client = KIVClientInterface::getSessionBusClient("station", &parent);
        const QPointer<KIVClientItem> level = client->getItem(levelId);
        QSignalSpy lists(client, &KIVClientInterface::itemsChanged);
        int itemsThen = -1;
        connect(client, &KIVClientInterface::itemsChanged, client, [&] { itemsThen = client->getItemIds().size(); });

        QVERIFY(m_setup->setReachable("station", false));
        QVERIFY(m_setup->setReachable("station", false));
        QTRY_COMPARE(lists.size(), 1);
        QCOMPARE(itemsThen, 0);
        QVERIFY(!level && !client->isValid() && !client->getItem(levelId));
        QStringList ids;
        QVERIFY(client->getItemList("station", &ids) && ids.isEmpty());
        QVERIFY(!client->setItem(levelId, 1));
        QVERIFY(client->getLastError().contains("station"));
        QVERIFY(!client->invokeAction(":action:station:start:"));

        QVERIFY(m_setup->report("station", levelId, -7));
        QVERIFY(m_setup->setReachable("station", true));
        QTRY_COMPARE(lists.size(), 2);
        QVERIFY(client->isValid() && itemsThen > 0);
        QTRY_COMPARE(client->getItem(levelId)->getValue(), QVariant(-7));
        QVERIFY(client->setItem(levelId, 1));
        QVERIFY(client->getLastError().isEmpty());
    }

    void errorsReachEveryClient()
    {
        QObject parent;
        QSignalSpy shared(station(), &KIVClientInterface::SigError);
        QSignalSpy own(KIVClientInterface::getSessionBusClient("station", &parent), &KIVClientInterface::SigError);
        QSignalSpy other(KIVClientInterface::getSessionBusClient("kinds"), &KIVClientInterface::SigError);
        QVERIFY(m_setup->reportError("station", "The fan stands still."));
        QTRY_COMPARE(shared.size(), 1);
        QTRY_COMPARE(own.size(), 1);
        QCOMPARE(own.first().first().toString(), QString("The fan stands still."));
        QCOMPARE(other.size(), 0);
    }

    /// A page that is deleted by a change takes the source of the change with it.
    void aSlotMayDeleteTheSender_data()
    {
        addColumns<QString, QString>();
        for (const char* signal : {"value", "batch", "action", "ready", "unit", "choices", "items", "error"}) {
            for (const char* end : {"vanish", "remove", "backend"})
                QTest::newRow(qPrintable(QString(signal) + " " + end)) << QString(signal) << QString(end);
        }
    }
    void aSlotMayDeleteTheSender()
    {
        const auto [signal, end] = currentRow<QString, QString>();
        QObject page;
        int calls = 0;
        const auto finish = [&, signal = signal, end = end] {
            if (++calls > 1)
                return;
            if (end == "vanish")
                m_setup->setReachable("station", false);
            else if (end == "remove")
                m_setup->removeItem("station", signal == "choices" ? modeId : levelId);
            else
                m_setup.reset();
        };
        KIVClientInterface* client = station();
        const KIVClientItem* level = client->getItem(levelId);
        const auto* mode = qobject_cast<KIVEnumClientItem*>(client->getItem(modeId));
        connect(level, &KIVClientItem::valueChanged, &page, finish);
        connect(level, &KIVClientItem::isReadyChanged, &page, finish);
        connect(level, &KIVClientItem::unitsChanged, &page, finish);
        connect(mode->getChoices(), &KIVEnumChoicesClientItem::valueChanged, &page, finish);
        connect(client, &KIVClientInterface::SigError, &page, finish);
        if (signal == "items")
            connect(client, &KIVClientInterface::itemsChanged, &page, finish);
        using Answer = PlatformSetup::Answer;
        const std::map<QString, std::function<void()>> causes {{"value", [&] { client->setItem(levelId, 1); }},
                {"batch", [&] { client->sendAction(applyId, json({{"level_3", 1}, {"mode", -2}, {"on", false}}), nullptr, 1000); }},
                {"action", [&] { client->invokeAction(":action:station:level:"); }},
                {"ready", [&] { m_setup->change("station", levelId, Answer::Ready, false); }},
                {"unit", [&] { m_setup->change("station", levelId, Answer::Unit, "V"); }},
                {"choices", [&] { m_setup->setChoices("station", modeId, {{1, "One"}}); }},
                {"items", [&] { m_setup->addItem("station", ":result:station:extra:", "int", 1); }},
                {"error", [&] { m_setup->reportError("station", "The fan stands still."); }}};
        causes.at(signal)();
        QTRY_VERIFY(calls > 0);
        QCOMPARE(bool(m_setup), end != "backend");
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

    void drives()
    {
        QVERIFY(FileSystemUsage::isMounted("/mnt/kinds drive/"));
        QVERIFY(FileSystemUsage::isMounted("/mnt/kinds drive"));
        for (const char* path : {"", "mnt/kinds drive", "/mnt/kinds drive/folder/", "/mnt", "/mnt/kinds"})
            QVERIFY2(!FileSystemUsage::isMounted(path), path);

        QVERIFY(!FileSystemUsage::isMounted("/mnt/usb/"));
        QVERIFY(m_setup->setMounted("station", "/mnt/usb/", true));
        QTRY_VERIFY(FileSystemUsage::isMounted("/mnt/usb/"));
        QVERIFY(m_setup->setMounted("station", "/mnt/usb", false));
        QTRY_VERIFY(!FileSystemUsage::isMounted("/mnt/usb/"));

        m_setup.reset();
        QVERIFY(!FileSystemUsage::isMounted("/mnt/kinds drive/"));
    }

    void timeOfDay()
    {
        const QRegularExpression form("^[0-2][0-9]:[0-5][0-9]:[0-5][0-9]$");
        QVERIFY(form.match(System::getInstance().getCurrentTime()).hasMatch());
    }
};

QTEST_GUILESS_MAIN(PlatformTest)
#include "tst_platform.moc"
