#include "liveplotfixture.h"

#include "languages/languages.h"

#include <QTranslator>

#include <algorithm>

class LivePlotTest : public LivePlotFixture
{
    Q_OBJECT

private Q_SLOTS:
    void showsCurves();
    void masksAndGaps();
    void changesWhileShown();
    void verdicts();
    void axes();
    void follows();
    void readout();
    void timesInWords();
    void languages();
};

void LivePlotTest::showsCurves()
{
    show();
    m_plot->setReadoutVisible(false);
    QVERIFY(pixelsLike(picture(), m_plot->plotArea(), Qt::blue) == 0);
    m_curve->setPoints(QVector<QPointF> {{0, 1}, {10, 1}});
    m_plot->setWindow(0, 10, 0, 2);
    const QRectF area = m_plot->plotArea();
    const QImage below = picture();
    const int line = pixelsLike(below, area, Qt::blue);
    QVERIFY2(line > area.width() * 0.9 && line < area.width() * 3, qPrintable(QString::number(line)));
    QCOMPARE(pixelsLike(below, QRectF(area.left(), area.center().y() - 6, area.width(), 12), Qt::blue), line);

    PlotLimitItem limit;
    limit.setUpper(0.5);
    QQmlListReference(m_curve, "limits", m_view->engine()).append(&limit);
    const QImage beyond = picture();
    QCOMPARE(pixelsLike(beyond, area, Qt::blue), 0);
    const QRectF around(area.left(), area.center().y() - 6, area.width(), 12);
    QVERIFY(pixelsLike(beyond, around, m_plot->colors()->fail) > 1.5 * line);
    m_plot->colors()->setProperty("fail", QColor("#00ff00"));
    QVERIFY(pixelsLike(picture(), around, "#00ff00") > 1.5 * line);
    m_curve->setVisible(false);
    QCOMPARE(pixelsLike(picture(), around, "#00ff00"), 0);
    QVERIFY(m_plot->verdict() == Status::Fail);
}

void LivePlotTest::masksAndGaps()
{
    show();
    m_curve->setPoints(QVector<QPointF> {{0, 1}, {4, 1}, {5, qQNaN()}, {6, 1}, {10, 1}});
    m_plot->setWindow(0, 10, 0, 2);
    PlotMaskItem mask;
    mask.setPoints({QVariantList {0, 3}, QVariantList {2, 3}, QPointF(2, 0.5), QVariantList {"x"}, QPointF(10, 0.5)});
    QQmlListReference(m_curve, "limits", m_view->engine()).append(&mask);
    const QImage image = picture();
    const QRectF area = m_plot->plotArea();
    const auto around = [&](double from, double to) {
        return QRectF(area.left() + area.width() * from / 10, area.center().y() - 5, area.width() * (to - from) / 10, 10);
    };
    // A line leads to the failing point from the one before.
    QCOMPARE(pixelsLike(image, around(4.3, 5.7), Qt::blue) + pixelsLike(image, around(4.3, 5.7), m_plot->colors()->fail), 0);
    QVERIFY(pixelsLike(image, around(6.2, 9.8), m_plot->colors()->fail) > 100);
    QVERIFY(pixelsLike(image, around(0.2, 1.8), Qt::blue) > 50);
}

void LivePlotTest::changesWhileShown()
{
    show();
    fill(50000);
    QVERIFY(pixelsLike(picture(), m_plot->plotArea(), Qt::blue) > 500);
    auto second = std::make_unique<PlotCurveItem>();
    second->setColor(QColor("#00c000"));
    second->setRightAxis(true);
    second->setPoints(QVector<QPointF> {{0, 100}, {50000, 200}});
    m_plot->addCurve(second.get());
    m_plot->addCurve(second.get());
    auto marker = std::make_unique<PlotMarkerItem>();
    marker->setX(100);
    m_plot->addMarker(marker.get());
    m_plot->setCursorX(200);
    QCOMPARE(m_plot->curves().size(), 2);
    QVERIFY(pixelsLike(picture(), m_plot->plotArea(), "#00c000") > 200);
    QCOMPARE(m_plot->readouts().size(), 2);
    QCOMPARE(m_plot->rightMaximum(), 200.0);
    second.reset();
    marker.reset();
    QCOMPARE(m_plot->curves().size(), 1);
    QCOMPARE(m_plot->markers().size(), 0);
    QCOMPARE(pixelsLike(picture(), m_plot->plotArea(), "#00c000"), 0);
    m_curve->clear();
    QCOMPARE(pixelsLike(picture(), m_plot->plotArea(), Qt::blue), 0);
    m_plot->setVisible(false);
    fill(10);
    m_plot->setVisible(true);
    QVERIFY(pixelsLike(picture(), m_plot->plotArea(), Qt::blue) > 100);
    delete m_curve;
    QCOMPARE(pixelsLike(picture(), m_plot->plotArea(), Qt::blue), 0);
    QCOMPARE(m_plot->verdict(), int(Status::None));
    QCOMPARE(QQmlListReference(m_plot, "contents", m_view->engine()).count(), 0);
}

void LivePlotTest::verdicts()
{
    show();
    QSignalSpy spy(m_plot, &LivePlot::verdictChanged);
    const auto verdict = [&] { return m_plot->verdict(); };
    PlotLimitItem limit, warning;
    QQmlListReference limits(m_curve, "limits", m_view->engine());
    limit.setUpper(10);
    limit.setLower(-10);
    limits.append(&limit);
    QCOMPARE(verdict(), int(Status::None));
    m_curve->append(0, 9);
    m_curve->append(1, 10);
    QCOMPARE(verdict(), int(Status::Pass));
    QCOMPARE(spy.count(), 1);
    warning.setUpper(8);
    warning.setStatus(Status::Marginal);
    limits.append(&warning);
    QCOMPARE(verdict(), int(Status::Marginal));
    m_curve->append(2, qInf());
    m_curve->append(3, -10.5);
    m_curve->append(4, 0);
    QCOMPARE(verdict(), int(Status::Fail));
    QCOMPARE(spy.count(), 3);
    QCOMPARE(m_curve->verdictAt(3), int(Status::Fail));
    QCOMPARE(m_curve->verdictAt(4), int(Status::Pass));
    limit.setLower(-11);
    QCOMPARE(verdict(), int(Status::Marginal));
    limits.clear();
    QCOMPARE(verdict(), int(Status::None));
    {
        PlotLimitItem gone;
        gone.setUpper(1);
        limits.append(&gone);
        QCOMPARE(verdict(), int(Status::Fail));
    }
    QCOMPARE(verdict(), int(Status::None));
    QCOMPARE(m_plot->accessibleText(), QString("Level: -10.50 dB to 10.00 dB, from 0.000 to 4.000."));
}

void LivePlotTest::axes()
{
    show();
    QSignalSpy spy(m_plot, &LivePlot::viewChanged);
    m_curve->setPoints(QVector<QPointF> {{2, -3}, {7, 4.2}, {qQNaN(), 99}, {8, qInf()}});
    QCOMPARE(m_plot->xMinimum(), 2.0);
    QCOMPARE(m_plot->xMaximum(), 7.0);
    QCOMPARE(m_plot->yMinimum(), -3.0);
    QCOMPARE(m_plot->yMaximum(), 5.0);
    // Several at the end are all in sight.
    m_curve->setPoints(QVector<QPointF> {{2, -3}, {7, 4.2}, {7, 19}, {7, 1}});
    QCOMPARE(m_plot->yMaximum(), 20.0);
    m_curve->setPoints(QVector<QPointF> {{2, -3}, {7, 4.2}, {qQNaN(), 99}, {8, qInf()}});
    PlotLimitItem limit;
    limit.setUpper(20);
    QQmlListReference(m_curve, "limits", m_view->engine()).append(&limit);
    QVERIFY(m_plot->yMaximum() > 20);
    limit.setLower(-3);
    QVERIFY(m_plot->yMinimum() < -3);
    m_curve->setPoints(QVector<QPointF> {{2, 900}, {7, 1000}});
    limit.setLower(5);
    QCOMPARE(m_plot->yMinimum(), 0.0);
    limit.setLower(qQNaN());
    m_curve->setPoints(QVector<QPointF> {{2, -3}, {7, 4.2}, {qQNaN(), 99}, {8, qInf()}});
    picture();
    QVERIFY(spy.count() > 0 && m_plot->isAutomatic());
    m_plot->zoom(2, at(0.5), LivePlot::X);
    QVERIFY(!m_plot->isAutomatic());
    QCOMPARE(m_plot->xMinimum(), 3.25);
    // The axis of values still shows what is in sight, down to the ends of lines.
    QVERIFY(m_plot->yMaximum() > 20);
    m_plot->autoscale();
    m_plot->setYScale(LivePlot::Logarithmic);
    QVERIFY(m_plot->yMinimum() > 1 && m_plot->yMaximum() < 100);
    m_plot->setWindow(1, 2, -5, 50);
    QVERIFY(m_plot->yMinimum() > 0);
    m_plot->setWindow(5, 5, qQNaN(), qQNaN());
    QVERIFY(m_plot->xMinimum() < 5 && m_plot->xMaximum() > 5 && m_plot->yMinimum() < m_plot->yMaximum());
    picture();
    // What cannot be negative, with a limit near zero: the space below the limit ends there.
    m_plot->setYScale(LivePlot::Linear);
    m_plot->autoscale();
    limit.setUpper(qQNaN());
    limit.setLower(1000);
    m_curve->setPoints(QVector<QPointF> {{1, 8000}, {2, 63000}});
    QCOMPARE(m_plot->yMinimum(), 0.0);
    m_curve->setPoints(QVector<QPointF> {{1, -8000}, {2, -63000}});
    limit.setLower(-1000);
    QCOMPARE(m_plot->yMaximum(), 0.0);
}

void LivePlotTest::follows()
{
    show();
    m_plot->setFollow(10);
    m_curve->append(0, 50);
    QCOMPARE(m_plot->xMinimum(), 0.0);
    QCOMPARE(m_plot->xMaximum(), 10.0);
    for (int i = 1; i <= 25; ++i)
        m_curve->append(i, 1 + i % 2);
    QCOMPARE(m_plot->xMinimum(), 15.0);
    // The 50 is out of sight.
    QCOMPARE(m_plot->yMaximum(), 2.0);
    QVERIFY(m_plot->isFollowing());
    m_plot->pan(30, 0);
    const double left = m_plot->xMinimum();
    QVERIFY(left < 15 && !m_plot->isFollowing());
    m_curve->append(26, 1);
    QCOMPARE(m_plot->xMinimum(), left);
    m_plot->autoscale();
    QCOMPARE(m_plot->xMinimum(), 16.0);
}

void LivePlotTest::readout()
{
    show();
    m_plot->setXLabel("Distance");
    m_plot->setXUnit("km");
    m_curve->setPoints(QVector<QPointF> {{0, 10}, {10, 20}, {20, qQNaN()}, {30, 40}, {40, 50}});
    const struct { double x; double y; } places[] = {{0, 10}, {5, 15}, {10, 20}, {12, qQNaN()}, {30, 40}, {37.5, 47.5}, {40, 50}, {-0.1, qQNaN()}, {41, qQNaN()}};
    for (const auto& place : places) {
        const double y = m_curve->valueAt(place.x);
        QVERIFY2(y == place.y || (std::isnan(y) && std::isnan(place.y)), qPrintable(QString::number(place.x)));
    }
    QSignalSpy moved(m_plot, &LivePlot::cursorXChanged), read(m_plot, &LivePlot::readoutsChanged);
    m_plot->setCursorX(37.5);
    m_plot->setCursorX(37.5);
    QCOMPARE(moved.count(), 1);
    QCOMPARE(m_plot->cursorText(), QString("Distance 37.50 km, Level 47.50 dB"));
    QCOMPARE(m_plot->readouts().at(0).toMap().value("y").toDouble(), 47.5);
    const int before = read.count();
    m_curve->append(50, 70);
    QTRY_VERIFY(read.count() > before);
    m_plot->setCursorX(qInf());
    QVERIFY(!m_plot->isCursorVisible() && m_plot->cursorText().isEmpty() && m_plot->readouts().isEmpty());
    // What is seen is read: half way between 1 and 100.
    m_plot->setXScale(LivePlot::Logarithmic);
    m_plot->setYScale(LivePlot::Logarithmic);
    m_curve->setPoints(QVector<QPointF> {{1, 1}, {100, 10000}});
    QVERIFY(qAbs(m_curve->valueAt(10) - 100) < 1e-6);
    // One that runs back and forth has the value where it comes first.
    m_plot->setXScale(LivePlot::Linear);
    m_plot->setYScale(LivePlot::Linear);
    m_curve->setPoints(QVector<QPointF> {{10, 0}, {0, 10}, {10, 30}});
    QCOMPARE(m_curve->valueAt(5), 5.0);
    m_curve->setPoints(QVector<QPointF> {{10, 0}, {0, qQNaN()}, {5, 7}, {10, 9}});
    QCOMPARE(m_curve->valueAt(7.5), 8.0);
    QVector<QPointF> loops;
    for (int i = 0; i < 5000; ++i)
        loops += QPointF(std::sin(i * 0.01) * i, i);
    m_curve->setPoints(loops);
    for (const double x : {-4500.0, -3000.5, 0.0, 2.0, (loops.at(63).x() + loops.at(64).x()) / 2, 1234.5, 4800.0, 5001.0}) {
        const auto leadsOver = [x](const QPointF& from, const QPointF& to) { return (from.x() <= x) != (to.x() <= x); };
        const auto line = std::adjacent_find(loops.cbegin(), loops.cend(), leadsOver);
        const double y = m_curve->valueAt(x);
        QVERIFY2(line == loops.cend() ? std::isnan(y) : y >= line->y() && y <= line->y() + 1, qPrintable(QString::number(x)));
    }
}

void LivePlotTest::timesInWords()
{
    show();
    m_plot->setXScale(LivePlot::Duration);
    m_curve->setPoints(QVector<QPointF> {{0, 1}, {7200, 3}});
    QCOMPARE(m_plot->xText(3725), QString("1 h 2 min 5 s"));
    PlotMarkerItem first, second;
    first.setX(60);
    second.setX(3660);
    m_plot->addMarker(&first);
    m_plot->addMarker(&second);
    QCOMPARE(m_plot->deltaText(), QString("1 h, Level 1.000 dB"));
    QSignalSpy read(m_plot, &LivePlot::readoutsChanged);
    first.setVisible(false);
    QCOMPARE(m_plot->deltaText(), QString());
    m_plot->removeMarker(&second);
    QCOMPARE(read.count(), 2);
    QCOMPARE(m_plot->deltaBetween(&second, &first), QString("\u2212" "1 h, Level -1.000 dB").replace(QChar(0x2212), QLocale().negativeSign()));
    m_plot->setXScale(LivePlot::Date);
    m_curve->setPoints(QVector<QPointF> {{1.6e9, 1}, {1.6e9 + 3600, 3}});
    QCOMPARE(m_plot->xText(1.6e9 + 60), QString("13 Sep 2020, 12:27:40"));
    // The moment of a single point, and not years.
    m_curve->setPoints(QVector<QPointF> {{1.6e9, 1}});
    QVERIFY(m_plot->xMaximum() - m_plot->xMinimum() < 60);
}

/// Texts that are drawn and texts that are read, without anything else that changes.
void LivePlotTest::languages()
{
    struct Words : QTranslator
    {
        bool isEmpty() const override { return false; }
        QString translate(const char*, const char* text, const char*, int) const override { return qstrcmp(text, "No data") == 0 ? "Rien du tout" : QString(); }
    };
    show();
    const QImage before = picture();
    QCOMPARE(picture(), before);
    QSignalSpy said(m_plot, &LivePlot::accessibleTextChanged), shown(m_plot, &LivePlot::styleChanged);
    Words words;
    QCoreApplication::installTranslator(&words);
    Q_EMIT Languages::instance()->currentChanged();
    QVERIFY(picture() != before);
    QVERIFY(said.count() > 0 && shown.count() > 0);
    QCOMPARE(m_plot->emptyText(), QString("Rien du tout"));
}

QTEST_MAIN(LivePlotTest)
#include "tst_liveplot.moc"
