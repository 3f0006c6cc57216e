#include "signallog.h"

#include "local/uidata.h"

#include <embedded/embeddedbackend.h>

#include <QColor>
#include <QDoubleValidator>
#include <QIntValidator>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

QStringList words(const char* text)
{
    return QString(text).split(' ', Qt::SkipEmptyParts);
}

} // namespace

class UiDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale::c()); }

    void everyWriteIsReported()
    {
        const std::tuple<const char*, QVariant, const char*, const char*> rows[] {
                {"label", "Name", "labelChanged", "labelChanged"}, {"type", "double", "typeChanged", "typeChanged"},
                {"readOnly", true, "readOnlyChanged", "readOnlyChanged"},
                {"isReady", true, "isReadyChanged KivData::isReadyChanged", "isReadyChanged KivData::isReadyChanged"},
                {"applicable", false, "applicableChanged KivData::applicableChanged",
                        "applicableChanged KivData::applicableChanged"},
                {"minRange", 5, "minRangeChanged rangeDescriptionChanged", "minRangeChanged rangeDescriptionChanged"},
                {"maxRange", 5, "maxRangeChanged rangeDescriptionChanged", "maxRangeChanged rangeDescriptionChanged"},
                {"regex", "a*", "validatorChanged regexChanged", "validatorChanged regexChanged"},
                {"inputType", 9u, "inputTypeChanged", "inputTypeChanged"}, {"value", 1, "valueChanged", "valueChanged"},
                {"precision", 3u, "precisionChanged", "precisionChanged"}, {"persistent", true, "", ""},
                {"mandatory", true, "mandatoryChanged", ""}, {"valueOk", false, "valueOkChanged", ""},
                {"registerId", "id", "", ""}};
        for (const auto& [property, value, first, again] : rows) {
            if (qstrcmp(property, "registerId") == 0)
                QTest::ignoreMessage(QtWarningMsg, "registerId already exsist!");
            UiData item;
            SignalLog log(&item);
            QVERIFY2(item.setProperty(property, value), property);
            QCOMPARE(log.take(), words(first));
            QCOMPARE(item.property(property), value);
            item.setProperty(property, value);
            QCOMPARE(log.take(), words(again));
        }
    }

    void defaults()
    {
        UiData item;
        SignalLog log(&item);
        QVERIFY(item.isReady() && item.isApplicable() && item.isValueOk());
        QVERIFY(!item.isReadOnly() && !item.isMandatory() && !item.isPersistent());
        // Writing the default first changes nothing visible.
        item.setMandatory(false);
        item.setValueOk(true);
        QVERIFY(log.take().isEmpty());
        QCOMPARE(item.getId(), QString(":ui_only::"));
        item.setRegisterId("first");
        QTest::ignoreMessage(QtWarningMsg, "registerId already exsist!");
        item.setRegisterId("second");
        QCOMPARE(item.getId(), QString(":ui_only:first:"));
        item.setAttributes({{"name", "reportName"}});
        QCOMPARE(item.getId(), QString(":ui_only:reportName:"));
        // Those that are not among the new ones have been removed.
        QVERIFY(item.getRegisterId().isEmpty() && !item.getAttr("mandatory").isValid());
        item.setPassing();
        QCOMPARE(item.getQualityCode(), 16);
        item.setFailing();
        QCOMPARE(item.property("qualityCode").toInt(), 64);
        QCOMPARE(item.invokeWithStringArg("x"), QString());
        item.setValue(3);
        item.revert();
        QCOMPARE(item.getValue(), QVariant(3));
    }

    void validators()
    {
        UiData item;
        item.setType(UiData::TYPE_DOUBLE);
        QPointer<QValidator> before = item.getValidator();
        QSignalSpy changes(&item, &UiData::validatorChanged);
        item.setMinRange(1);
        item.setMaxRange(9);
        QVERIFY(changes.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(changes.size(), 2);
        const auto* range = qobject_cast<QDoubleValidator*>(item.getValidator());
        QVERIFY(range && range->bottom() == 1 && range->top() == 9);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!before);

        item.setType(UiData::TYPE_STRING);
        item.setRegex("[a-c]+");
        QCOMPARE(changes.size(), 3);
        QString text = "abd";
        int position = 0;
        QCOMPARE(item.getValidator()->validate(text, position), QValidator::Invalid);
        item.setRegex(QString());
        QCOMPARE(item.getValidator()->validate(text, position), QValidator::Acceptable);

        // The attributes of an item may be written in any order.
        UiData ordered;
        ordered.setType(UiData::TYPE_DOUBLE);
        QVERIFY(ordered.getValidator());
        ordered.setPrecision(4);
        QCOMPARE(qobject_cast<QDoubleValidator*>(ordered.getValidator())->decimals(), 4);
        ordered.setRegex("[A-Z]+");
        ordered.setType(UiData::TYPE_STRING);
        text = "zz";
        QCOMPARE(ordered.getValidator()->validate(text, position), QValidator::Invalid);

        item.setAttributes({{"type", "nonsense"}, {"minRange", "low"}, {"maxRange", QVariant()}});
        QCOMPARE(changes.size(), 5);
        const auto* none = qobject_cast<QIntValidator*>(item.getValidator());
        QVERIFY(none && none->bottom() == 0 && none->top() == 0);
    }

    void texts()
    {
        const QDateTime moment(QDate(2020, 2, 29), QTime(1, 2, 3, 4), Qt::UTC);
        const std::tuple<QString, QVariant, const char*> rows[] {{UiData::TYPE_STRING, "abc", "abc"},
                {UiData::TYPE_BOOL, true, "True"}, {UiData::TYPE_BOOL, QVariant(), "False"},
                {UiData::TYPE_BOOL, 2, "True"}, {UiData::TYPE_ENUM, 20, "Twenty"}, {UiData::TYPE_ENUM, 21, ""},
                {UiData::TYPE_DOUBLE, 1, "1.00"}, {UiData::TYPE_INT64, -9007199254740993LL, "-9007199254740993"},
                {UiData::TYPE_INT, QVariant(), ""}, {UiData::TYPE_VEC_INT, "1,,3", "1,,3"},
                {UiData::TYPE_STRING, QTime(10, 20, 0, 5), "10:20:00.005"},
                {UiData::TYPE_STRING, moment, "2020-02-29T01:02:03.004Z"}, {UiData::TYPE_INT, QPointF(1, 2.5), "1,2.5"},
                {"", QColor(255, 0, 0, 128), "#80ff0000"}};
        for (const auto& [type, value, text] : rows) {
            UiData item;
            item.setAttributes({{"type", type}, {"precision", 2}});
            item.setEnums({10, 20}, {"Ten", "Twenty"});
            item.setValue(value);
            QCOMPARE(item.getValueString(), QString(text));
            // Stored as it was given.
            QCOMPARE(item.getValue(), value);
            QCOMPARE(item.getValue().userType(), value.userType());
        }
    }

    void aFormatterStays()
    {
        kiv::embedded::EmbeddedBackend backend;
        UiData item;
        item.setAttributes({{"type", UiData::TYPE_DOUBLE}, {"formatter", "dB"}, {"inputType", KivData::INPUT_FLOAT},
                {"minRange", 0}, {"maxRange", 10}});
        item.setValue(1.5);
        QCOMPARE(item.getValueString(), QString("1.50 dB"));
        QCOMPARE(item.getValueStringNoUnits(), QString("1.50"));
        QCOMPARE(item.getUnitString(), QString("dB"));
        QCOMPARE(item.getRangeDescription(), QString("0.00 dB - 10.00 dB"));
        item.setAttributes({{"type", UiData::TYPE_DOUBLE}, {"formatter", "percent"}});
        QCOMPARE(item.getValueString(), QString("1.50 dB"));
    }

    void vectors()
    {
        // At most 32 bits; text after a NUL counts.
        const std::tuple<QString, QVariant, QVariantList> rows[] {{UiData::TYPE_VEC_INT, "1,,x,3", {1, 0, 0, 3}},
                {UiData::TYPE_VEC_INT, "3000000000,2147483647", {0, 2147483647}},
                {UiData::TYPE_VEC_DOUBLE, "1.5,,-2e3", {1.5, 0.0, -2000.0}}, {UiData::TYPE_VEC_INT, "", {0}},
                {UiData::TYPE_VEC_STRING, "a,,b", {"a", "", "b"}},
                {UiData::TYPE_VEC_STRING, QString("a,") + QChar(0) + ",b", {"a", "b"}},
                {UiData::TYPE_VEC_INT, QVariantList(), {}}, {UiData::TYPE_VEC_INT, QVariantList {4, 5}, {4, 5}}};
        for (const auto& [type, value, elements] : rows) {
            UiData item;
            item.setType(type);
            SignalLog log(&item);
            item.setValue(value);
            QCOMPARE(log.take(), words("valueCountChanged valueChanged"));
            QCOMPARE(item.getValueCount(), elements.size());
            for (int i = 0; i < elements.size(); ++i) {
                QCOMPARE(item.variantAt(i), elements.at(i));
                QCOMPARE(item.variantAt(i).type(), elements.at(i).type());
            }
        }
    }

    void elements()
    {
        UiData item;
        item.setType(UiData::TYPE_VEC_INT);
        item.setValue(QVariant("1,2,3"));
        item.setAt(1, 3e9);
        QCOMPARE(item.variantAt(1), QVariant(0));
        SignalLog log(&item);
        item.setAt(1, "20");
        QCOMPARE(log.take(), words("valueChanged arraySelectionChanged"));
        item.insertAt(3, 4);
        QCOMPARE(log.take(), words("valueChanged valueCountChanged arraySelectionChanged"));
        item.setArraySelection(3);
        QCOMPARE(log.take(), words("arraySelectionChanged"));
        QCOMPARE(item.getArraySelectionString(), QString("4"));
        item.removeAt(0);
        QCOMPARE(log.take(), words("valueChanged arraySelectionChanged valueCountChanged"));
        QCOMPARE(item.getValue(), QVariant("20,3,4"));
        QCOMPARE(item.getArraySelection(), 2);
        // A selection may be set before its elements.
        item.setArraySelection(7);
        QCOMPARE(item.getArraySelection(), 7);
        QCOMPARE(log.take(), words("arraySelectionChanged"));
        for (int outside : {-1, 3, 1000}) {
            item.setAt(outside, 1);
            item.removeAt(outside);
            item.insertAt(outside + (outside > 0), 1);
            QVERIFY(!item.variantAt(outside).isValid());
        }
        QVERIFY(log.take().isEmpty());
        item.setValue(QVector<QVariant> {7, 8});
        QCOMPARE(log.take(), words("valueChanged valueCountChanged"));
        QCOMPARE(item.getValue(), QVariant("7,8"));
        item.setValue(QVariant(QString(3 << 20, '1')));
        QCOMPARE(item.getValue().toString().size(), 1 << 20);
    }

    void choices()
    {
        UiData item;
        SignalLog log(&item);
        item.setType(UiData::TYPE_ENUM);
        log.take();
        item.setEnums({3, 5, 5}, {"Three", "Five", "Also five"}, {"three", "five", "five"});
        QCOMPARE(log.take(), words("valueChanged enumLabelsChanged enumCountChanged"));
        QCOMPARE(item.getEnumLabels(), (QStringList {"Three", "Five", "Also five"}));
        QCOMPARE(item.getEnumMap()->value("five"), QVariant(5));
        QCOMPARE(item.enumIndex(5), 1);
        QCOMPARE(item.enumLabelForValue(3), QString("Three"));
        QCOMPARE(item.enumValue(2), 5);
        QCOMPARE(item.enumIndex(4), -1);
        QCOMPARE(item.enumLabel(3), QString());
        QCOMPARE(item.enumValue(-1), -1);
        item.getUiEnumList()->at(1)->setApplicable(false);
        QCOMPARE(log.take(), words("valueChanged enumLabelsChanged enumCountChanged"));
        QVERIFY(item.applicableAt(0) && !item.applicableAt(1) && !item.applicableAt(3));
        item.setEnums({9}, {"Nine"});
        QCOMPARE(item.getEnumCount(), 4);
        // One announcement for the choice, one for the completion.
        QCOMPARE(log.take().count("enumCountChanged"), 2);

        BoolUiData flag;
        QCOMPARE(flag.getEnumCount(), 2);
        QCOMPARE(flag.enumLabel(0), QString("False"));
        QCOMPARE(flag.enumLabelForValue(1), QString("True"));
        QCOMPARE(flag.enumValue(1), 1);
        QVERIFY(flag.applicableAt(1) && !flag.applicableAt(2));
        QCOMPARE(flag.enumIndex(2), -1);
    }

    void anotherListOfChoices()
    {
        UiData item;
        SignalLog log(&item);
        auto list = std::make_unique<UiDataEnums>();
        UiEnumType one(nullptr, "One", "one", 1, true);
        list->append(&one);
        item.setUiEnumList(list.get());
        QCOMPARE(log.take(), words("typeChanged typeChanged"));
        QCOMPARE(item.getType(), UiData::TYPE_ENUM);
        list->componentComplete();
        QCOMPARE(item.getEnumLabels(), QStringList {"One"});
        log.take();
        item.setUiEnumList(list.get());
        QVERIFY(log.take().isEmpty());
        list.reset();
        QVERIFY(!item.applicableAt(0));
        QCOMPARE(item.getEnumMap()->value("one"), QVariant(1));
        item.slotEnumUpdate();
        QCOMPARE(item.getEnumCount(), 0);
        QVERIFY(!item.getEnumMap()->value("one").isValid());
    }

    void listsOfChoices()
    {
        UiDataEnums list;
        QSignalSpy changes(&list, &UiDataEnums::itemsChanged);
        auto first = std::make_unique<UiEnumType>(nullptr, "a", "a", 1, true);
        list.append(first.get());
        list.append(nullptr);
        QVERIFY(changes.isEmpty());
        first->setApplicable(true);
        QVERIFY(changes.isEmpty());
        first->setApplicable(false);
        QCOMPARE(changes.size(), 1);
        list.componentComplete();
        QCOMPARE(changes.size(), 2);
        UiEnumType second;
        list.append(&second);
        QCOMPARE(changes.size(), 3);
        first.reset();
        QCOMPARE(list.getEnumList(), QList<UiEnumType*> {&second});
        QVERIFY(!list.at(1) && !list.at(-1));

        SignalLog log(&second);
        second.setLabel("b");
        second.setLabel("b");
        second.setName("b");
        second.setValue(0);
        QCOMPARE(log.take(), words("labelChanged labelChanged valueChanged"));
    }

    void slotsMayDeleteTheItem()
    {
        for (const char* signal : {SIGNAL(minRangeChanged()), SIGNAL(isReadyChanged()), SIGNAL(typeChanged()),
                     SIGNAL(valueCountChanged()), SIGNAL(valueChanged()), SIGNAL(enumLabelsChanged()), SIGNAL(regexChanged()), SIGNAL(validatorChanged())}) {
            const QPointer<UiData> item = new UiData;
            connect(item, signal, this, SLOT(deleteSender()));
            item->setAttributes({{"formatter", "dB"}});
            const std::function<void()> steps[] {[=] { item->setMinRange(1); }, [=] { item->setReady(false); },
                    [=] { item->setType(UiData::TYPE_VEC_INT); }, [=] { item->setValue(QVariant("1,2")); },
                    [=] { item->removeAt(0); }, [=] { item->setRegex("x"); }, [=] { item->slotEnumUpdate(); }};
            for (const auto& step : steps) {
                if (item)
                    step();
            }
            QVERIFY2(!item, signal);
        }
    }

public Q_SLOTS:
    void deleteSender() { delete sender(); }
};

QTEST_GUILESS_MAIN(UiDataTest)
#include "tst_uidata.moc"
