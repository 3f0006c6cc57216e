#include "liveplot.h"
#include "plottypes.h"
#include "qmlwarnings.h"
#include "service/manifest.h"
#include "writers/csv/csvreport.h"
#include "writers/plots/plotpainter_p.h"
#include "writers/plots/plotsource_p.h"
#include "writers/text/textreport.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickItemGrabResult>
#include <QQuickView>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyleHints>
#include <QtMath>
#include <QtTest>

#include <memory>

using namespace uiutils;

namespace {

const QByteArray page = R"(
import QtQuick 2.15
import UiUtils.Plot 1.0
LivePlot {
    width: 600; height: 400
    PlotCurve { objectName: "curve"; name: "Level"; unit: "dB"; color: "#0000ff" }
})";

/// How many pixels of the frame have about that colour.
int pixelsLike(const QImage& image, const QRectF& area, const QColor& color)
{
    // Not a picture of no plot at all.
    int count = image.width() < area.right() || image.height() < area.bottom() ? -1 : 0;
    for (int y = int(area.top()) + 2; count >= 0 && y < int(area.bottom()) - 2; ++y) {
        for (int x = int(area.left()) + 2; x < int(area.right()) - 2; ++x) {
            const QColor pixel = image.pixelColor(x, y);
            const int distance = qAbs(pixel.red() - color.red()) + qAbs(pixel.green() - color.green()) + qAbs(pixel.blue() - color.blue());
            count += distance < 60;
        }
    }
    return count;
}

} // namespace

class LivePlotTest : public QObject
{
    Q_OBJECT

private:
    /// Shows a page; the plot is its root.
    void show(const QByteArray& qml = page)
    {
        m_view = std::make_unique<QQuickView>();
        m_warnings.watch(m_view->engine());
        m_component = std::make_unique<QQmlComponent>(m_view->engine());
        m_component->setData(qml, QUrl());
        m_plot = qobject_cast<LivePlot*>(m_component->create());
        QVERIFY2(m_plot, qPrintable(m_component->errorString()));
        m_curve = m_plot->findChild<PlotCurveItem*>("curve");
        m_view->resize(600, 400);
        m_view->setResizeMode(QQuickView::SizeRootObjectToView);
        m_view->setContent(QUrl(), m_component.get(), m_plot);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    }
    /// The next frame of the plot; the platform without a screen has no picture of a window.
    QImage picture()
    {
        const QSharedPointer<QQuickItemGrabResult> grabbed = m_plot->grabToImage();
        if (!QSignalSpy(grabbed.data(), &QQuickItemGrabResult::ready).wait())
            return {};
        return grabbed->image().convertToFormat(QImage::Format_RGB32);
    }
    void fill(int count)
    {
        QVector<QPointF> points;
        for (int i = 0; i < count; ++i)
            points += QPointF(i, std::sin(i * 0.1));
        m_curve->setPoints(points);
    }
    QPoint at(double part, double height = 0.5) const
    {
        const QRectF area = m_plot->plotArea();
        return QPointF(area.left() + part * area.width(), area.bottom() - height * area.height()).toPoint();
    }
    QTest::QTouchEventSequence touch() { return QTest::touchEvent(m_view.get(), m_screen); }
    void drag(const QPoint& from, const QPoint& to)
    {
        touch().press(0, from);
        for (int step = 1; step <= 10; ++step)
            touch().move(0, from + (to - from) * step / 10);
        touch().release(0, to);
    }
    void tap(const QPoint& place)
    {
        touch().press(0, place);
        touch().release(0, place);
    }

    QTemporaryDir m_root;
    QmlWarnings m_warnings;
    std::unique_ptr<QQuickView> m_view;
    std::unique_ptr<QQmlComponent> m_component;
    LivePlot* m_plot = nullptr;
    PlotCurveItem* m_curve = nullptr;
    QTouchDevice* m_screen = QTest::createTouchDevice();

private Q_SLOTS:
    void initTestCase()
    {
        // Two taps are a double tap on a busy machine too.
        QGuiApplication::styleHints()->setMouseDoubleClickInterval(600000);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QVERIFY(QDir(m_root.path()).mkdir("cust"));
        qputenv("UIUTILS_ROOT", m_root.path().toLocal8Bit());
        registerPlotTypes("UiUtils.Plot");
    }
    void cleanup()
    {
        m_view.reset();
        m_component.reset();
        QCOMPARE(m_warnings.take(), QStringList());
    }

    void showsCurves();
    void masksAndGaps();
    void changesWhileShown();
    void verdicts();
    void axes();
    void follows();
    void readout();
    void timesInWords();
    void fingers();
    void pinch();
    void mouseAndKeys();
    void service();
    void model();
    void capacity();
    void report();
    void strangeReports_data();
    void strangeReports();
};

/// The curve at its place, what exceeds the limit in the colour of failure and wider, by any renderer.
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

/// Curves, markers and points that come and go between frames.
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
}

/// Announced once for each change, without a frame in between.
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

/// Automatic ones show all points and the limits; of what is positive along a logarithmic one.
void LivePlotTest::axes()
{
    show();
    QSignalSpy spy(m_plot, &LivePlot::viewChanged);
    m_curve->setPoints(QVector<QPointF> {{2, -3}, {7, 4.2}, {qQNaN(), 99}, {8, qInf()}});
    QCOMPARE(m_plot->xMinimum(), 2.0);
    QCOMPARE(m_plot->xMaximum(), 7.0);
    QCOMPARE(m_plot->yMinimum(), -3.0);
    QCOMPARE(m_plot->yMaximum(), 5.0);
    PlotLimitItem limit;
    limit.setUpper(20);
    QQmlListReference(m_curve, "limits", m_view->engine()).append(&limit);
    QVERIFY(m_plot->yMaximum() > 20);
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
    first.setVisible(false);
    QCOMPARE(m_plot->deltaText(), QString());
    QCOMPARE(m_plot->deltaBetween(&second, &first), QString("\u2212" "1 h, Level -1.000 dB").replace(QChar(0x2212), QLocale().negativeSign()));
    m_plot->setXScale(LivePlot::Date);
    m_curve->setPoints(QVector<QPointF> {{1.6e9, 1}, {1.6e9 + 3600, 3}});
    QCOMPARE(m_plot->xText(1.6e9 + 60), QString("13 Sep 2020, 12:27:40"));
}

void LivePlotTest::fingers()
{
    show();
    fill(1000);
    picture();
    QSignalSpy tapped(m_plot, &LivePlot::tapped);
    tap(at(0.25));
    QVERIFY(qAbs(m_plot->cursorX() - 250) < 3);
    QCOMPARE(tapped.count(), 1);
    // From the cursor: the cursor moves, and nothing else.
    drag(at(0.26), at(0.75));
    QVERIFY(qAbs(m_plot->cursorX() - 749) < 5);
    QVERIFY(m_plot->isAutomatic());
    // Elsewhere, and clearly along x: what is shown moves along x.
    const double y = m_plot->yMaximum();
    drag(at(0.2), at(0.45, 0.52));
    QVERIFY2(qAbs(m_plot->xMinimum() + 250) < 5, qPrintable(QString::number(m_plot->xMinimum())));
    QCOMPARE(m_plot->yMaximum(), y);
    QVERIFY(qAbs(m_plot->cursorX() - 749) < 5);
    drag(at(0.2), at(0.4, 0.7));
    QVERIFY(m_plot->yMaximum() < y - 0.2);
    tap(at(0.5));
    tap(at(0.5));
    QVERIFY(m_plot->isAutomatic());
    QCOMPARE(m_plot->yMaximum(), y);
    m_plot->setInteractive(false);
    m_plot->clearCursor();
    tap(at(0.5));
    QVERIFY(!m_plot->isCursorVisible());
}

/// What is below a finger stays below it.
void LivePlotTest::pinch()
{
    show();
    fill(1000);
    picture();
    const double left = m_plot->xAt(at(0.4).x()), right = m_plot->xAt(at(0.6).x());
    touch().press(0, at(0.4));
    touch().move(0, at(0.4)).press(1, at(0.6));
    for (int step = 1; step <= 20; ++step)
        touch().move(0, at(0.4 - 0.01 * step)).move(1, at(0.6 + 0.015 * step));
    // The window delivers moves with its frames.
    QTRY_VERIFY(qAbs(m_plot->xAt(at(0.2).x()) - left) < 2);
    QTRY_VERIFY(qAbs(m_plot->xAt(at(0.9).x()) - right) < 2);
    QCOMPARE(m_plot->yMaximum(), 1.0);
    // The finger that stays down neither pans nor taps.
    const double seen = m_plot->xMinimum();
    touch().move(0, at(0.2)).release(1, at(0.9));
    for (int step = 1; step <= 5; ++step)
        touch().move(0, at(0.2 + 0.05 * step));
    touch().release(0, at(0.45));
    QCOMPARE(m_plot->xMinimum(), seen);
    QVERIFY(!m_plot->isCursorVisible());
    // One finger above the other: values alone.
    touch().press(0, at(0.5, 0.3)).press(1, at(0.5, 0.5));
    for (int step = 1; step <= 10; ++step)
        touch().move(0, at(0.5, 0.3)).move(1, at(0.5, 0.5 + 0.02 * step));
    touch().release(0, at(0.5, 0.3)).release(1, at(0.5, 0.7));
    QCOMPARE(m_plot->xMinimum(), seen);
    QVERIFY(qAbs(m_plot->yMaximum() - m_plot->yMinimum() - 1) < 0.05);
}

void LivePlotTest::mouseAndKeys()
{
    show();
    fill(1000);
    picture();
    const auto turn = [&](int degrees, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event(at(0.25), m_view->mapToGlobal(at(0.25)), {}, {0, degrees}, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_view.get(), &event);
    };
    const double below = m_plot->xAt(at(0.25).x());
    turn(120, Qt::ControlModifier);
    QVERIFY(qAbs(m_plot->xMaximum() - m_plot->xMinimum() - 999 / 1.25) < 1);
    QVERIFY(qAbs(m_plot->xAt(at(0.25).x()) - below) < 0.1);
    const double width = m_plot->xMaximum() - m_plot->xMinimum(), height = m_plot->yMaximum() - m_plot->yMinimum();
    turn(-120, Qt::ShiftModifier);
    QCOMPARE(m_plot->xMaximum() - m_plot->xMinimum(), width);
    QVERIFY(m_plot->yMaximum() - m_plot->yMinimum() > height * 1.2);
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, at(0.5));
    QVERIFY(m_plot->isCursorVisible() && m_plot->hasActiveFocus());
    const double place = m_plot->cursorX();
    QTest::keyClick(m_view.get(), Qt::Key_Right);
    const double step = m_plot->cursorX() - place;
    QVERIFY(step > 0);
    QTest::keyClick(m_view.get(), Qt::Key_Left, Qt::ShiftModifier);
    QVERIFY(qAbs(m_plot->cursorX() - place + 9 * step) < 0.01);
    QTest::keyClick(m_view.get(), Qt::Key_Home);
    QVERIFY(m_plot->isAutomatic());
    QTest::keyClick(m_view.get(), Qt::Key_Plus);
    QVERIFY(qAbs(m_plot->xMaximum() - m_plot->xMinimum() - 999 / 1.25) < 1);
    QTest::keyClick(m_view.get(), Qt::Key_Escape);
    QVERIFY(!m_plot->isCursorVisible());
}

/// Two arrays that come one after the other are read once, and together.
void LivePlotTest::service()
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

void LivePlotTest::model()
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

void LivePlotTest::capacity()
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

/// What is in sight goes into the document, and nothing else; every format reads it there, without the plot.
void LivePlotTest::report()
{
    show();
    QVector<QPointF> points;
    for (int i = 0; i < 20000; ++i)
        points += QPointF(i * 0.01, i == 5000 ? qQNaN() : i == 12345 ? 99 : i % 10);
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
    QVERIFY(reportCsv(document).contains("Distance (km),Level (dB),Upper limit (dB)"));
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

void LivePlotTest::strangeReports_data()
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

void LivePlotTest::strangeReports()
{
    QFETCH(QString, text);
    const auto data = std::make_shared<PlotData>(readPlotData(text));
    QTEST(data->curves.size(), "curves");
    QCOMPARE(readPlotArrays(text).size(), data->curves.size());
    const PlotLayout layout(data, {}, QSize(300, 200));
    QVERIFY(layout.x().low() < layout.x().high() && layout.y(LeftSide).low() < layout.y(LeftSide).high());
    QVERIFY(!plotPicture(layout, Qt::white, 1).isEmpty());
}

QTEST_MAIN(LivePlotTest)
#include "tst_liveplot.moc"
