#include "core/paths.h"
#include "demotypes.h"
#include "loopbackmeasurement.h"
#include "module/uiutilsmodule.h"
#include "reportsaver.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>

using namespace uiutils::demo;

namespace {

constexpr int longWait = 60000;

QList<QQuickItem*> itemsBelow(const QQuickItem* item)
{
    QList<QQuickItem*> items = item->childItems();
    const QList<QQuickItem*> children = items;
    for (const QQuickItem* child : children)
        items += itemsBelow(child);
    return items;
}

QString textOf(const QQuickItem* item)
{
    return item->property("text").toString();
}

/// Whether the item lies in something that scrolls, where being cut off at an edge is no fault.
bool isScrolled(const QQuickItem* item)
{
    for (; item; item = item->parentItem()) {
        if (item->inherits("QQuickFlickable"))
            return true;
    }
    return false;
}

} // namespace

class PagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_root.isValid());
        qputenv("UIUTILS_ROOT", m_root.path().toLocal8Bit());
        qputenv("QT_QUICK_CONTROLS_STYLE", "Default");
        uiutils::registerTypes();
        registerDemoTypes();
    }

    void init()
    {
        m_measurement = std::make_unique<LoopbackMeasurement>();
        m_measurement->setPause(0);
        m_saver = std::make_unique<ReportSaver>();
        m_engine = std::make_unique<QQmlApplicationEngine>();
        connect(m_engine.get(), &QQmlEngine::warnings, this, [this](const QList<QQmlError>& warnings) {
            for (const QQmlError& warning : warnings)
                m_warnings += warning.toString();
        });
        m_warnings.clear();
        m_engine->setInitialProperties({{"measurement", QVariant::fromValue(m_measurement.get())},
                {"saver", QVariant::fromValue(m_saver.get())}});
        m_engine->load(QUrl("qrc:/uiutils/demo/Main.qml"));
        QVERIFY(!m_engine->rootObjects().isEmpty());
        m_window = qobject_cast<QQuickWindow*>(m_engine->rootObjects().constFirst());
        QVERIFY(m_window);
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
    }

    void cleanup()
    {
        m_engine.reset();
        QCOMPARE(m_warnings, QStringList());
    }

    /// Measure, cancel, measure, look, save: all with keys.
    void keyboardReachesEverything()
    {
        QTest::keyClick(m_window, Qt::Key_Space);
        QVERIFY(m_measurement->isRunning());
        QTest::keyClick(m_window, Qt::Key_Return);
        QCOMPARE(m_measurement->state(), LoopbackMeasurement::Cancelled);

        QTest::keyClick(m_window, Qt::Key_Space);
        QTRY_COMPARE_WITH_TIMEOUT(m_measurement->state(), LoopbackMeasurement::Finished, longWait);

        QTest::keyClick(m_window, Qt::Key_3, Qt::ControlModifier);
        QCOMPARE(m_window->property("page").toInt(), 2);
        focusButton("Save");
        QTest::keyClick(m_window, Qt::Key_Space);
        QCOMPARE(m_saver->errorText(), QString());
        QCOMPARE(m_saver->files().size(), 3);
        QVERIFY(QFile::exists(m_saver->files().constFirst()));
    }

    void fingerChangesLimit()
    {
        SampleModel* const roundTrip = m_measurement->roundTrip();
        QCOMPARE(roundTrip->limit(), LoopbackMeasurement::maximumRoundTripMilliseconds);
        QQuickItem* const raise = button("+");
        QVERIFY(raise->width() >= 44 && raise->height() >= 44);
        QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier,
                raise->mapToScene(QPointF(raise->width() / 2, raise->height() / 2)).toPoint());
        QCOMPARE(roundTrip->limit(), 2 * LoopbackMeasurement::maximumRoundTripMilliseconds);
    }

    void noReportWithoutAMeasurement()
    {
        m_window->setProperty("page", 2);
        QVERIFY(!button("Save")->isEnabled());
        QTest::keyClick(m_window, Qt::Key_Space);
        QVERIFY(m_saver->files().isEmpty());
    }

    void failedSaveIsToldInWords()
    {
        measure();
        QVERIFY(QDir().mkpath(m_saver->folder() + "taken.json"));
        QQuickItem* const name = firstItem([](const QQuickItem* item) {
            return item->inherits("QQuickTextField") && textOf(item).startsWith("loopback_");
        });
        name->setProperty("text", "taken");
        m_window->setProperty("page", 2);
        focusButton("Save");
        QTest::keyClick(m_window, Qt::Key_Space);
        QVERIFY(showsText(m_saver->errorText()));
        QVERIFY(m_saver->errorText().contains("taken.json"));
    }

    /// No text is cut off, runs out of the window or over its neighbours' card, in any state of a page.
    void textsFit_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QSize>("size");
        for (const char* state : {"idle", "failed", "finished", "marginal"}) {
            QTest::addRow("%s, instrument", state) << state << QSize(1024, 600);
            QTest::addRow("%s, smallest", state) << state << QSize(880, 540);
        }
    }

    void textsFit()
    {
        QFETCH(const QString, state);
        QFETCH(const QSize, size);
        m_window->resize(size);
        if (state == "failed")
            failToMeasure();
        else if (state != "idle")
            measure();
        if (state == "marginal") {
            for (SampleModel* quantity : {m_measurement->roundTrip(), m_measurement->throughput()})
                quantity->setLimit(quantity->median());
        }
        for (int page = 0; page < 3; ++page) {
            m_window->setProperty("page", page);
            waitForFrame();
            picture(QStringLiteral("%1-%2-%3").arg(state).arg(size.width()).arg(page));
            const QList<QQuickItem*> texts = shownTexts();
            QVERIFY(!texts.isEmpty());
            for (const QQuickItem* text : texts)
                checkFits(text);
        }
    }

private:
    void measure()
    {
        m_measurement->start();
        QTRY_COMPARE_WITH_TIMEOUT(m_measurement->state(), LoopbackMeasurement::Finished, longWait);
    }

    void failToMeasure()
    {
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        m_measurement->setServerPort(silent.serverPort());
        m_measurement->setPatience(50);
        m_measurement->start();
        QTRY_COMPARE_WITH_TIMEOUT(m_measurement->state(), LoopbackMeasurement::Failed, longWait);
    }

    /// Layouts are settled once the page has been drawn.
    void waitForFrame()
    {
        QSignalSpy drawn(m_window, &QQuickWindow::frameSwapped);
        m_window->update();
        QVERIFY(drawn.wait());
    }

    void checkFits(const QQuickItem* text)
    {
        const QString words = textOf(text);
        QVERIFY2(!text->property("truncated").toBool(), qPrintable("cut off: " + words));
        if (isScrolled(text))
            return;
        const QRectF painted(
                0, 0, text->property("paintedWidth").toReal(), text->property("paintedHeight").toReal());
        const QSizeF room = text->size() + QSizeF(1, 1);
        QVERIFY2(painted.width() <= room.width() && painted.height() <= room.height(),
                qPrintable(QStringLiteral("too large for its room (%1 > %2): %3")
                                   .arg(painted.width())
                                   .arg(room.width())
                                   .arg(words)));
        const QRectF window(QPointF(), m_window->size());
        const QRectF place = text->mapRectToScene(painted);
        QVERIFY2(window.contains(place), qPrintable("outside the window: " + words));
        const QRectF parent = text->parentItem()->mapRectToScene(
                QRectF(0, 0, text->parentItem()->width() + 1, text->parentItem()->height() + 1));
        QVERIFY2(place.right() <= parent.right(), qPrintable("runs out of its parent: " + words));
    }

    QQuickItem* firstItem(const std::function<bool(const QQuickItem*)>& isWanted) const
    {
        const QList<QQuickItem*> items = itemsBelow(m_window->contentItem());
        const auto found = std::find_if(items.begin(), items.end(), isWanted);
        if (found == items.end())
            qFatal("The page lacks the item that the test looks for.");
        return *found;
    }

    QQuickItem* button(const QString& words) const
    {
        return firstItem([&](const QQuickItem* item) {
            return item->inherits("QQuickButton") && textOf(item) == words;
        });
    }

    /// The texts that a user sees now.
    QList<QQuickItem*> shownTexts() const
    {
        QList<QQuickItem*> items = itemsBelow(m_window->contentItem());
        const auto isNoShownText = [](const QQuickItem* item) {
            return !item->isVisible() || !item->inherits("QQuickText") || textOf(item).isEmpty();
        };
        items.erase(std::remove_if(items.begin(), items.end(), isNoShownText), items.end());
        return items;
    }

    void focusButton(const QString& words)
    {
        QQuickItem* const wanted = button(words);
        for (int i = 0; i < 20 && !wanted->hasActiveFocus(); ++i)
            QTest::keyClick(m_window, Qt::Key_Tab);
        QVERIFY2(wanted->hasActiveFocus(), qPrintable("The tab key never reaches " + words));
    }

    bool showsText(const QString& words) const
    {
        const QList<QQuickItem*> texts = shownTexts();
        return std::any_of(
                texts.begin(), texts.end(), [&](const QQuickItem* text) { return textOf(text) == words; });
    }

    /// For eyes: pictures of every page and state in the folder that UIUTILS_DEMO_PICTURES names.
    void picture(const QString& name)
    {
        const QString folder = qEnvironmentVariable("UIUTILS_DEMO_PICTURES");
        if (folder.isEmpty())
            return;
        const QSharedPointer<const QQuickItemGrabResult> grab = m_window->contentItem()->grabToImage();
        QSignalSpy ready(grab.data(), &QQuickItemGrabResult::ready);
        QVERIFY(ready.wait());
        QVERIFY(grab->saveToFile(folder + '/' + name + ".png"));
    }

    QTemporaryDir m_root;
    std::unique_ptr<LoopbackMeasurement> m_measurement;
    std::unique_ptr<ReportSaver> m_saver;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow* m_window = nullptr;
    QStringList m_warnings;
};

QTEST_MAIN(PagesTest)
#include "tst_pages.moc"
