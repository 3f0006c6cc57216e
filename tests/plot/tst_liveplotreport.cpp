#include "liveplotfixture.h"
#include "writers/csv/csvreport.h"
#include "writers/plots/plotpainter_p.h"
#include "writers/plots/plotsource_p.h"
#include "writers/text/textreport.h"

class LivePlotReportTest : public LivePlotFixture
{
    Q_OBJECT

private Q_SLOTS:
    void report();
    void strangeReports_data();
    void strangeReports();
};

void LivePlotReportTest::report()
{
    show();
    QVector<QPointF> points;
    for (int i = 0; i < 20000; ++i)
        points += QPointF(i * 0.01, i == 5000 ? qQNaN() : i == 12345 ? 99 : i % 10);
    points[7].setY(1.23456789012345);
    m_curve->setPoints(points);
    PlotLimitItem limit, unseen;
    limit.setUpper(8.5);
    limit.setLabel("Most");
    unseen.setLower(-500);
    QQmlListReference limits(m_curve, "limits", m_view->engine());
    limits.append(&limit);
    limits.append(&unseen);
    PlotMarkerItem mark, away;
    mark.setX(120);
    mark.setLabel("M");
    away.setX(10);
    m_plot->addMarker(&mark);
    m_plot->addMarker(&away);
    m_plot->setXLabel("Distance");
    m_plot->setXUnit("km");
    m_plot->setWindow(40, 260, 0, 47);

    ReportTemplate document;
    document.beginReport("r");
    m_plot->addToReport(&document, "trace", "Trace");
    document.endReport();
    const PlotData data = plotOfText(document.object().value("table_0").toObject().value("plot_data").toString());
    QCOMPARE(data.curves.size(), 1);
    const PlotCurve& curve = data.curves.at(0);
    QVERIFY(curve.extent.x.low >= 40 && curve.extent.x.extent() > 159);
    // The peak leaves the window, and its line is cut there.
    QVERIFY(qAbs(curve.extent.y.high - 47) < 1e-6);
    QCOMPARE(curve.size, 20000);
    QCOMPARE(std::count_if(curve.points.cbegin(), curve.points.cend(), [](const QPointF& point) { return std::isnan(point.y()); }), 2);
    QCOMPARE(curve.excesses.size(), 1);
    for (const QPointF& point : curve.excesses.at(0).points)
        QVERIFY(std::isnan(point.y()) || point.y() > 8.4999);
    QCOMPARE(data.limits.size(), 1);
    QCOMPARE(data.limits.at(0).label, QString("Most"));
    QCOMPARE(data.marks.size(), 1);
    const PlotLayout layout(std::make_shared<PlotData>(data), "Trace", QSize(600, 400));
    QCOMPARE(layout.x().low(), 40.0);
    QCOMPARE(layout.x().high(), 260.0);
    QCOMPARE(layout.y(LeftSide).high(), 47.0);
    QStringList legend;
    for (const PlotLegend::Place& place : layout.legend().places())
        legend += place.lines.join(' ');
    QCOMPARE(legend, QStringList({"Level", "Most (at most 8.5 dB)", "beyond a limit", "M (120.0 km)"}));

    const QString text = reportText(document);
    QVERIFY2(text.contains(QRegularExpression("Level \\(dB\\) +20,000 +40 to 199.99 +0 +47")), qPrintable(text));
    // Files of data have all points, also those that are not shown, with all their digits.
    const QByteArray csv = reportCsv(document);
    QVERIFY(csv.contains("Distance (km),Level (dB),Upper limit (dB)"));
    for (const char* line : {"0,0,8.5", "0.07,1.23456789012345,8.5", "123.45,99,8.5", "50,,8.5", "50.01,1,8.5", "199.99,9,8.5"})
        QVERIFY2(csv.contains(QByteArray("\r\n") + line + "\r\n"), line);
    QVERIFY(csv.count('\n') > 20000);
    QVERIFY(m_plot->savePicture("/cust/trace.png", 300, 200, "Trace"));
    const QImage image(m_root.filePath("cust/trace.png"));
    QVERIFY(image.width() == 600 && image.height() >= 400);
    // The curve's own, and not only the sample of the legend.
    limit.setStatus(Status::Marginal);
    QCOMPARE(pixelsLike(image, image.rect(), QColor(0x9a5b00)), 0);
    QVERIFY(m_plot->savePicture("/cust/trace.png", 300, 200));
    const int amber = pixelsLike(QImage(m_root.filePath("cust/trace.png")), image.rect().adjusted(0, 0, 0, -200), QColor(0x9a5b00));
    QVERIFY2(amber > 100, qPrintable(QString::number(amber)));
    QVERIFY(!m_plot->savePicture("/cust/no/folder.png"));
}

void LivePlotReportTest::strangeReports_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("curves");
    QTest::newRow("no JSON") << "{" << 0;
    QTest::newRow("other types") << R"({"x":5,"left":[],"curves":{"a":1},"limits":7,"marks":"m"})" << 0;
    QTest::newRow("no points") << R"({"curves":[{},5,{"points":5},{"points":[1]}]})" << 4;
    QTest::newRow("window upside down") << R"({"x":{"low":9,"high":-9},"left":{"low":1e308,"high":-1e308},"curves":[{"points":[0,0,1,1]}]})" << 1;
    QTest::newRow("logarithmic windows of negatives")
            << R"({"x":{"kind":"log","low":-9,"high":-1},"left":{"kind":"log","low":-9,"high":0},"curves":[{"points":[-1,1,2,2]}],"marks":[{"x":-5}]})" << 1;
    QTest::newRow("points beyond the window")
            << R"({"x":{"kind":"date","low":1,"high":2},"curves":[{"side":"right","points":[1e300,-1e300,null,null,"a",[]],"failed":[null,5,1e308]}],"limits":[{"upper":1e308,"side":"right"}]})" << 1;
    QTest::newRow("too many") << "{\"curves\":[" + QString("{\"points\":[1,2],\"label\":\"\\n\"},").repeated(600) + "{}]}" << 500;
}

void LivePlotReportTest::strangeReports()
{
    QFETCH(QString, text);
    const auto data = std::make_shared<PlotData>(readPlotData(text));
    QTEST(data->curves.size(), "curves");
    QCOMPARE(readPlotArrays(text).size(), data->curves.size());
    const PlotLayout layout(data, {}, QSize(300, 200));
    QVERIFY(layout.x().low() < layout.x().high() && layout.y(LeftSide).low() < layout.y(LeftSide).high());
    QVERIFY(!plotPicture(layout, Qt::white, 1).isEmpty());
}

QTEST_MAIN(LivePlotReportTest)
#include "tst_liveplotreport.moc"
