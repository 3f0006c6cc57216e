#pragma once

#include "liveplot.h"
#include "plottypes.h"
#include "qmlwarnings.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickItemGrabResult>
#include <QQuickView>
#include <QSignalSpy>
#include <QStyleHints>
#include <QtMath>
#include <QtTest>

#include <memory>

using namespace uiutils;

inline const QByteArray page = R"(
import QtQuick 2.15
import UiUtils.Plot 1.0
LivePlot {
    width: 600; height: 400
    PlotCurve { objectName: "curve"; name: "Level"; unit: "dB"; color: "#0000ff" }
})";

/// How many pixels of the frame have about that colour.
inline int pixelsLike(const QImage& image, const QRectF& area, const QColor& color)
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

/// A page with a plot, in a window without a screen.
class LivePlotFixture : public QObject
{
    Q_OBJECT

protected:
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
};
