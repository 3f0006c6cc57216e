#include "recordedservice.h"

#include "service/kivdata.h"
#include "service/manifest.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QtTest>

#include <array>
#include <memory>

/// The registry of the process, the transaction, and the names in QML.
class ManifestTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RecordedClient> m_client;

    static QJsonObject sentChanges(const RecordedClient& client)
    {
        return QJsonDocument::fromJson(client.calls.last().argument.toString().toLatin1()).object();
    }
    static QVariant evaluated(QQmlContext* context, const QString& expression)
    {
        return QQmlExpression(context, nullptr, expression).evaluate();
    }

private Q_SLOTS:
    void init() { m_client = std::make_unique<RecordedClient>(); }
    void cleanup() { m_client.reset(); }

    void theRegistry()
    {
        m_client->add(":config:rec:system:a:");
        m_client->add(":config:rec:b:");
        m_client->add(":result:rec:system:c:");
        m_client->list += {":config:rec:missing:", ":config:rec:b:", ":result:rec:manifest:"};
        Manifest manifest(m_client.get(), "", "rec");
        QCOMPARE(manifest.getQmlTag(), QString("rec"));
        QCOMPARE(manifest.property("name"), QVariant("rec"));
        QCOMPARE(Manifest::getKivIds(":config:", ""), (QStringList {":config:rec:b:", ":config:rec:system:a:"}));
        QCOMPARE(Manifest::getKivIds(":config:", "system"), QStringList {":config:rec:system:a:"});
        QCOMPARE(Manifest::getKivIds("CONFIG", ""), QStringList());
        QVERIFY(!Manifest::getKivData(":config:rec:missing:"));
        QVERIFY(!Manifest::getKivData(":result:rec:manifest:"));
        QCOMPARE(Manifest::getKivIds("missing", ""), QStringList());
        // Listed twice: the later wrapper is the registered one, both belong to the manifest.
        QCOMPARE(manifest.findChildren<KivData*>().size(), 4);
        QCOMPARE(manifest.getItem(":config:rec:b:")->parent(), &manifest);
    }

    void ofTwoManifestsTheLaterCounts()
    {
        const QString id = ":config:rec:shared:";
        m_client->add(id, 1);
        QQmlEngine engine;
        auto first = std::make_unique<Manifest>(m_client.get(), "t", "rec");
        KivData* firstWrapper = Manifest::getKivData(id);
        auto second = std::make_unique<Manifest>(m_client.get(), "t", "rec");
        auto third = std::make_unique<Manifest>(m_client.get(), "t", "rec");
        // A fourth one that is deleted at once: of the three before it, the latest has the entry again.
        delete new Manifest(m_client.get(), "t", "rec");
        Manifest::setQmlContext(engine.rootContext());
        QQmlExpression live(engine.rootContext(), nullptr, "t_cfg_shared");
        live.setNotifyOnValueChanged(true);
        const KivData* latest = Manifest::getKivData(id);
        QVERIFY(latest && latest != firstWrapper && latest->parent() == third.get());
        QCOMPARE(live.evaluate().value<KivData*>(), latest);
        // The previous wrapper takes over the entry, and the names with it.
        second.reset();
        QCOMPARE(Manifest::getKivData(id), latest);
        const QSignalSpy changes(&live, &QQmlExpression::valueChanged);
        third.reset();
        QCOMPARE(Manifest::getKivData(id), firstWrapper);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(live.evaluate().value<KivData*>(), firstWrapper);
        first.reset();
        QVERIFY(!Manifest::getKivData(id));
        QCOMPARE(Manifest::getKivIds("shared", ""), QStringList {id});
    }

    /// Labels, limits and choices never change while an item exists, and are therefore read once.
    void namesAreLookedUpAgainWhenTheServiceIsBack()
    {
        m_client->add(":config:rec:list:doubleARRAY:");
        const Manifest manifest(m_client.get(), "t", "rec");
        m_client->remove(":config:rec:list:doubleARRAY:");
        QQmlEngine engine;
        Manifest::setQmlContext(engine.rootContext());
        QQmlExpression live(engine.rootContext(), nullptr, "t_cfg_list.label");
        live.setNotifyOnValueChanged(true);
        QCOMPARE(live.evaluate(), QVariant(""));
        const QSignalSpy changes(&live, &QQmlExpression::valueChanged);
        m_client->add(":config:rec:list:doubleARRAY:")->state->attributes = {{"label", "List"}};
        Q_EMIT m_client->itemsChanged();
        QCOMPARE(changes.size(), 1);
        QCOMPARE(live.evaluate(), QVariant("List"));
    }

    /// A service in another process may start after the page, and publish more later.
    void itemsThatComeLater()
    {
        QQmlEngine engine;
        const Manifest manifest(m_client.get(), "t", "rec");
        Manifest::setQmlContext(engine.rootContext());
        QQmlExpression text(engine.rootContext(), nullptr, "t_cfg_a ? t_cfg_a.value : 'none'");
        QCOMPARE(evaluated(engine.rootContext(), "typeof t_cfg_a"), QVariant("undefined"));

        m_client->add(":config:rec:a:", 1);
        m_client->list += ":result:rec:manifest:";
        Q_EMIT m_client->itemsChanged();
        KivData* first = Manifest::getKivData(":config:rec:a:");
        QVERIFY(first);
        QCOMPARE(text.evaluate(), QVariant(1));
        m_client->add(":config:rec:b:", 2);
        Q_EMIT m_client->itemsChanged();
        Q_EMIT m_client->itemsChanged();
        QCOMPARE(evaluated(engine.rootContext(), "t_cfg_a.value + t_cfg_b.value"), QVariant(3));
        QCOMPARE(Manifest::getKivData(":config:rec:a:"), first);
        QCOMPARE(manifest.findChildren<KivData*>().size(), 2);
        const_cast<Manifest&>(manifest).applyChanges();
        QCOMPARE(m_client->calls.last().id, QString(":action:rec:applyconfig:"));
    }

    void aBatchOfChanges()
    {
        for (const char* name : {"plain", "mode_2", "mode_12", "a_1", "ab_1", "ab_x", "x3", "untouched"})
            m_client->add(QString(":config:rec:test:%1:").arg(name), 0);
        m_client->add(QString::fromUtf8(":config:rec:test:n_\u0663:"), 0);
        m_client->list.append(":result:rec:test:manifest:");
        Manifest manifest(m_client.get(), "", "rec");
        manifest.startChanges();
        QVERIFY(manifest.isChanging());
        manifest.startChanges();
        for (const QString& id : m_client->items.keys()) {
            if (!id.contains("untouched"))
                Manifest::getKivData(id)->setValue(id.size());
        }
        const QString beyondAscii = QString::fromUtf8("Ås \"\\\" \U0001F4E1");
        Manifest::getKivData(":config:rec:test:plain:")->setValue(beyondAscii);
        manifest.applyChanges();
        QVERIFY(!manifest.isChanging());
        QCOMPARE(m_client->calls.size(), 1);
        const RecordedClient::Call call = m_client->calls.first();
        QCOMPARE(call.what, QString("send"));
        QCOMPARE(call.id, QString(":action:rec:test:applyconfig:"));
        QCOMPARE(call.timeout, 500);
        QVERIFY(!call.wantsReply);
        QVERIFY(call.argument.toString().startsWith("{\n    \""));
        QCOMPARE(sentChanges(*m_client).keys(),
                (QStringList {"a_1", "ab:1", "ab_x", "mode:2", "mode_12", QString::fromUtf8("n_\u0663"), "plain", "x3"}));
        QCOMPARE(sentChanges(*m_client).value("plain").toString(), beyondAscii);
    }

    void whatWasSentIsNotSentAgain()
    {
        m_client->add(":config:rec:a:", 0);
        m_client->add(":config:rec:b:", 0);
        Manifest manifest(m_client.get(), "", "rec");
        manifest.applyChanges();
        QCOMPARE(m_client->calls.last().id, QString());
        QCOMPARE(m_client->calls.last().argument.toString(), QString("{\n}\n"));

        manifest.startChanges();
        Manifest::getKivData(":config:rec:a:")->setValue(1);
        manifest.applyChanges();
        QCOMPARE(sentChanges(*m_client).size(), 1);
        manifest.applyChanges();
        QCOMPARE(sentChanges(*m_client).size(), 0);
        manifest.startChanges();
        Manifest::getKivData(":config:rec:a:")->setValue(2);
        Manifest::getKivData(":config:rec:b:")->setValue(3);
        manifest.applyChanges();
        QCOMPARE(sentChanges(*m_client).size(), 2);
    }

    void aRejectedBatchStaysPending()
    {
        m_client->add(":config:rec:a:", 0);
        m_client->add(":config:rec:b:", 0);
        RecordedClient otherClient;
        otherClient.add(":config:rec:elsewhere:", 0);
        auto owner = std::make_unique<Manifest>(m_client.get(), "", "rec");
        Manifest& manifest = *owner;
        Manifest other(&otherClient, "", "rec");
        QSignalSpy errors(Manifest::getKivData(":config:rec:a:"), &KivData::errorChanged);
        QSignalSpy others(Manifest::getKivData(":config:rec:b:"), &KivData::errorChanged);
        // Another service's setting is sent along, and the rejection does not come from that service.
        KivData* elsewhere = Manifest::getKivData(":config:rec:elsewhere:");
        const QSignalSpy errorsElsewhere(elsewhere, &KivData::errorChanged);
        manifest.startChanges();
        other.startChanges();
        elsewhere->setValue(2);
        Manifest::getKivData(":config:rec:a:")->setValue(1);
        m_client->refusal = "a is out of range";
        bool isChanging = true;
        m_client->onSend = [&] { isChanging = manifest.isChanging(); };
        manifest.applyChanges();
        QVERIFY(!isChanging);
        QCOMPARE(errors.size(), 1);
        QCOMPARE(errors.first(), (QVariantList {"a", "a is out of range"}));
        QCOMPARE(errorsElsewhere.size(), 1);
        QCOMPARE(elsewhere->getError(), QString("a is out of range"));
        QVERIFY(others.isEmpty());
        m_client->refusal.clear();
        manifest.applyChanges();
        QCOMPARE(sentChanges(*m_client).value("a").toInt(), 1);

        // The service may make the page delete the manifest before it rejects.
        elsewhere->setValue(3);
        m_client->refusal = "too late";
        m_client->onSend = [&] { owner.reset(); };
        manifest.applyChanges();
        QCOMPARE(elsewhere->getError(), QString("too late"));
    }

    void whatWasTakenIsNotPending()
    {
        m_client->add(":config:rec:a:", 5);
        Manifest manifest(m_client.get(), "", "rec");
        KivData* a = Manifest::getKivData(":config:rec:a:");
        // The service has nothing to report about a value that it already had.
        manifest.startChanges();
        a->setValue(6);
        a->setValue(5);
        manifest.applyChanges();
        manifest.startChanges();
        manifest.revertChanges();
        QCOMPARE(a->getValue(), QVariant(5));
        const int calls = m_client->calls.size();
        a->apply();
        QCOMPARE(m_client->calls.size(), calls);
    }

    void aChangeWaitsForItsService()
    {
        m_client->add(":config:rec:a:", 1);
        Manifest manifest(m_client.get(), "", "rec");
        Manifest without(nullptr, "", "none");
        manifest.startChanges();
        Manifest::getKivData(":config:rec:a:")->setValue(9);
        without.applyChanges();
        m_client->remove(":config:rec:a:");
        manifest.applyChanges();
        QCOMPARE(sentChanges(*m_client).size(), 0);
        m_client->add(":config:rec:a:", 1);
        Q_EMIT m_client->itemsChanged();
        manifest.applyChanges();
        QCOMPARE(sentChanges(*m_client).value("a").toInt(), 9);
    }

    void ofOneNameTheOtherStaysPending()
    {
        m_client->add(":config:rec:one:level:", 0);
        m_client->add(":config:rec:two:level:", 0);
        Manifest manifest(m_client.get(), "", "rec");
        manifest.startChanges();
        Manifest::getKivData(":config:rec:one:level:")->setValue(10);
        Manifest::getKivData(":config:rec:two:level:")->setValue(20);
        manifest.applyChanges();
        QCOMPARE(sentChanges(*m_client).value("level").toInt(), 20);
        manifest.applyChanges();
        QCOMPARE(sentChanges(*m_client).value("level").toInt(), 10);
    }

    /// A page of the first may still hold its wrapper.
    void ofTwoManifestsBothHavePendingChanges()
    {
        m_client->add(":config:rec:a:", 1);
        // Written to the first and to the second, sent, and then held by the first; 0 is nothing.
        for (const auto& [one, two, sent, held] : {std::array {5, 0, 5, 5}, {5, 6, 6, 1}, {5, 0, 0, 1}, {5, 6, 0, 1}}) {
            Manifest first(m_client.get(), "", "rec");
            Manifest second(m_client.get(), "", "rec");
            first.startChanges(), second.startChanges();
            first.findChild<KivData*>()->setValue(one);
            if (two != 0)
                Manifest::getKivData(":config:rec:a:")->setValue(two);
            sent != 0 ? first.applyChanges() : first.revertChanges();
            QCOMPARE(m_client->calls.isEmpty() ? 0 : sentChanges(*m_client).value("a").toInt(), sent);
            QCOMPARE(first.findChild<KivData*>()->getValue(), QVariant(held));
            second.applyChanges();
            QVERIFY(sentChanges(*m_client).isEmpty());
        }
    }

    void revertingWalksEveryItemOfTheProcess()
    {
        m_client->add(":config:rec:a:", 1);
        RecordedClient otherClient;
        otherClient.add(":config:rec:b:", 2);
        Manifest manifest(m_client.get(), "", "rec");
        auto other = std::make_unique<Manifest>(&otherClient, "", "rec");
        manifest.startChanges();
        other->startChanges();
        KivData* a = Manifest::getKivData(":config:rec:a:");
        KivData* b = Manifest::getKivData(":config:rec:b:");
        a->setValue(10);
        b->setValue(20);
        manifest.revertChanges();
        QCOMPARE(a->getValue(), QVariant(1));
        QCOMPARE(b->getValue(), QVariant(2));
        manifest.startChanges();
        a->setValue(10);
        b->setValue(20);
        // A slot that hears of the first item's return may write it permanently, and remove the second one.
        connect(a, &KivData::valueChanged, this, [&] {
            QVERIFY(!manifest.isChanging());
            other.reset();
        });
        manifest.revertChanges();
        QCOMPARE(a->getValue(), QVariant(1));
        QVERIFY(!Manifest::getKivData(":config:rec:b:"));
        manifest.revertChanges();
        manifest.applyChanges();
        QVERIFY(m_client->calls.last().argument.toString() == "{\n}\n");
    }

    void savingAConfiguration()
    {
        m_client->list = QStringList {":result:rec:first:manifest:", ":result:rec:last:manifest:"};
        Manifest manifest(m_client.get(), "", "rec");
        manifest.saveConfig("My, setup %2", true);
        QCOMPARE(m_client->calls.last().id, QString(":action:rec:last:saveconfig:"));
        QCOMPARE(m_client->calls.last().argument, QVariant("My, setup %2,1"));
        m_client.reset();
        manifest.saveConfig("gone", false);
        manifest.applyChanges();
        Manifest without(nullptr, "", "none");
        without.saveConfig("x", false);
        without.applyChanges();
    }

    void namesInQml()
    {
        QTest::ignoreMessage(QtDebugMsg, " Error setting QML context");
        Manifest::setQmlContext(nullptr);

        m_client->add(":config:rec:system:level:", 5);
        m_client->add(":result:rec:level:", 6);
        m_client->add(":config:rec:other:level:", 7);
        auto manifest = std::make_unique<Manifest>(m_client.get(), "tag", "rec");
        QQmlEngine engine;
        QQmlContext context(engine.rootContext());
        Manifest::setQmlContext(&context);
        QCOMPARE(Manifest::qmlContext(), &context);
        QCOMPARE(context.contextObject()->metaObject()->className(), "KIVContextObject");
        // Two items of one name: the last in the order of ids.
        QCOMPARE(evaluated(&context, "tag_cfg_level.value"), QVariant(5));
        QCOMPARE(evaluated(&context, "tag_res_level.value"), QVariant(6));
        QCOMPARE(evaluated(&context, "typeof tag_cfg_later"), QVariant("undefined"));

        m_client->add(":config:rec:later:", 8);
        Manifest later(m_client.get(), "tag", "rec");
        QCOMPARE(evaluated(&context, "typeof tag_cfg_later"), QVariant("undefined"));
        QQmlExpression live(&context, nullptr, "tag_cfg_level.value");
        live.setNotifyOnValueChanged(true);
        live.evaluate();
        Manifest::setQmlContext(&context);
        QCOMPARE(evaluated(&context, "tag_cfg_later.value"), QVariant(8));
        manifest.reset();
        QCOMPARE(evaluated(&context, "tag_cfg_later.value"), QVariant(8));
        QCOMPARE(live.evaluate(), QVariant(5));
    }

    void wrappersAndContextsGoInAnyOrder()
    {
        m_client->add(":config:rec:a:", 1);
        auto manifest = std::make_unique<Manifest>(m_client.get(), "t", "rec");
        auto engine = std::make_unique<QQmlEngine>();
        auto* context = new QQmlContext(engine->rootContext(), engine.get());
        Manifest::setQmlContext(context);
        manifest.reset();
        QVERIFY(evaluated(context, "t_cfg_a === null").toBool());
        // A new context object leaves out removed items.
        Manifest::setQmlContext(context);
        QCOMPARE(evaluated(context, "typeof t_cfg_a"), QVariant("undefined"));
        engine.reset();
        QVERIFY(!Manifest::qmlContext());
        Manifest again(m_client.get(), "t", "rec");
        QVERIFY(Manifest::getKivData(":config:rec:a:")->isApplicable());
    }

    /// Contexts and choices are created again at the same addresses; what QML learnt of one must not be used for the
    /// next.
    void namesThatComeAndGo()
    {
        QQmlEngine engine;
        for (int round = 0; round < 60; ++round) {
            RecordedClient client;
            const QString name = QString("n%1").arg(round % 7);
            client.add(":config:rec:" + name + ":", round);
            auto* choices = client.add<RecordedEnum>(":config:rec:mode:");
            choices->choices.choices = {{round, name, name}, {7, "Last", "Last"}};
            const Manifest manifest(&client, "t", "rec");
            QQmlContext context(engine.rootContext());
            Manifest::setQmlContext(&context);
            QCOMPARE(evaluated(&context, "t_cfg_" + name + ".value"), QVariant(round));
            QCOMPARE(evaluated(&context, "typeof t_cfg_missing"), QVariant("undefined"));
            for (int change = 0; change < 3; ++change) {
                QCOMPARE(evaluated(&context, "t_cfg_mode.enums.Last"), QVariant(7));
                choices->choices.choices.prepend({100 + change, QString("c%1").arg(change), QString()});
                Q_EMIT choices->choices.valueChanged();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
        }
    }

    void moreNamesThanQmlCanKnow()
    {
        for (int i = 0; i < 32800; ++i)
            m_client->add(QString(":result:rec:n%1:").arg(i, 5, 10, QLatin1Char('0')), i);
        Manifest manifest(m_client.get(), "t", "rec");
        QQmlEngine engine;
        QQmlContext context(engine.rootContext());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Those after t_res_n32766 are left out"));
        Manifest::setQmlContext(&context);
        QCOMPARE(evaluated(&context, "t_res_n32766.value"), QVariant(32766));
        QCOMPARE(evaluated(&context, "typeof t_res_n32767"), QVariant("undefined"));
    }
};

QTEST_GUILESS_MAIN(ManifestTest)
#include "tst_manifest.moc"
