#include "columns.h"

#include "limit.h"
#include "samplemodel.h"
#include "statistics.h"

#include <cmath>
#include <tuple>

using namespace uiutils::demo;
using uiutils::Status;

class StatisticsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void statistics_data()
    {
        addColumns<QVector<double>, double, double, double, double>();
        QTest::newRow("none") << QVector<double>{} << 0.0 << 0.0 << 0.0 << 0.0;
        QTest::newRow("one") << QVector<double>{7} << 7.0 << 7.0 << 7.0 << 0.0;
        QTest::newRow("odd, unsorted") << QVector<double>{9, 1, 5} << 1.0 << 5.0 << 9.0 << 6.0;
        QTest::newRow("even: mean of the middle two")
                << QVector<double>{8, 2, 4, 100} << 2.0 << 6.0 << 100.0 << 104.0 / 3;
        QTest::newRow("order matters to jitter only")
                << QVector<double>{2, 4, 8, 100} << 2.0 << 6.0 << 100.0 << 98.0 / 3;
        QTest::newRow("all the same") << QVector<double>{3, 3, 3, 3} << 3.0 << 3.0 << 3.0 << 0.0;
    }

    void statistics()
    {
        const auto [samples, minimum, median, maximum, jitter]
                = currentRow<QVector<double>, double, double, double, double>();
        const Statistics result = statisticsOf(samples);
        QCOMPARE(result.count, samples.size());
        QCOMPARE(result.minimum, minimum);
        QCOMPARE(result.median, median);
        QCOMPARE(result.maximum, maximum);
        QCOMPARE(result.jitter, jitter);
    }

    void judge()
    {
        // A fifth below the maximum, just below, on and above it; the same for a minimum.
        const std::tuple<Limit::Kind, double, Status::Code> rows[] {{Limit::AtMost, 80, Status::Pass}, {Limit::AtMost, 80.1, Status::Marginal},
                {Limit::AtMost, 100, Status::Marginal}, {Limit::AtMost, 100.1, Status::Fail}, {Limit::AtLeast, 120, Status::Pass},
                {Limit::AtLeast, 119.9, Status::Marginal}, {Limit::AtLeast, 100, Status::Marginal}, {Limit::AtLeast, 99.9, Status::Fail}};
        for (const auto& [kind, value, status] : rows)
            QVERIFY2(Limit({kind, 100}).judge(value) == status, qPrintable(QString::number(value)));
    }

    /// Three significant digits, none finer than the clock, and zero works too.
    void texts()
    {
        QLocale::setDefault(QLocale::c());
        const std::tuple<int, double, const char*> rows[] {{4, 0.0, "0.000 u"}, {4, 0.00042, "0.0004 u"}, {4, 0.02194, "0.0219 u"},
                {4, 0.1234, "0.123 u"}, {4, 1.0, "1.00 u"}, {4, 123.4, "123 u"}, {0, 12345.6, "12346 u"}};
        for (const auto& [mostDecimals, value, text] : rows)
            QCOMPARE(SampleModel([] { return QString("Quantity"); }, "u", mostDecimals, {Limit::AtMost, 1}, nullptr).text(value), QString(text));
    }

    /// A new limit judges the present samples again, and a limit that makes no sense changes nothing.
    void changedLimitJudgesAnew()
    {
        SampleModel model([] { return QString("Time"); }, "ms", 3, {Limit::AtMost, 1}, nullptr);
        QCOMPARE(model.status(), int(Status::None));
        model.append(0.5);
        model.append(0.25);
        QCOMPARE(model.status(), int(Status::Pass));

        const QSignalSpy rejudged(&model, &SampleModel::dataChanged);
        const QSignalSpy statusChanged(&model, &SampleModel::statusChanged);
        model.setLimit(0.3);
        QCOMPARE(rejudged.count(), 1);
        QCOMPARE(statusChanged.count(), 1);
        QCOMPARE(model.data(model.index(0), SampleModel::StatusRole).toInt(), int(Status::Fail));
        QCOMPARE(model.data(model.index(1), SampleModel::StatusRole).toInt(), int(Status::Marginal));
        QCOMPARE(model.status(), int(Status::Fail));

        model.setLimit(std::nan(""));
        model.setLimit(-1);
        QCOMPARE(model.limit(), 0.3);
        QCOMPARE(rejudged.count(), 1);

        model.clear();
        QCOMPARE(model.count(), 0);
        QCOMPARE(model.maximum(), 0.0);
        QCOMPARE(model.status(), int(Status::None));
    }
};

QTEST_GUILESS_MAIN(StatisticsTest)
#include "tst_statistics.moc"
