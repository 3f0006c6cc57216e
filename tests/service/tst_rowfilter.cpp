#include "languages/languages.h"
#include "service/rowfilter.h"

#include <QAbstractItemModelTester>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QStandardItemModel>
#include <cmath>
#include <QtTest>

using uiutils::RowFilter;

namespace {

enum Role { Job = Qt::UserRole + 1, Customer, Size, Changed };

/// Three jobs in no order; numbers that texts would sort otherwise.
std::unique_ptr<QStandardItemModel> jobs()
{
    auto model = std::make_unique<QStandardItemModel>();
    model->setItemRoleNames({{Job, "job"}, {Customer, "customer"}, {Size, "size"}, {Changed, "changed"}});
    const auto add = [&](const char* job, const char* customer, int size, const char* changed) {
        auto* const item = new QStandardItem;
        item->setData(job, Job);
        item->setData(customer, Customer);
        item->setData(size, Size);
        item->setData(changed, Changed);
        model->appendRow(item);
    };
    add("WO-2", "Quay Hotel", 9, "2026-11-19");
    add("WO-10", "Clinic", 10, "2026-11-20");
    add("WO-3", "hotel annex", 100, "2026-11-18");
    return model;
}

/// Rows 0, 1, 2 ... with these values to sort by, some none.
std::unique_ptr<QStandardItemModel> rowsOf(const QVariantList& values)
{
    auto model = std::make_unique<QStandardItemModel>();
    model->setItemRoleNames({{Job, "job"}, {Size, "size"}});
    for (int row = 0; row < values.size(); ++row) {
        auto* const item = new QStandardItem;
        item->setData(QString::number(row), Job);
        item->setData(values.at(row), Size);
        model->appendRow(item);
    }
    return model;
}

QString shown(const RowFilter& filter)
{
    QStringList names;
    for (int row = 0; row < filter.count(); ++row)
        names += filter.get(row)["job"].toString();
    return names.join(' ');
}

} // namespace

class RowFilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void searchAndOrder()
    {
        const auto model = jobs();
        RowFilter filter;
        const QAbstractItemModelTester tester(&filter);
        // Everything is set before there is a model, as a page does.
        filter.setSortBy("changed");
        filter.setDescending(true);
        filter.setSourceModel(model.get());
        QCOMPARE(shown(filter), QString("WO-10 WO-2 WO-3"));
        filter.setSortBy("size");
        QCOMPARE(shown(filter), QString("WO-3 WO-10 WO-2"));
        filter.setDescending(false);
        QCOMPARE(shown(filter), QString("WO-2 WO-10 WO-3"));
        filter.setSortBy("");
        QCOMPARE(shown(filter), QString("WO-2 WO-10 WO-3"));
        filter.setSortBy("customer");
        QCOMPARE(shown(filter), QString("WO-10 WO-3 WO-2"));

        filter.setText("  HOTEL  ");
        QCOMPARE(shown(filter), QString("WO-3 WO-2"));
        // Every word, each in a role of its own.
        filter.setText("hotel 2026-11-19");
        QCOMPARE(shown(filter), QString("WO-2"));
        filter.setTextRoles({"customer"});
        QCOMPARE(shown(filter), QString());
        filter.setText("");
        filter.setRole("size");
        filter.setValues({10, 100.0});
        QCOMPARE(shown(filter), QString("WO-10 WO-3"));
        filter.setRole("none");
        QCOMPARE(filter.count(), 0);
        QVERIFY(filter.get(0).isEmpty() && filter.get(-1).isEmpty());
    }

    /// The number of rows is announced when it changes, and only then.
    void follows()
    {
        const auto model = jobs();
        RowFilter filter;
        QSignalSpy counts(&filter, &RowFilter::countChanged);
        filter.setSourceModel(model.get());
        filter.setSortBy("size");
        filter.setText("wo");
        QCOMPARE(counts.count(), 1);
        filter.setText("wo-2");
        QCOMPARE(counts.count(), 2);
        model->item(1)->setData("WO-25", Job);
        QCOMPARE(counts.count(), 3);
        QCOMPARE(shown(filter), QString("WO-2 WO-25"));
        model->item(0)->setData(11, Size);
        QCOMPARE(shown(filter), QString("WO-25 WO-2"));
        filter.setSourceModel(nullptr);
        QCOMPARE(filter.count(), 0);
        QCOMPARE(counts.count(), 4);
    }

    void order_data()
    {
        QTest::addColumn<QVariantList>("values");
        QTest::addColumn<QString>("ascending");
        QTest::addColumn<QString>("descending");
        const QVariant none;
        const QDateTime noon(QDate(2026, 1, 31), QTime(12, 0));
        QTest::newRow("fractions among whole numbers") << QVariantList {3, 2.6, 2, 2.4, 2.5f} << "2 3 4 1 0" << "0 1 4 3 2";
        QTest::newRow("large numbers") << QVariantList {9007199254740993LL, 9007199254740992LL} << "1 0" << "0 1";
        QTest::newRow("without a value") << QVariantList {none, 2, std::nan(""), 1, "", QDateTime()} << "3 1 0 2 4 5" << "1 3 0 2 4 5";
        QTest::newRow("of several kinds") << QVariantList {"b", 5, noon, "a", 4.5, noon.date(), true} << "6 4 1 5 2 3 0" << "0 3 2 5 1 4 6";
        QTest::newRow("names") << QVariantList {"wo-10", "WO-2", "wo-3", "Wo-2"} << "1 3 2 0" << "0 2 1 3";
        QTest::newRow("equal") << QVariantList {1, 0, 1, 0, 1} << "1 3 0 2 4" << "0 2 4 1 3";
    }
    void order()
    {
        QFETCH(QVariantList, values);
        const auto model = rowsOf(values);
        RowFilter filter;
        filter.setSortBy("size");
        filter.setSourceModel(model.get());
        QTEST(shown(filter), "ascending");
        filter.setDescending(true);
        QTEST(shown(filter), "descending");
    }

    /// Also of rows that come later, or become equal.
    void equalRowsKeepTheirOrder()
    {
        const auto model = rowsOf({1, 1, 0, 1});
        RowFilter filter;
        filter.setSortBy("size");
        filter.setSourceModel(model.get());
        QCOMPARE(shown(filter), QString("2 0 1 3"));
        model->item(2)->setData(1, Size);
        QCOMPARE(shown(filter), QString("0 1 2 3"));
        filter.setDescending(true);
        auto* const item = new QStandardItem;
        item->setData("4", Job);
        item->setData(1, Size);
        model->insertRow(1, item);
        QCOMPARE(shown(filter), QString("0 4 1 2 3"));
    }

    /// A list of QML has its roles with the first row, and another table may number them anew.
    void rolesThatComeLater()
    {
        qmlRegisterType<RowFilter>("UiUtils", 1, 0, "RowFilter");
        qmlRegisterAnonymousType<QAbstractItemModel>("UiUtils", 1);
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQml.Models 2.15; import UiUtils 1.0; RowFilter { sortBy: 'size'; sourceModel: ListModel {}"
                          "function fill() { for (var size of [3, 1, 2]) sourceModel.append({ job: 'j' + size, size: size }) } }", QUrl());
        const std::unique_ptr<RowFilter> filter(qobject_cast<RowFilter*>(component.create()));
        QVERIFY2(filter, qPrintable(component.errorString()));
        QVERIFY(QMetaObject::invokeMethod(filter.get(), "fill"));
        QCOMPARE(shown(*filter), QString("j1 j2 j3"));
        filter->setTextRoles({"job"});
        filter->setText("j2");
        QCOMPARE(shown(*filter), QString("j2"));
        filter->setText("");

        const auto model = rowsOf({2, 1});
        filter->setSourceModel(model.get());
        QCOMPARE(shown(*filter), QString("1 0"));
        model->clear();
        model->setItemRoleNames({{Size, "job"}, {Job, "size"}});
        for (const auto& [job, size] : {std::pair("j1", "b"), {"j2", "a"}}) {
            auto* const item = new QStandardItem;
            item->setData(size, Job);
            item->setData(job, Size);
            model->appendRow(item);
        }
        QCOMPARE(shown(*filter), QString("j2 j1"));
    }

    /// As people type names on keyboards without their letters, and names that were entered on such keyboards.
    void namesAreFoundWithoutAccents_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isFound");
        const auto row = [](const char* name, const char* typed, const char* text, bool isFound = true) {
            QTest::newRow(name) << QString(typed) << QString(text) << isFound;
        };
        row("umlaut", "muller", u8"Müller");
        row("umlaut typed", u8"MÜLLER", "Muller");
        row("two characters", "garcon", u8"garc\u0327on");
        row("strokes", "lodz soren", u8"Łódź, Søren");
        row("sharp s", "strasse", u8"Straße");
        row("dots of capitals", "istanbul", u8"İSTANBUL");
        row("Greek", u8"αθηνα", u8"Αθήνα");
        row("Cyrillic", u8"ежик", u8"Ёжик");
        row("vowel points", u8"محمد", u8"مُحَمَّد");
        row("Hebrew points", u8"שלום", u8"שָׁלוֹם");
        row("hamza", u8"احمد", u8"أحمد");
        row("width", "wo-12", u8"ＷＯ－１２");
        row("width of kana", u8"ガ", u8"ｶﾞ");
        row("kana of another sound", u8"か", u8"が", false);
        row("Thai tone", u8"มา", u8"ม้า", false);
        row("Devanagari vowel", u8"कल", u8"कुल", false);
        row("another letter", "mueller", u8"Müller", false);
    }
    void namesAreFoundWithoutAccents()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        const auto model = rowsOf({text});
        RowFilter filter;
        filter.setSourceModel(model.get());
        filter.setTextRoles({"size"});
        filter.setText(typed);
        QTEST(filter.count() == 1, "isFound");
    }

    void whatIsFound()
    {
        // "é" as one character, and as two.
        const auto model = rowsOf({u8"Café Nord", u8"CAFÉ Süd", "1"});
        RowFilter filter;
        filter.setSourceModel(model.get());
        for (const char* typed : {u8"café", u8"café	"}) {
            filter.setText(typed);
            QCOMPARE(shown(filter), QString("0 1"));
        }
        filter.setText("");
        // Without a role nothing is left out; one that the model lacks is empty.
        filter.setValues({1});
        QCOMPARE(filter.count(), 3);
        filter.setRole("size");
        QCOMPARE(shown(filter), QString("2"));
        filter.setValues({true});
        QCOMPARE(filter.count(), 0);
        filter.setRole("none");
        filter.setValues({""});
        QCOMPARE(filter.count(), 3);
    }

    void aDeletedModelLeavesNoRows()
    {
        auto model = jobs();
        RowFilter filter;
        const QAbstractItemModelTester tester(&filter);
        auto former = jobs();
        filter.setSourceModel(former.get());
        filter.setSourceModel(model.get());
        former.reset();
        QCOMPARE(filter.count(), 3);
        QSignalSpy resets(&filter, &RowFilter::modelReset);
        QSignalSpy counts(&filter, &RowFilter::countChanged);
        model.reset();
        QVERIFY(filter.count() == 0 && resets.count() == 1 && counts.count() == 1);
        QVERIFY(!filter.sourceModel() && filter.get(0).isEmpty());
        const auto next = jobs();
        filter.setSourceModel(next.get());
        QCOMPARE(filter.count(), 3);
    }

    void anotherLanguageSortsAnew()
    {
        const QLocale before;
        const auto restore = qScopeGuard([&] { QLocale::setDefault(before); });
        QLocale::setDefault(QLocale("sv"));
        const auto model = rowsOf({u8"ä", "z", "a"});
        RowFilter filter;
        filter.setSortBy("size");
        filter.setSourceModel(model.get());
        QCOMPARE(shown(filter), QString("2 1 0"));
        QLocale::setDefault(QLocale("de"));
        Q_EMIT uiutils::Languages::instance()->currentChanged();
        QCOMPARE(shown(filter), QString("2 0 1"));
        // Which knows neither numbers nor capitals.
        QLocale::setDefault(QLocale::c());
        Q_EMIT uiutils::Languages::instance()->currentChanged();
        const auto names = rowsOf({"b10", "B9", "a"});
        filter.setSourceModel(names.get());
        QCOMPARE(shown(filter), QString("2 1 0"));
    }
};

QTEST_GUILESS_MAIN(RowFilterTest)
#include "tst_rowfilter.moc"
