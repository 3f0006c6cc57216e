#include "recordedservice.h"
#include "signallog.h"

#include "core/userdata.h"
#include "local/uidata.h"
#include "service/forgivingvalidator.h"
#include "service/kivdata.h"
#include "service/manifest.h"

#include <kiv/baseformatter.h>

#include <QIntValidator>
#include <QtTest>

#include <array>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

namespace {

class Bracketer final : public BaseFormatter
{
public:
    QString format(const QVariant& value) const override
    {
        return QString("[%1/%2%3]").arg(value.toString()).arg(getPrecision()).arg(getShowUnits() ? " u" : "");
    }
    QString getUnitString() const override { return "u" + getValue().toString(); }
};

class Formatters final : public RecordedBackend
{
public:
    BaseFormatter* createFormatter(const QString& name) const override { return name == "brackets" ? new Bracketer : nullptr; }
};

const QString speedId = ":config:rec:test:speed:";
const QString resultId = ":result:rec:test:level:";
const QString modeId = ":config:rec:test:mode:";
const QString hostsId = ":config:rec:test:hosts:stringARRAY:";
const QString startId = ":action:rec:test:start:";

} // namespace

class KivDataTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<RecordedClient> m_client;
    std::unique_ptr<Manifest> m_manifest;
    RecordedItem<KIVClientItem>* m_speed = nullptr;
    RecordedEnum* m_mode = nullptr;

    KivData* wrapper(const QString& id) const { return Manifest::getKivData(id); }

private Q_SLOTS:
    void init()
    {
        m_client = std::make_unique<RecordedClient>();
        m_speed = m_client->add(speedId, 10);
        m_speed->state->type = "int";
        m_client->add(resultId, 5);
        m_mode = m_client->add<RecordedEnum>(modeId, 1);
        m_mode->choices.choices = {{1, "Slow", "Slow mode"}, {7, "Fast", "Fast mode", false}};
        m_client->add<RecordedItem<KIVVecClientItem>>(hostsId, QStringList {"a", "b"});
        m_client->add(startId);
        m_manifest = std::make_unique<Manifest>(m_client.get(), "tag", "rec");
    }
    void cleanup()
    {
        m_manifest.reset();
        m_client.reset();
    }

    void aWriteIsSentToTheService()
    {
        KivData* speed = wrapper(speedId);
        SignalLog log(speed);
        speed->setProperty("value", 12);
        QCOMPARE(m_client->calls.size(), 1);
        QCOMPARE(m_client->calls.first().what, QString("set"));
        QCOMPARE(m_client->calls.first().id, speedId);
        QCOMPARE(m_client->calls.first().argument, QVariant(12));
        QCOMPARE(speed->getValue(), QVariant(12));
        QCOMPARE(log.take(), QStringList {"valueChanged"});
    }

    void aRejectedWriteSaysWhy()
    {
        KivData* speed = wrapper(speedId);
        SignalLog log(speed);
        m_client->refusal = "too fast";
        speed->setValue(99);
        QCOMPARE(speed->getValue(), QVariant(10));
        QCOMPARE(log.take(), QStringList {"errorChanged speed too fast"});
        QCOMPARE(speed->getError(), QString("too fast"));
        // A value that was rejected after a transaction can be reverted.
        m_manifest->startChanges();
        speed->setValue(50);
        m_client->refusal = "still too fast";
        speed->apply();
        QCOMPARE(speed->getError(), QString("still too fast"));
        speed->revert();
        QCOMPARE(speed->getValue(), QVariant(10));
        // A report that comes with the rejection has ended the change.
        speed->setValue(60);
        m_client->onSet = [this](const QVariant&) { m_speed->state->value = 15, Q_EMIT m_speed->valueChanged(); };
        speed->apply();
        speed->revert();
        QCOMPARE(speed->getValue(), QVariant(15));
    }

    void onlySettingsAreWritten()
    {
        KivData* level = wrapper(resultId);
        SignalLog log(level);
        QVERIFY(level->isReadOnly());
        level->setValue(6);
        m_manifest->startChanges();
        level->setValue(6);
        QVERIFY(m_client->calls.isEmpty());
        QCOMPARE(level->getValue(), QVariant(5));
        QVERIFY(log.take().isEmpty());
        QVERIFY(wrapper(startId)->isReadOnly());

        RecordedState lone;
        lone.id = speedId;
        RecordedItem<KIVClientItem> item(&lone);
        KivData withoutClient(&item, nullptr);
        withoutClient.setValue(3);
        QVERIFY(!withoutClient.getValue().isValid());
    }

    /// The service's own report decides, and a handler that settles ends.
    void writesThatAreAnsweredOrRepeated()
    {
        KivData* speed = wrapper(speedId);
        m_client->onSet = [this](const QVariant&) {
            m_speed->state->value = 50;
            Q_EMIT m_speed->valueChanged();
        };
        SignalLog log(speed);
        speed->setValue(99);
        QCOMPARE(speed->getValue(), QVariant(50));
        QCOMPARE(log.take(), QStringList {"valueChanged"});
        m_client->onSet = nullptr;

        // As it is written, except for texts of reported values, here a number.
        const QVariantList written {"42", "12a", 12, 12.0, 1.5, "1.5", "inf", "", "-0"};
        const QVariantList held {42, "12a", 12, 12.0, 1.5, "1.5", "inf", "", 0};
        for (int i = 0; i < written.size(); ++i) {
            speed->setValue(written.at(i));
            QCOMPARE(speed->getValue(), held.at(i));
            QCOMPARE(speed->getValue().type(), held.at(i).type());
        }
    }

    /// Of a service or not: values that settle are announced when settled, and those that never do are stopped and
    /// logged once.
    void handlersThatWriteTheirItem()
    {
        UiData local;
        UiData mirror;
        local.setAttributes({{"name", "local"}, {"type", "int"}});
        static int unsettled = 0;
        const QtMessageHandler before = qInstallMessageHandler(
                [](QtMsgType, const QMessageLogContext&, const QString& text) { unsettled += text.contains("does not settle"); });
        for (KivData* item : {wrapper(speedId), static_cast<KivData*>(&local)}) {
            int runs = 0;
            std::function<void()> ofItem;
            std::function<void()> ofMirror;
            QObject page;
            connect(item, &KivData::valueChanged, &page, [&] { ++runs, ofItem(); });
            connect(&mirror, &KivData::valueChanged, &page, [&] { ++runs, ofMirror(); });
            const auto add = [](KivData* to, const KivData* from, int more) { to->setValue(from->getValue().toInt() + more); };
            SignalLog log(item);
            unsettled = 0;
            ofItem = [&] { item->setValue(qMin(item->getValue().toInt(), 7)), add(&mirror, item, 0); };
            ofMirror = [&] { add(item, &mirror, 0); };
            item->setValue(1000);
            QCOMPARE(item->getValue(), QVariant(7));
            QCOMPARE(mirror.getValue(), QVariant(7));
            QCOMPARE(log.take(), (QStringList {"valueChanged", "valueChanged"}));
            item->setValue(7);
            QCOMPARE(log.take(), QStringList {"valueChanged"});
            QCOMPARE(unsettled, 0);

            ofItem = [&] { add(item, item, 1); };
            ofMirror = [] {};
            runs = 0;
            item->setValue(0);
            QCOMPARE(item->getValue(), QVariant(99));
            QCOMPARE(runs, 100);
            QCOMPARE(unsettled, 1);
            // Of two that change each other, neither has all its rounds in each round of the other.
            ofItem = [&] { add(item, item, 1), add(&mirror, item, 1); };
            ofMirror = [&] { add(&mirror, &mirror, 1), add(item, &mirror, 1); };
            runs = 0;
            item->setValue(0);
            QVERIFY2(runs < 500, qPrintable(QString::number(runs)));
            QCOMPARE(unsettled, 3);
        }
        local.setType(UiData::TYPE_VEC_INT);
        local.setValue(QVariant("1,2"));
        connect(&local, &KivData::valueChanged, this, [&] { local.setAt(0, 9); });
        local.setAt(1, 3);
        QCOMPARE(local.getValue(), QVariant("9,3"));
        connect(&local, &KivData::valueCountChanged, this, [&] { local.insertAt(0, 1); });
        local.insertAt(0, 4);
        QCOMPARE(local.getValueCount(), 102);
        QCOMPARE(unsettled, 4);
        // With many, not every path is walked: each sets the next ones, to its own value or to ever higher ones.
        for (const auto& [count, successors, more, most] : {std::array {7, 6, 1, 1300}, {60, 2, 1, 12000}, {30, 29, 0, 30}}) {
            std::vector<UiData> items(count);
            int runs = 0;
            unsettled = 0;
            for (int i = 0; i < count; ++i)
                connect(&items[i], &KivData::valueChanged, this, [&, i, count = count, successors = successors, more = more] {
                    ++runs;
                    for (int next = i + 1; next <= i + successors; ++next)
                        items[next % count].setValue(items[i].getValue().toInt() + more);
                });
            items[0].setValue(1);
            QVERIFY2(runs <= most, qPrintable(QString::number(runs)));
            QVERIFY(more ? unsettled > 0 && unsettled <= count : unsettled == 0 && items.back().getValue() == 1);
        }
        qInstallMessageHandler(before);
    }

    /// Like one that opens a dialog, which receives what comes meanwhile and may delete the item.
    void aHandlerThatRunsAnEventLoop()
    {
        KivData* speed = wrapper(speedId);
        QVector<int> heard;
        const auto runLoop = [](const std::function<void()>& meanwhile) {
            QEventLoop dialog;
            QTimer::singleShot(0, &dialog, [&] { meanwhile(), dialog.quit(); });
            dialog.exec();
        };
        connect(speed, &KivData::valueChanged, this, [&] {
            heard.append(speed->getValue().toInt());
            if (heard.last() == 1) {
                runLoop([&] { speed->setValue(2), m_speed->state->value = 3, Q_EMIT m_speed->valueChanged(), speed->setValue(4); });
                speed->setValue(5), heard.append(0);
            } else if (heard.last() == 8)
                runLoop([&] { speed->setValue(9); });
            else if (heard.last() == 9)
                m_manifest.reset();
        });
        speed->setValue(1), speed->setValue(8);
        QCOMPARE(heard, (QVector<int> {1, 2, 3, 4, 0, 5, 8, 9}));
    }

    void choices()
    {
        KivData* mode = wrapper(modeId);
        SignalLog log(mode);
        for (int round = 0; round < 2; ++round) {
            for (const QVariant& none : {QVariant(2), QVariant("fast"), QVariant()}) {
                mode->setValue(none);
                QCOMPARE(log.take(), QStringList {QString("errorChanged mode Invalid enum value %1").arg(none.toInt())});
                QCOMPARE(mode->getValue(), QVariant(1));
            }
            m_manifest->startChanges();
        }
        m_manifest->revertChanges();
        QVERIFY(m_client->calls.isEmpty());
        // By its whole number; what the service makes of the rest is its own affair.
        mode->setValue(7.4);
        QCOMPARE(log.take(), QStringList {"valueChanged"});
        QCOMPARE(m_client->calls.last().argument, QVariant(7.4));

        QCOMPARE(mode->getEnumCount(), 2);
        QCOMPARE(mode->enumLabel(1), QString("Fast mode"));
        QCOMPARE(mode->enumLabelForValue(7), QString("Fast mode"));
        QCOMPARE(mode->enumValue(1), 7);
        QCOMPARE(mode->enumIndex(7), 1);
        QVERIFY(mode->applicableAt(0) && !mode->applicableAt(1));
        for (int outside : {-1, 2, 1000}) {
            QCOMPARE(mode->enumLabel(outside), QString());
            QCOMPARE(mode->enumLabelForValue(outside), QString());
            QCOMPARE(mode->enumValue(outside), -1);
            QCOMPARE(mode->enumIndex(outside), -1);
            QVERIFY(!mode->applicableAt(outside));
        }
        QCOMPARE(wrapper(speedId)->enumIndex(1), -1);
        QVERIFY(!wrapper(speedId)->getEnums());

        QPointer<QObject> names = mode->getEnums();
        QCOMPARE(names->property("Fast"), QVariant(7));
        m_mode->choices.choices = {{3, "Only", "The only one"}};
        Q_EMIT m_mode->choices.valueChanged();
        QCOMPARE(log.take(), QStringList {"enumCountChanged"});
        QCOMPARE(mode->getEnums()->property("Only"), QVariant(3));
        QVERIFY(!mode->getEnums()->property("Fast").isValid());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!names);
    }

    void reportsOfTheService()
    {
        KivData* speed = wrapper(speedId);
        SignalLog log(speed);
        m_speed->state->value = 11;
        Q_EMIT m_speed->valueChanged();
        QCOMPARE(speed->getValue(), QVariant(11));
        QCOMPARE(log.take(), QStringList {"valueChanged"});
        Q_EMIT m_speed->unitsChanged();
        Q_EMIT m_speed->isReadyChanged();
        Q_EMIT m_speed->qualityChanged();
        Q_EMIT m_speed->isApplicableChanged();
        QCOMPARE(log.take(), (QStringList {"unitsChanged", "isReadyChanged", "valueChanged", "qualityCodeChanged", "applicableChanged"}));
        SignalLog hosts(wrapper(hostsId));
        Q_EMIT m_client->getItem(hostsId)->valueChanged();
        QCOMPARE(hosts.take(), (QStringList {"valueCountChanged", "valueChanged"}));
    }

    void aTransactionHoldsBack()
    {
        KivData* speed = wrapper(speedId);
        SignalLog log(speed);
        m_manifest->startChanges();
        speed->setValue(20);
        speed->setValue(30);
        QVERIFY(m_client->calls.isEmpty());
        QCOMPARE(log.take(), (QStringList {"valueChanged", "valueChanged"}));
        // Only the last write is reverted.
        speed->revert();
        QCOMPARE(speed->getValue(), QVariant(20));
        speed->revert();
        QCOMPARE(speed->getValue(), QVariant(20));
        QCOMPARE(log.take(), QStringList {"valueChanged"});

        speed->setValue(40);
        speed->apply();
        QCOMPARE(m_client->calls.size(), 1);
        QCOMPARE(m_client->calls.first().argument, QVariant(40));
        speed->apply();
        speed->revert();
        QCOMPARE(m_client->calls.size(), 1);
        QCOMPARE(speed->getValue(), QVariant(40));
        // The service's report ends the pending change.
        m_manifest->startChanges();
        speed->setValue(20);
        m_speed->state->value = 15;
        Q_EMIT m_speed->valueChanged();
        speed->revert();
        speed->apply();
        QCOMPARE(speed->getValue(), QVariant(15));
        QCOMPARE(m_client->calls.size(), 1);
    }

    void actions()
    {
        KivData* start = wrapper(startId);
        start->invoke();
        QCOMPARE(start->invokeWithStringArg("now"), QString("done now"));
        SignalLog log(start);
        QCOMPARE(m_client->calls.size(), 2);
        QCOMPARE(m_client->calls.at(0).what, QString("invoke"));
        QCOMPARE(m_client->calls.at(1).id, startId);
        QCOMPARE(m_client->calls.at(1).timeout, 500);
        QVERIFY(m_client->calls.at(1).wantsReply);
        QVERIFY(log.take().isEmpty());
        m_client->refusal = "no lamp";
        start->invoke();
        start->invokeWithStringArg("now");
        QCOMPARE(log.take(), (QStringList {"errorChanged start no lamp", "errorChanged start no lamp"}));
        m_client.reset();
        start->invoke();
        QCOMPARE(start->invokeWithStringArg("now"), QString());
    }

    void elementsOfAnArray()
    {
        KivData* hosts = wrapper(hostsId);
        QCOMPARE(hosts->getValueCount(), 2);
        QCOMPARE(hosts->variantAt(1), QVariant("b"));
        QCOMPARE(hosts->at(0), hosts->getArrayValue(0));
        QVERIFY(!hosts->at(2).isValid() && !hosts->at(-1).isValid());
        hosts->setAt(1, "c");
        QCOMPARE(m_client->calls.last().argument, QVariant(QStringList {"a", "c"}));
        QCOMPARE(m_client->calls.last().argument.type(), QVariant::StringList);
        const int calls = m_client->calls.size();
        hosts->setAt(2, "x");
        hosts->setAt(-1, "x");
        QCOMPARE(m_client->calls.size(), calls);
        QVERIFY(!wrapper(speedId)->at(0).isValid());
        QCOMPARE(wrapper(speedId)->getArraySelection(), -1);
    }

    void theSelectionIsStoredUnderTheId()
    {
        KivData* hosts = wrapper(hostsId);
        QSignalSpy relay(UserData::getInstance(), &UserData::signalDataChanged);
        SignalLog log(hosts);
        QCOMPARE(hosts->getArraySelection(), 0);
        hosts->setArraySelection(1);
        hosts->setArraySelection(1);
        hosts->setArraySelection(2);
        hosts->setArraySelection(-1);
        QCOMPARE(log.take(), QStringList {"arraySelectionChanged"});
        QCOMPARE(relay.size(), 1);
        QCOMPARE(relay.first().at(0), QVariant(hostsId + ":array_selection:"));
        QCOMPARE(relay.first().at(1), QVariant(1));
        QCOMPARE(hosts->getArraySelectionString(), QString("b"));

        Manifest another(m_client.get(), "other", "rec");
        KivData* sameItem = wrapper(hostsId);
        QVERIFY(sameItem != hosts);
        QCOMPARE(sameItem->getArraySelection(), 1);
        sameItem->setArraySelection(0);
        QCOMPARE(log.take(), QStringList {"arraySelectionChanged"});

        // The selection may change with the array.
        hosts->setArraySelection(1);
        log.take();
        auto* item = static_cast<RecordedItem<KIVVecClientItem>*>(m_client->getItem(hostsId));
        item->state->value = QStringList {"a", "c"};
        Q_EMIT item->valueChanged();
        QCOMPARE(log.take(), (QStringList {"valueCountChanged", "arraySelectionChanged", "valueChanged"}));
        Q_EMIT item->valueChanged();
        QCOMPARE(log.take(), (QStringList {"valueCountChanged", "valueChanged"}));
    }

    void texts()
    {
        m_speed->state->unit = " km/h";
        KivData* speed = wrapper(speedId);
        QCOMPARE(speed->property("valueString"), QVariant("<10 km/h>"));
        QCOMPARE(speed->getValueStringNoUnits(), QString("<10>"));
        QCOMPARE(speed->getUnitString(), QString(" km/h"));
        QCOMPARE(speed->getQmlTag(), QString("tag_cfg_speed"));
        QCOMPARE(wrapper(resultId)->getQmlTag(), QString("tag_res_level"));
        QCOMPARE(wrapper(startId)->getQmlTag(), QString("tag_act_start"));
        QCOMPARE(wrapper(hostsId)->getQmlTag(), QString("tag_cfg_hosts"));
        RecordedClient odd;
        odd.add(":other:x:y:");
        Manifest oddManifest(&odd, "", "rec");
        QCOMPARE(wrapper(":other:x:y:")->getQmlTag(), QString("rec__y"));
        QCOMPARE(KivData().getQmlTag(), QString());
    }

    void formatters()
    {
        const Formatters platform;
        m_speed->state->attributes = {{"formatter", "brackets"}, {"precision", 3}};
        m_mode->state->attributes = {{"formatter", "brackets"}, {"enum", "mode"}};
        m_manifest = std::make_unique<Manifest>(m_client.get(), "tag", "rec");
        const KivData* speed = wrapper(speedId);
        QVERIFY(speed->getBaseFormatter());
        QCOMPARE(speed->getBaseFormatter(), speed->getBaseFormatter());
        QCOMPARE(speed->getBaseFormatter()->getPrecision(), 3);
        QCOMPARE(speed->getBaseFormatter()->getUnitString(), QString("u10"));
        wrapper(speedId)->setValue(11);
        QCOMPARE(speed->getBaseFormatter()->getUnitString(), QString("u11"));
        m_client->remove(speedId);
        QCOMPARE(speed->getValueString(true), QString("[11/3 u]"));
        QCOMPARE(speed->getValueString(false), QString("[11/3]"));
        QVERIFY(speed->getBaseFormatter()->getShowUnits());
        QCOMPARE(speed->getUnitString(), QString("u11"));
        QVERIFY(!wrapper(modeId)->getBaseFormatter());
    }

    void anItemThatVanishesAndReturns()
    {
        KivData* speed = wrapper(speedId);
        m_speed->state->quality = 16;
        SignalLog log(speed);
        m_client->remove(speedId);
        const QStringList everything {"unitsChanged", "qualityCodeChanged", "enumCountChanged", "applicableChanged", "isReadyChanged",
                "precisionChanged", "valueChanged"};
        QCOMPARE(log.take(), everything);
        Q_EMIT m_client->itemsChanged();
        QVERIFY(log.take().isEmpty());
        QVERIFY(!speed->isReady());
        QCOMPARE(speed->getQualityCode(), 0);
        QCOMPARE(speed->getValue(), QVariant(10));
        QCOMPARE(speed->getValueString(), QString("10"));
        QCOMPARE(speed->getId(), speedId);
        QVERIFY(speed->isApplicable());
        QVERIFY(!speed->getAttr("label").isValid());

        auto* again = m_client->add(speedId, 77);
        Q_EMIT m_client->itemsChanged();
        QCOMPARE(log.take(), everything);
        QCOMPARE(speed->getValue(), QVariant(77));
        again->state->value = 78;
        Q_EMIT again->valueChanged();
        QCOMPARE(speed->getValue(), QVariant(78));
    }

    /// Entry fields hold the validator, so it must stay the same one, even if it is requested while the service is
    /// away.
    void otherLimitsAfterTheReturn()
    {
        for (const bool isAway : {false, true}) {
            KivData* speed = wrapper(speedId);
            QPointer<QValidator> validator = isAway ? nullptr : speed->getValidator();
            m_client->remove(speedId);
            if (isAway) {
                validator = speed->getValidator();
                QCOMPARE(validator->property("bottom"), QVariant(std::numeric_limits<int>::min()));
            }
            QCOMPARE(speed->getValidator(), validator.data());
            auto* again = m_client->add(speedId, 77);
            again->state->type = "int";
            again->state->attributes = {{"minRange", 0}, {"maxRange", 100}};
            Q_EMIT m_client->itemsChanged();
            QCOMPARE(speed->getValidator(), validator.data());
            QCOMPARE(static_cast<QIntValidator*>(speed->getValidator())->top(), 100);
            m_client->remove(speedId);
            m_client->add(speedId, "text");
            Q_EMIT m_client->itemsChanged();
            QVERIFY(validator && qobject_cast<ForgivingValidator*>(speed->getValidator()));
            cleanup(), init();
        }
    }

    void aPendingChangeOutlivesTheService()
    {
        KivData* speed = wrapper(speedId);
        m_manifest->startChanges();
        speed->setValue(42);
        m_client->remove(speedId);
        m_client->add(speedId, 10);
        Q_EMIT m_client->itemsChanged();
        QCOMPARE(speed->getValue(), QVariant(42));
        // Another value is a report, which decides.
        m_client->remove(speedId);
        m_client->add(speedId, 11);
        Q_EMIT m_client->itemsChanged();
        speed->apply();
        speed->revert();
        QCOMPARE(speed->getValue(), QVariant(11));
        QVERIFY(m_client->calls.isEmpty());
    }

    void slotsMayDeleteTheSender_data()
    {
        QTest::addColumn<QString>("signal");
        for (const char* name : {"valueCountChanged()", "valueChanged()", "isReadyChanged()", "unitsChanged()",
                     "arraySelectionChanged()", "errorChanged(QString,QString)"})
            QTest::newRow(name) << QString(name);
    }
    void slotsMayDeleteTheSender()
    {
        QFETCH(QString, signal);
        KivData* hosts = wrapper(hostsId);
        const QPointer<KivData> guard(hosts);
        const QByteArray normalized = "2" + signal.toLatin1();
        connect(hosts, normalized.constData(), this, SLOT(deleteSender()));
        hosts->setArraySelection(1 - hosts->getArraySelection());
        if (guard)
            hosts->setAt(0, "z");
        if (guard) {
            m_client->refusal = "no";
            hosts->setAt(0, "y");
        }
        if (guard)
            m_client->remove(hostsId);
        QVERIFY(!guard);
        QVERIFY(!wrapper(hostsId));
        QVERIFY(Manifest::getKivIds(hostsId, QString()).contains(hostsId));
    }

    void oddItems()
    {
        RecordedClient odd;
        for (const char* id : {"no colons", ":", "::", ":config:", ":config:odd:1:"})
            odd.add(id, qQNaN())->state->type = QString();
        odd.add<RecordedEnum>(":config:odd:empty:");
        odd.add(":config:odd:wide:", 1.5)->state->type = "double";
        static_cast<RecordedItem<KIVClientItem>*>(odd.items.value(":config:odd:wide:"))->state->attributes
                = {{"precision", 2'000'000'000u}, {"minRange", "low"}, {"maxRange", QVariantList {1}}, {"inputType", 11}};
        odd.add(":config:odd:huge:", QString(1 << 20, 'x'))->state->attributes = {{"inputType", "many"}, {"regex", "(("}};
        Manifest manifest(&odd, "odd", "rec");
        for (const QString& id : odd.list) {
            KivData* item = wrapper(id);
            QVERIFY(item);
            for (int i = 0; i < item->metaObject()->propertyCount(); ++i)
                item->metaObject()->property(i).read(item);
            item->setValue(QVariant());
            item->setAt(0, 1);
            item->setArraySelection(0);
        }
        QCOMPARE(wrapper(":config:odd:empty:")->getEnumCount(), 0);
        QCOMPARE(wrapper(":config:odd:wide:")->getRangeDescription(), QString(""));
    }

public Q_SLOTS:
    void deleteSender() { delete sender(); }
};

QTEST_GUILESS_MAIN(KivDataTest)
#include "tst_kivdata.moc"
