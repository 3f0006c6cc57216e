#include "qmlwarnings.h"
#include "recordedservice.h"

#include "module/uiutilsmodule.h"
#include "service/kivdata.h"
#include "service/manifest.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

const QString modeId = ":config:rec:setup:mode:";
const QByteArray module(R"(
    import UiUtils 1.0
    ServiceItems {
        tag: "rec"
        readonly property KivData cfg_mode: null
        readonly property KivData res_power: null
        readonly property KivListAggregateData res_events: null
        readonly property int cfg_mode_Auto: 1
        property string seen: cfg_mode ? cfg_mode.label + " " + cfg_mode.value : "none"
        property string label: cfg_mode ? cfg_mode.label : "none"
        property int told: 0
        onCfg_modeChanged: ++told
    }
)");

QStringList& warnings()
{
    static QStringList all;
    return all;
}

void keep(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtWarningMsg)
        warnings() += text;
}

} // namespace

/// Does what a page may do when it is told.
class Ender : public QObject
{
    Q_OBJECT

public:
    std::function<void()> act;

public Q_SLOTS:
    void end() { act(); }
};

/// The root of the modules that describe services: its properties are what the context has under the complete names.
class ServiceItemsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RecordedClient> m_client;
    std::unique_ptr<QQmlEngine> m_engine;
    QmlWarnings m_warnings;

    void knowNames() { Manifest::setQmlContext(m_engine->rootContext()); }
    std::unique_ptr<QObject> made(const QByteArray& text = module)
    {
        QQmlComponent component(m_engine.get());
        component.setData(text, QUrl());
        std::unique_ptr<QObject> object(component.create());
        if (!object)
            qFatal("%s", qPrintable(component.errorString()));
        return object;
    }
    static KivData* wrapperAt(const std::unique_ptr<QObject>& object, const char* property)
    {
        return object->property(property).value<KivData*>();
    }

private Q_SLOTS:
    void initTestCase()
    {
        uiutils::registerTypes("UiUtils");
        qInstallMessageHandler(keep);
    }
    void init()
    {
        m_client = std::make_unique<RecordedClient>();
        m_engine = std::make_unique<QQmlEngine>();
        m_warnings.watch(m_engine.get());
        warnings().clear();
    }
    void cleanup()
    {
        QCOMPARE(m_warnings.take(), QStringList());
        m_engine.reset();
        m_client.reset();
    }

    void itsPropertiesAreTheWrappersOfTheContext()
    {
        m_client->add(modeId, 3)->state->attributes["label"] = "Mode";
        m_client->add(":result:rec:test:power:", 1.5);
        m_client->add<RecordedList>(":result:rec:test:events:");
        const Manifest manifest(m_client.get(), "rec", "com.example.rec");
        // A service of a name as long, and one whose names begin with the same letters.
        RecordedClient others;
        others.add(":config:xyz:setup:mode:", 4);
        others.add(":result:xyz:test:power:", 2.5);
        const Manifest other(&others, "xyz", "com.example.xyz");
        RecordedClient cfg;
        cfg.add(":config:abc:power:", 4);
        const Manifest longer(&cfg, "rec_cfg", "com.example.rec_cfg");
        knowNames();
        const auto object = made();
        for (const char* name : {"cfg_mode", "res_power", "res_events"}) {
            const QVariant named
                    = QQmlExpression(m_engine->rootContext(), nullptr, "rec_" + QString(name)).evaluate();
            QVERIFY(named.value<QObject*>());
            QCOMPARE(object->property(name).value<QObject*>(), named.value<QObject*>());
        }
        QCOMPARE(object->property("service").value<Manifest*>()->getServiceName(), QString("com.example.rec"));
        QCOMPARE(object->property("seen"), QVariant("Mode 3"));
        QCOMPARE(object->property("cfg_mode_Auto"), QVariant(1));
        object->setProperty("tag", "xyz");
        QCOMPARE(object->property("seen"), QVariant(" 4"));
        object->setProperty("tag", "rec");
        QCOMPARE(object->property("seen"), QVariant("Mode 3"));
        // Nobody else can write them.
        QVERIFY(!object->setProperty("cfg_mode", QVariant::fromValue<QObject*>(nullptr)));
        QVERIFY(wrapperAt(object, "cfg_mode"));
    }

    void theyComeWithTheService()
    {
        knowNames();
        const auto object = made();
        QSignalSpy services(object.get(), SIGNAL(serviceChanged()));
        QCOMPARE(object->property("seen"), QVariant("none"));
        QVERIFY(!object->property("service").value<QObject*>());

        m_client->add(modeId, 3)->state->attributes["label"] = "Mode";
        m_client->add(":result:rec:test:power:");
        m_client->add<RecordedList>(":result:rec:test:events:");
        auto manifest = std::make_unique<Manifest>(m_client.get(), "rec", "rec");
        knowNames();
        QCOMPARE(object->property("seen"), QVariant("Mode 3"));
        QCOMPARE(object->property("told"), QVariant(1));
        QCOMPARE(services.size(), 1);
        QCOMPARE(object->property("service").value<Manifest*>(), manifest.get());
        // Another service concerns nobody here.
        knowNames();
        QCOMPARE(object->property("told"), QVariant(1));

        manifest.reset();
        QVERIFY(!wrapperAt(object, "cfg_mode"));
        QCOMPARE(object->property("seen"), QVariant("none"));
        manifest = std::make_unique<Manifest>(m_client.get(), "rec", "rec");
        knowNames();
        QCOMPARE(object->property("seen"), QVariant("Mode 3"));
    }

    void anItemThatReturnsIsReadAgain()
    {
        m_client->add(modeId, 3)->state->attributes["label"] = "Mode";
        m_client->add(":result:rec:test:power:");
        m_client->add<RecordedList>(":result:rec:test:events:");
        const Manifest manifest(m_client.get(), "rec", "rec");
        knowNames();
        const auto object = made();
        const KivData* const wrapper = wrapperAt(object, "cfg_mode");
        m_client->remove(modeId);
        QCOMPARE(wrapperAt(object, "cfg_mode"), wrapper);
        // The label of a wrapper never changes, as far as the wrapper tells.
        m_client->add(modeId, 4)->state->attributes["label"] = "Way";
        Q_EMIT m_client->itemsChanged();
        QCOMPARE(wrapperAt(object, "cfg_mode"), wrapper);
        QCOMPARE(object->property("seen"), QVariant("Way 4"));
        QCOMPARE(object->property("label"), QVariant("Way"));
    }

    void ofSeveralWrappersTheOneWithTheEntryCounts()
    {
        m_client->add(modeId, 3);
        m_client->add(":result:rec:test:power:");
        m_client->add<RecordedList>(":result:rec:test:events:");
        const Manifest first(m_client.get(), "rec", "rec");
        const KivData* const firstWrapper = Manifest::getKivData(modeId);
        auto second = std::make_unique<Manifest>(m_client.get(), "rec", "rec");
        knowNames();
        const auto object = made();
        QCOMPARE(wrapperAt(object, "cfg_mode"), Manifest::getKivData(modeId));
        QVERIFY(wrapperAt(object, "cfg_mode") != firstWrapper);
        second.reset();
        QCOMPARE(wrapperAt(object, "cfg_mode"), firstWrapper);
        QCOMPARE(object->property("service").value<Manifest*>(), const_cast<Manifest*>(&first));
    }

    /// The module was written of another service than the one that runs.
    void aModuleThatDoesNotFitIsTold()
    {
        knowNames();
        const auto early = made();
        m_client->add(modeId, 3);
        m_client->add(":result:rec:test:events:", "text");
        const Manifest manifest(m_client.get(), "rec", "rec");
        knowNames();
        QCOMPARE(warnings().size(), 2);
        QVERIFY(warnings().at(0).startsWith("The service \"rec\" has no item res_power,"));
        QVERIFY(warnings().at(1).startsWith("The service \"rec\" has res_events as items of another kind"));
        QVERIFY(wrapperAt(early, "cfg_mode"));
        QVERIFY(!early->property("res_events").value<QObject*>());
        QVERIFY(!wrapperAt(early, "res_power"));
        // Once is enough.
        knowNames();
        QCOMPARE(warnings().size(), 2);
    }

    void whoIsToldMayDeleteIt()
    {
        m_client->add(modeId, 3);
        knowNames();
        const auto other = made();
        auto object = made();
        Ender ender;
        ender.act = [&object] { object.reset(); };
        connect(object.get(), SIGNAL(cfg_modeChanged()), &ender, SLOT(end()));
        const Manifest manifest(m_client.get(), "rec", "rec");
        knowNames();
        QVERIFY(!object);
        QVERIFY(wrapperAt(other, "cfg_mode"));
    }

    void whoIsToldMayDeleteItems()
    {
        m_client->add(modeId, 3);
        m_client->add(":result:rec:test:power:", 1.5);
        m_client->add<RecordedList>(":result:rec:test:events:");
        knowNames();
        const auto object = made();
        auto manifest = std::make_unique<Manifest>(m_client.get(), "rec", "rec");
        Ender ender;
        ender.act = [&manifest] { manifest.reset(); };
        connect(object.get(), SIGNAL(cfg_modeChanged()), &ender, SLOT(end()));
        knowNames();
        QVERIFY(!manifest);
        for (const char* name : {"cfg_mode", "res_power", "res_events", "service"})
            QVERIFY(!object->property(name).value<QObject*>());
        QCOMPARE(warnings(), QStringList());
    }

    /// What is told last is what holds, also when a page changes the service while it is told of the one before.
    void whoIsToldMayNameAnotherService()
    {
        m_client->add(modeId, 3);
        m_client->add(":result:rec:test:power:", 1.5);
        m_client->add<RecordedList>(":result:rec:test:events:");
        RecordedClient others;
        others.add(":config:xyz:setup:mode:", 4);
        others.add(":result:xyz:test:power:", 2.5);
        others.add<RecordedList>(":result:xyz:test:events:");
        knowNames();
        const auto object = made();
        Ender ender;
        ender.act = [&object] { object->setProperty("tag", "xyz"); };
        connect(object.get(), SIGNAL(cfg_modeChanged()), &ender, SLOT(end()));
        const Manifest manifest(m_client.get(), "rec", "rec");
        const Manifest other(&others, "xyz", "xyz");
        knowNames();
        QCOMPARE(wrapperAt(object, "cfg_mode")->getId(), QString(":config:xyz:setup:mode:"));
        QCOMPARE(wrapperAt(object, "res_power")->getId(), QString(":result:xyz:test:power:"));
        QCOMPARE(object->property("service").value<Manifest*>(), const_cast<Manifest*>(&other));
        QCOMPARE(warnings(), QStringList());
    }
};

QTEST_GUILESS_MAIN(ServiceItemsTest)
#include "tst_serviceitems.moc"
