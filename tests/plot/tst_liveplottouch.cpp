#include "liveplotfixture.h"

class LivePlotTouchTest : public LivePlotFixture
{
    Q_OBJECT

private Q_SLOTS:
    void fingers();
    void pinch();
    void mouseAndKeys();
};

void LivePlotTouchTest::fingers()
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
    // One that is out of sight is not moved.
    tap(at(0.02));
    const double cursor = m_plot->cursorX();
    m_plot->pan(-0.03 * m_plot->plotArea().width(), 0);
    drag(at(0.01), at(0.3));
    QCOMPARE(m_plot->cursorX(), cursor);
    m_plot->setInteractive(false);
    m_plot->clearCursor();
    tap(at(0.5));
    QVERIFY(!m_plot->isCursorVisible());
}

void LivePlotTouchTest::pinch()
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

void LivePlotTouchTest::mouseAndKeys()
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

QTEST_MAIN(LivePlotTouchTest)
#include "tst_liveplottouch.moc"
