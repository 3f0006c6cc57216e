#include "service/rowfilter.h"

#include <QAbstractItemModelTester>
#include <QStandardItemModel>
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
};

QTEST_GUILESS_MAIN(RowFilterTest)
#include "tst_rowfilter.moc"
