#include "local/uidata.h"
#include "local/uidatacontainer.h"
#include "module/uiutilsmodule.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QtTest>

#include <memory>

namespace {

/// Counts how often the container or any other code reads its attributes.
class CountingItem : public UiData
{
public:
    QVariant getAttr(const QString& key) const override
    {
        ++looks;
        return UiData::getAttr(key);
    }

    static int looks;
};

int CountingItem::looks = 0;

} // namespace

/// Items together: those that C++ adds, and those that pages declare, all in the shared container.
class UiDataContainerTest : public QObject
{
    Q_OBJECT

private:
    static std::unique_ptr<UiData> named(const QString& name, const QMap<QString, QVariant>& more = {})
    {
        auto item = std::make_unique<UiData>();
        QMap<QString, QVariant> attributes = more;
        attributes.insert("name", name);
        attributes.insert("type", UiData::TYPE_STRING);
        item->setAttributes(attributes);
        return item;
    }

    static std::unique_ptr<QObject> page(QQmlEngine& engine, const QByteArray& body)
    {
        QQmlComponent component(&engine);
        component.setData("import QtQml 2.15\nimport UiUtils 1.0\n" + body, QUrl());
        std::unique_ptr<QObject> object(component.create());
        if (!object)
            qWarning("%s", qPrintable(component.errorString()));
        return object;
    }

private Q_SLOTS:
    void initTestCase() { uiutils::registerTypes(); }

    void mandatoryItemsDecide()
    {
        UiDataContainer container;
        QSignalSpy verdicts(&container, &UiDataContainer::allItemsOkChanged);
        QSignalSpy changes(&container, &UiDataContainer::valueChanged);
        QVERIFY(!container.getAllItemsOk());
        auto free = named("free", {{"valueOk", false}});
        container.addItem(free.get());
        QVERIFY(container.getAllItemsOk());
        QCOMPARE(verdicts.size(), 1);
        QCOMPARE(changes.size(), 1);
        auto needed = named("needed", {{"mandatory", true}, {"valueOk", false}});
        container.addItem(needed.get());
        QVERIFY(!container.getAllItemsOk());
        needed->setValueOk(true);
        QVERIFY(!container.getAllItemsOk());
        needed->setValue(QVariant("x"));
        QVERIFY(container.getAllItemsOk());
        free->setValue(QVariant("y"));
        QCOMPARE(verdicts.size(), 3);
        QCOMPARE(changes.size(), 4);
        free.reset();
        QCOMPARE(container.getItems().keys(), QStringList {":ui_only:needed:"});
    }

    void storedValues()
    {
        UiDataContainer container;
        container.setPersistentConfigMap({{":ui_only:kept:", "stored"}, {":ui_only:other:", "stored"}});
        auto kept = named("kept", {{"persistent", true}});
        kept->setValue(QVariant("declared"));
        QSignalSpy changes(&container, &UiDataContainer::valueChanged);
        container.addItem(kept.get());
        QCOMPARE(kept->getValue(), QVariant("stored"));
        QCOMPARE(changes.size(), 1);
        auto other = named("other");
        other->setValue(QVariant("declared"));
        container.addItem(other.get());
        QCOMPARE(other->getValue(), QVariant("declared"));
        container.setPersistentConfigMap({{":ui_only:kept:", "later"}});
        QCOMPARE(kept->getValue(), QVariant("stored"));
    }

    /// A slot that receives a stored value may delete the item, or the container with it.
    void aStoredValueMayEndItsItem()
    {
        auto* container = new UiDataContainer;
        const QPointer<UiDataContainer> guard(container);
        container->setPersistentConfigMap({{":ui_only:kept:", "stored"}});
        for (const bool endsContainer : {false, true}) {
            const QPointer<UiData> item = named("kept", {{"persistent", true}}).release();
            connect(item, &UiData::valueChanged, this, [=] { delete (endsContainer ? container : static_cast<QObject*>(item)); });
            container->addItem(item);
            QVERIFY(!item && (endsContainer ? !guard : container->getItems().isEmpty()));
        }
    }

    /// Neither adding nor changing an item reads the others.
    void manyItems()
    {
        constexpr int count = 300;
        UiDataContainer container;
        CountingItem::looks = 0;
        for (int i = 0; i < count; ++i) {
            auto* item = new CountingItem;
            item->setAttributes({{"name", QString::number(i)}, {"mandatory", true}, {"valueOk", i != 7}});
            container.addItem(item);
            item->setValue(i);
        }
        QVERIFY2(CountingItem::looks < 40 * count, qPrintable(QString::number(CountingItem::looks)));
        QVERIFY(!container.getAllItemsOk());
        UiData* wrong = container.getItems().value(":ui_only:7:");
        container.addItem(named("7", {{"mandatory", true}}).release());
        QVERIFY(container.getAllItemsOk());
        wrong->setValueOk(true);
        wrong->setValueOk(false);
        container.removeItem(container.getItems().value(":ui_only:8:"));
        wrong->setValue(1);
        QVERIFY(container.getAllItemsOk());
        container.getItems().value(":ui_only:9:")->setAttributes({{"mandatory", true}, {"valueOk", false}});
        QVERIFY(container.getAllItemsOk());
        container.slotValueUpdated();
        QVERIFY(!container.getAllItemsOk());
        delete container.getItems().value(":ui_only:9:");
        container.slotValueUpdated();
        QVERIFY(container.getAllItemsOk());
    }

    void entriesAreRemovedByTheirOwnItemOnly()
    {
        UiDataContainer container;
        auto first = named("same");
        auto second = named("same");
        container.addItem(first.get());
        container.addItem(second.get());
        container.removeItem(first.get());
        QCOMPARE(container.getItems().value(":ui_only:same:"), second.get());
        container.removeItem(second.get());
        container.removeItem(second.get());
        container.removeItem(nullptr);
        container.addItem(nullptr);
        QVERIFY(container.getItems().isEmpty());
        // An item that has got another name leaves nothing behind under the old one.
        container.addItem(first.get());
        first->setAttributes({{"name", "renamed"}});
        first.reset();
        QVERIFY(container.getItems().isEmpty());
    }

    void aPageDeclaresItems()
    {
        QQmlEngine engine;
        auto root = page(engine, R"(
            QtObject {
                property StringUiData user: StringUiData { registerId: "formUser"; mandatory: true; valueOk: false; value: "Ines" }
                property EnumUiData mode: EnumUiData {
                    registerId: "formMode"
                    value: 2
                    UiDataEnums {
                        UiEnumType { label: "One"; name: "one"; value: 1 }
                        UiEnumType { label: "Two"; name: "two"; value: 2; applicable: false }
                    }
                }
                property UiData list: UiData { registerId: "formList"; type: "std::vector<int32_t>"; arraySelection: 1; value: "1,2" }
                property bool ok: UiDataContainer.allItemsOk
                property int two: formMode.enums.two
                property KivData alike: mode
            })");
        QVERIFY(root);
        QCOMPARE(root->property("ok"), QVariant(false));
        const QMap<QString, UiData*> items = UiDataContainer::shared()->getItems();
        QCOMPARE(items.keys(), (QStringList {":ui_only:formList:", ":ui_only:formMode:", ":ui_only:formUser:"}));
        QCOMPARE(items.value(":ui_only:formMode:")->getEnumLabels(), (QStringList {"One", "Two"}));
        QCOMPARE(items.value(":ui_only:formMode:")->getValueString(), QString("Two"));
        QCOMPARE(root->property("two"), QVariant(2));
        QCOMPARE(items.value(":ui_only:formList:")->getArraySelectionString(), QString("2"));
        QCOMPARE(items.value(":ui_only:formUser:")->getObjectParent(), root.get());
        QQmlExpression(engine.rootContext(), nullptr, "formUser.valueOk = true; formUser.value = 'x'").evaluate();
        QCOMPARE(root->property("ok"), QVariant(true));
        engine.collectGarbage();
        QVERIFY(UiDataContainer::shared()->getItems().contains(":ui_only:formMode:"));

        // The items are deleted with the page, although the container is their parent.
        root.reset();
        QVERIFY(UiDataContainer::shared()->getItems().isEmpty());
        QVERIFY(QQmlExpression(engine.rootContext(), nullptr, "formUser === null").evaluate().toBool());
    }

    /// QML reads a text that looks like a point or a time as one when it is a literal.
    void literalTexts()
    {
        QQmlEngine engine;
        for (const char* text : {"1,2", "1.5,-2.25", "1,2,3", "0.1,0.2,0.3,0.4", "1,,3", "640x480", "1,2,3x4", "10:20",
                     "10:20:30", "2020-02-29", "2020-02-29T10:20:30", "#ff0000", "plain"}) {
            for (const char* item : {"StringUiData { value: '%1' }", "UiData { value: '%1'; type: 'std::string' }"}) {
                auto root = page(engine, QString(item).arg(text).toLatin1());
                QVERIFY(root);
                QCOMPARE(root->property("value"), QVariant(text));
                QCOMPARE(root->property("valueString").toString(), QString(text));
            }
        }
    }

    void withoutAnEngine()
    {
        UiData item;
        QTest::ignoreMessage(QtWarningMsg, "registerId is used for context property name in a engine");
        item.componentComplete();
        QVERIFY(!UiDataContainer::shared()->getItems().values().contains(&item));
    }

    void anyOrderOfEnds()
    {
        auto engine = std::make_unique<QQmlEngine>();
        const QByteArray body = "QtObject { property UiData a: UiData { registerId: 'anyA' } property UiData b: UiData { registerId:"
                                " 'not a name' } property UiData c: UiData { registerId: 'anyA' } }";
        auto first = page(*engine, body);
        auto second = page(*engine, body);
        first.reset();
        engine.reset();
        second.reset();
        QVERIFY(UiDataContainer::shared()->getItems().isEmpty());

        auto* item = new UiData;
        {
            UiDataContainer container;
            container.addItem(item);
        }
        engine = std::make_unique<QQmlEngine>();
        auto third = page(*engine, body);
        delete UiDataContainer::s_dcInstance;
        third.reset();
        QVERIFY(UiDataContainer::shared()->getItems().isEmpty());
    }

    void oddValuesFromQml()
    {
        QQmlEngine engine;
        auto root = page(engine, R"(
            QtObject {
                property list<UiData> items: [
                    UiData { type: "double" }, UiData { type: "bool" }, UiData { type: "std::vector<double>" }, UiData {},
                    UiData { type: "nonsense" }, StringUiData {}, EnumUiData {} ]
                Component.onCompleted: {
                    for (const item of items) {
                        for (const value of [undefined, null, NaN, {}, [1, "x"], "text", new Date(NaN), item]) {
                            item.value = value
                            item.minRange = value
                            item.maxRange = value
                            item.setAt(0, value)
                            item.insertAt(0, value)
                            item.valueString + item.rangeDescription
                        }
                    }
                }
            })");
        QVERIFY(root);
        QCoreApplication::processEvents();
    }
};

QTEST_GUILESS_MAIN(UiDataContainerTest)
#include "tst_uidatacontainer.moc"
