#include "liveplotfixture.h"
#include "service/manifest.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

#include <QStandardItemModel>

class LivePlotSourcesTest : public LivePlotFixture
{
    Q_OBJECT

private Q_SLOTS:
    void service();
    void model();
    void capacity();
};

void LivePlotSourcesTest::service()
{
    show();
    const QString x = ":result:kinds:trace_x:doubleARRAY:", y = ":result:kinds:trace_y:doubleARRAY:";
    kiv::embedded::EmbeddedBackend backend;
    QVERIFY(backend.loadFile(UIUTILS_TEST_DATA_DIR "/services/kinds.service.json"));
    Manifest manifest(KIVClientInterface::getSessionBusClient("kinds"), "kinds", "kinds");
    m_curve->setXItem(manifest.getItem(x));
    m_curve->setYItem(manifest.getItem(y));
    QVERIFY(m_curve->xItem() && m_curve->yItem());
    QCoreApplication::processEvents();
    QSignalSpy spy(m_curve, &PlotCurveItem::pointsChanged);
    QVERIFY(backend.service("kinds")->setValue(x, QVariantList {1.0, 2.0, 3.0}));
    QVERIFY(backend.service("kinds")->setValue(y, QVariantList {5.0, 7.0}));
    QTRY_COMPARE(m_curve->lastY(), 7.0);
    QCOMPARE(m_curve->count(), 2);
    QCOMPARE(spy.count(), 1);
}

void LivePlotSourcesTest::model()
{
    show();
    auto model = std::make_unique<QStandardItemModel>();
    model->setItemRoleNames({{Qt::UserRole, "time"}, {Qt::UserRole + 1, "level"}});
    const auto add = [&](const QVariant& level) {
        auto* row = new QStandardItem;
        row->setData(model->rowCount() * 10, Qt::UserRole);
        row->setData(level, Qt::UserRole + 1);
        model->appendRow(row);
    };
    add(1);
    m_curve->setModel(model.get());
    m_curve->setYRole("level");
    QTRY_COMPARE(m_curve->count(), 1);
    QCOMPARE(m_curve->lastX(), 1.0);
    m_curve->setXRole("time");
    QTRY_COMPARE(m_curve->lastX(), 0.0);
    // Further rows are there at once.
    add(4);
    add("no number");
    QCOMPARE(m_curve->count(), 3);
    QCOMPARE(m_curve->valueAt(10), 4.0);
    QVERIFY(std::isnan(m_curve->lastY()));
    model->item(2)->setData(9, Qt::UserRole + 1);
    QTRY_COMPARE(m_curve->lastY(), 9.0);
    model->removeRow(0);
    QTRY_COMPARE(m_curve->count(), 2);
    // A row that comes while everything is to be read anyway does not come twice.
    model->item(0)->setData(3, Qt::UserRole + 1);
    add(5);
    QTRY_COMPARE(m_curve->count(), 3);
    model.reset();
    QCOMPARE(m_curve->count(), 0);
    QVERIFY(!m_curve->model());
}

void LivePlotSourcesTest::capacity()
{
    show();
    m_curve->setCapacity(1000);
    PlotLimitItem limit;
    limit.setUpper(1000);
    QQmlListReference(m_curve, "limits", m_view->engine()).append(&limit);
    m_curve->append(-1, 5000);
    QCOMPARE(m_curve->verdict(), int(Status::Fail));
    for (int i = 0; i < 5000; ++i)
        m_curve->append(i, i % 7);
    QVERIFY(m_curve->count() <= 1000 && m_curve->count() >= 800);
    QCOMPARE(m_curve->lastX(), 4999.0);
    QCOMPARE(m_curve->verdict(), int(Status::Pass));
    QCOMPARE(m_plot->xMinimum(), 5000.0 - m_curve->count());
    m_curve->setCapacity(0);
    QCOMPARE(m_curve->count(), 1);
}

QTEST_MAIN(LivePlotSourcesTest)
#include "tst_liveplotsources.moc"
