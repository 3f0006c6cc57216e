#include "demotypes.h"
#include "loopbackmeasurement.h"
#include "qmlwarnings.h"
#include "ui_host/host.h"

#include <embedded/embeddedbackend.h>

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace uiutils::demo;

namespace {

constexpr int longWait = 60000;

} // namespace

/// What the window of the demo shows, and when.
class StartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_root.isValid());
        qputenv("UIUTILS_ROOT", m_root.path().toLocal8Bit());
        registerDemoTypes();
        QCOMPARE(m_services.loadFolders({UIUTILS_SOURCE_DIR "/platform/reference/services"}), QStringList());
        QVERIFY(m_host.start({{}, {}, {}, m_services.serviceNames()}));
    }

    void init()
    {
        m_engine = std::make_unique<QQmlApplicationEngine>();
        m_warnings.watch(m_engine.get());
        m_host.showTo(m_engine.get());
        m_engine->setInitialProperties({{"measurement", QVariant::fromValue(&m_measurement)}});
        m_engine->load(QUrl("qrc:/uiutils/demo/Main.qml"));
        QVERIFY(!m_engine->rootObjects().isEmpty());
        m_window = qobject_cast<QQuickWindow*>(m_engine->rootObjects().constFirst());
        QVERIFY(m_window);
    }

    void cleanup()
    {
        m_engine.reset();
        QCOMPARE(m_warnings.take(), QStringList());
    }

    /// The first frame shows the window, the second its page, and then comes what lies over it.
    void frames()
    {
        QStringList seen;
        connect(m_window, &QQuickWindow::frameSwapped, this, [this, &seen] {
            const bool isComplete = m_window->property("isComplete").toBool();
            const bool hasAll = m_window->findChild<QObject*>("deskDrawer");
            seen += hasAll ? "all" : isComplete ? "page" : "window";
        });
        QVERIFY(!m_window->property("isComplete").toBool());
        QTRY_VERIFY_WITH_TIMEOUT(m_window->findChild<QObject*>("deskDrawer"), longWait);
        m_window->update();
        QTRY_VERIFY_WITH_TIMEOUT(seen.contains("all"), longWait);
        seen.removeDuplicates();
        QCOMPARE(seen, QStringList({"window", "page", "all"}));
        // Keys go to the page.
        const auto* const page = open("home").value<QQuickItem*>();
        QVERIFY(page == m_window->activeFocusItem() || page->isAncestorOf(m_window->activeFocusItem()));
    }

    /// The bars come where the first frame had their places, so that nothing jumps.
    void nothingJumps()
    {
        for (const char* bar : {"statusPlace", "navigationPlace"})
            QVERIFY2(m_window->findChild<QQuickItem*>(bar), bar);
        QTRY_VERIFY_WITH_TIMEOUT(m_window->property("isComplete").toBool(), longWait);
        for (const QSize& size : {QSize(1024, 600), QSize(800, 480)}) {
            m_window->resize(size);
            QTRY_COMPARE(placeOf("navigation").bottom(), double(size.height()));
            QCOMPARE(placeOf("navigation"), placeOf("navigationPlace"));
            QCOMPARE(placeOf("statusBar"), placeOf("statusPlace"));
            QCOMPARE(placeOf("statusBar").width(), double(size.width()));
        }
    }

    /// A page that is asked for before the first frame is shown by it, and everything is made once.
    void askedForBefore()
    {
        const QVariant page = open("people");
        QVERIFY(page.value<QQuickItem*>());
        QVERIFY(m_window->property("isComplete").toBool());
        QTRY_VERIFY_WITH_TIMEOUT(m_window->findChild<QObject*>("deskDrawer"), longWait);
        QCOMPARE(open("people"), page);
        QVERIFY(page.value<QQuickItem*>()->isVisible());
    }

private:
    QVariant open(const QString& name)
    {
        QVariant page;
        QMetaObject::invokeMethod(m_window, "open", Q_RETURN_ARG(QVariant, page), Q_ARG(QVariant, name));
        return page;
    }

    QRectF placeOf(const QString& name) const
    {
        const auto* const item = m_window->findChild<QQuickItem*>(name);
        return item ? item->mapRectToScene({0, 0, item->width(), item->height()}) : QRectF();
    }

    QTemporaryDir m_root;
    kiv::embedded::EmbeddedBackend m_services;
    LoopbackMeasurement m_measurement;
    uiutils::Host m_host;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow* m_window = nullptr;
    QmlWarnings m_warnings;
};

QTEST_MAIN(StartTest)
#include "tst_start.moc"
