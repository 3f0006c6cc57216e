#include "qmlwarnings.h"
#include "stand.h"

#include "inspector/inspectorpanel.h"
#include "inspector/inspectorwindow.h"
#include "inspector/itemglance.h"
#include "service/kivdata.h"
#include "service/manifest.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QRandomGenerator>
#include <QSignalBlocker>

#include <memory>

using namespace uiutils::inspector;
using kiv::embedded::ItemDescription;

/// The panel in a window, used as a user does.
class InspectorPanelTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Stand> m_stand;
    QmlWarnings m_warnings;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<InspectorPanel> m_panel;

    void open(const QSize& size)
    {
        m_window = std::make_unique<QQuickWindow>();
        m_panel = std::make_unique<InspectorPanel>(&m_stand->host);
        m_stand->host.showTo(m_panel->engine());
        m_warnings.watch(m_panel->engine());
        QVERIFY2(m_panel->load(), qPrintable(m_panel->error()));
        m_panel->item()->setParentItem(m_window->contentItem());
        m_panel->item()->setSize(size);
        m_window->resize(size);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    QQuickItem* part(const QString& name) const
    {
        // Rows of lists and contents of loaders are no children of the panel's objects.
        const QList<QQuickItem*> all = items(m_panel->item());
        const auto found = std::find_if(all.begin(), all.end(),
                [&name](const QQuickItem* item) { return item->objectName() == name && item->isVisible(); });
        return found == all.end() ? nullptr : *found;
    }
    static QList<QQuickItem*> items(QQuickItem* root)
    {
        QList<QQuickItem*> all {root};
        for (int i = 0; i < all.size(); ++i)
            all += all.at(i)->childItems();
        return all;
    }
    static int glances(QQuickItem* root)
    {
        int count = 0;
        for (QQuickItem* const item : items(root))
            count += int(item->findChildren<ItemGlance*>(QString(), Qt::FindDirectChildrenOnly).size());
        return count;
    }
    void tap(QQuickItem* item) const
    {
        QVERIFY(item);
        QTest::mouseClick(m_window.get(), Qt::LeftButton, Qt::NoModifier,
                item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint());
    }
    void tapPart(const QString& name)
    {
        QTRY_VERIFY2(part(name), qPrintable(name));
        tap(part(name));
    }
    void type(const QString& text)
    {
        for (const QChar letter : text)
            QTest::keyClick(m_window.get(), letter.toLatin1());
    }
    /// The switch or the field in an entry.
    QQuickItem* inside(const QString& entry, const QString& name)
    {
        const QList<QQuickItem*> all = part(entry) ? items(part(entry)) : QList<QQuickItem*>();
        const auto found = std::find_if(all.begin(), all.end(), [&name](const QQuickItem* item) { return item->objectName() == name; });
        return found == all.end() ? nullptr : *found;
    }
    /// Scrolls what is in the details or among the services into sight.
    void reveal(const QString& name)
    {
        QTRY_VERIFY2(part(name), qPrintable(name));
        for (QQuickItem* area = part(name); area; area = area->parentItem()) {
            if (area->metaObject()->indexOfMethod("reveal(QVariant)") >= 0)
                QMetaObject::invokeMethod(area, "reveal", Q_ARG(QVariant, QVariant::fromValue(part(name))));
        }
        QCoreApplication::processEvents();
    }

private Q_SLOTS:
    void init() { m_stand = std::make_unique<Stand>(); }
    void cleanup()
    {
        m_panel.reset();
        m_window.reset();
        m_stand.reset();
        QCOMPARE(m_warnings.take(), QStringList());
    }

    void anItemIsFoundWatchedAndEdited()
    {
        open({500, 700});
        tapPart("searchField");
        type("range");
        QTRY_VERIFY(part(rangeId));
        QVERIFY(!part(powerId));
        QCOMPARE(part(rangeId)->property("value").toString(), "7");
        m_stand->meter->setValue(rangeId, 8);
        QTRY_COMPARE(part(rangeId)->property("value").toString(), "8");
        tapPart(rangeId);
        QTRY_VERIFY(part("liveValue"));
        QCOMPARE(part("liveValue")->property("text").toString(), "8");
        QQuickItem* const field = inside("itemEntry", "field");
        tap(field);
        QTest::keyClick(m_window.get(), Qt::Key_A, Qt::ControlModifier);
        type("55");
        QTest::keyClick(m_window.get(), Qt::Key_Return);
        QTRY_COMPARE(m_stand->client->getItem(rangeId)->getValue(), QVariant(55));
        QTRY_COMPARE(part("liveValue")->property("text").toString(), "55");
        m_stand->meter->setReachable(false);
        QTRY_VERIFY(part("liveValue")->property("text").toString().contains("Not available"));
        m_stand->meter->setReachable(true);
        QTRY_COMPARE(part("liveValue")->property("text").toString(), "55");
    }
    /// Hands reach the service, and the panel shows what comes of it.
    void handsAreLaidOnAResult()
    {
        open({500, 700});
        tapPart(powerId);
        QTRY_VERIFY(part("liveValue"));
        QCOMPARE(part("liveValue")->property("text").toString(), "1.5 dBm");
        QVERIFY(!part("itemEntry"));
        QVERIFY(part("historyLoader"));
        reveal("readyHand");
        tap(inside("readyHand", "switch"));
        QTRY_VERIFY(!m_stand->client->getItem(powerId)->isReady());
        QTRY_COMPARE(part("liveValue")->property("text").toString(), "1.5 dBm \u00b7 Not ready");
        reveal("valueHand");
        tap(inside("valueHand", "field"));
        type("x1");
        QTest::keyClick(m_window.get(), Qt::Key_Return);
        QTRY_COMPARE(part("valueHand")->property("complaint").toString(), "The item cannot have this value.");
        QCOMPARE(m_stand->client->getItem(powerId)->getValue(), QVariant(1.5));
        QTest::keyClick(m_window.get(), Qt::Key_A, Qt::ControlModifier);
        type("2.25");
        QTest::keyClick(m_window.get(), Qt::Key_Return);
        QTRY_COMPARE(m_stand->client->getItem(powerId)->getValue(), QVariant(2.25));
        tapPart("detailsBack");
        QTRY_VERIFY(part("itemList"));
    }

    void limitsAreChangedByHand()
    {
        open({500, 700});
        tapPart(rangeId);
        reveal("maximumHand");
        tap(inside("maximumHand", "field"));
        QTest::keyClick(m_window.get(), Qt::Key_A, Qt::ControlModifier);
        type("50");
        QTest::keyClick(m_window.get(), Qt::Key_Return);
        const KIVClientItem* const range = m_stand->client->getItem(rangeId);
        QTRY_COMPARE(range->getMaxRange(), QVariant(50));
        QCOMPARE(range->getMinRange(), QVariant(0));
        // The item's own entry knows the new limit.
        QTRY_COMPARE(part("itemEntry")->property("entry").value<QObject*>()->property("maximum").toInt(), 50);
    }

    void actionsAreCarriedOut()
    {
        open({500, 700});
        tapPart(":action:meter:test:run:");
        reveal("argumentEntry");
        tap(inside("argumentEntry", "field"));
        type("fast");
        tapPart("runButton");
        QTRY_VERIFY(part("actionReply"));
        QCOMPARE(part("actionReply")->property("text").toString(), "Ran fast");
    }

    void servicesAreDisturbed()
    {
        open({500, 700});
        m_panel->item()->findChild<QQuickItem*>("inspectorTabs")->setProperty("currentIndex", 1);
        reveal("away com.example.meter");
        tapPart("away com.example.meter");
        QTRY_VERIFY(!m_stand->client->isValid());
        tapPart("away com.example.meter");
        QTRY_VERIFY(m_stand->client->isValid());
        QVERIFY(!part("pendingChanges"));
        m_stand->host.manifest("com.example.meter")->startChanges();
        Manifest::getKivData(rangeId)->setValue(99);
        QTRY_VERIFY(part("pendingChanges"));
    }

    void changesAreLogged()
    {
        open({1200, 700});
        m_panel->item()->findChild<QQuickItem*>("inspectorTabs")->setProperty("currentIndex", 2);
        QTRY_VERIFY(part("logList"));
        auto* const list = part("logList");
        // Until the panel listens.
        QTRY_VERIFY((m_stand->meter->setValue(powerId, QRandomGenerator::global()->bounded(1000)), list->property("count").toInt() > 0));
        tapPart("pauseButton");
        const int count = list->property("count").toInt();
        m_stand->meter->setValue(powerId, -1);
        QTRY_VERIFY(part("logCounts")->property("text").toString().contains("missed while paused: 1"));
        QCOMPARE(list->property("count").toInt(), count);
        // A change leads to its item.
        QQuickItem* row = nullptr;
        QVERIFY(QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, row), Q_ARG(int, 0)));
        tap(row);
        QTRY_VERIFY(part("liveValue"));
        QCOMPARE(part("liveValue")->property("text").toString(), "-1 dBm");
        // Beside the list, because there is room.
        QVERIFY(part("itemList") && !part("detailsBack"));
    }

    /// What has happened since the changes were looked at is in the file, after everything as it was.
    void changesAreRecorded()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_stand->path("services")));
        open({1200, 700});
        QVERIFY(QDir::setCurrent(before));
        m_stand->meter->setValue(powerId, 3.75);
        m_panel->item()->findChild<QQuickItem*>("inspectorTabs")->setProperty("currentIndex", 2);
        QTRY_VERIFY(part("recordButton"));
        m_stand->meter->setValue(powerId, 4.25);
        tapPart("recordButton");
        m_stand->meter->setValue(powerId, 5.75);
        QTRY_VERIFY(part("recordingText")->property("text").toString().contains(".kivlog: 1 changes in "));
        const QStringList files = namesIn(m_stand->path("services")).filter(".kivlog");
        QCOMPARE(files.size(), 1);
        const QByteArray lines = contentsOf(m_stand->path("services/" + files.constFirst()));
        QVERIFY2(lines.contains("\"service\":\"clock\"") && lines.indexOf("3.75") < lines.indexOf("4.25") && lines.contains("3.75"), lines);
        QVERIFY2(!lines.contains("5.75"), lines);
    }

    /// The window of an application opens and closes, also by its own frame; what was done to a service ends with it.
    void aWindowOpensAndCloses()
    {
        InspectorWindow window(&m_stand->host);
        QSignalSpy changes(&window, &InspectorWindow::isOpenChanged);
        const auto shown = [] {
            const QWindowList all = QGuiApplication::topLevelWindows();
            const auto found = std::find_if(all.begin(), all.end(), [](const QWindow* one) { return one->title() == "Inspector" && one->isVisible(); });
            return found == all.end() ? nullptr : *found;
        };
        for (int round = 1; round <= 2; ++round) {
            window.toggle();
            QVERIFY(window.isOpen() && shown());
            auto* const panel = qobject_cast<QQuickWindow*>(shown())->contentItem()->childItems().constFirst();
            auto* const inspector = panel->property("inspector").value<Inspector*>();
            inspector->service("com.example.meter")->setAway(true);
            QVERIFY(!m_stand->client->isValid());
            if (round == 1)
                window.toggle();
            else
                shown()->close();
            QTRY_VERIFY(!window.isOpen() && !shown());
            QVERIFY(m_stand->client->isValid());
            QCOMPARE(changes.size(), 2 * round);
        }
    }

    /// However many items there are, only rows in sight are bound to theirs.
    void manyItemsScroll()
    {
        for (int i = 0; i < 2000; ++i) {
            ItemDescription item;
            item.id = QString(":result:meter:many:n%1:").arg(i);
            item.type = "int";
            item.value = i;
            QSignalBlocker silence(m_stand->meter);
            QVERIFY(m_stand->meter->addItem(item));
        }
        m_stand->meter->setReachable(false);
        m_stand->meter->setReachable(true);
        open({500, 700});
        QTRY_VERIFY(part("itemList"));
        auto* const list = part("itemList");
        QCOMPARE(list->property("count").toInt(), 2007);
        QTRY_VERIFY(part(":config:clock:zone:"));
        const int bound = glances(list);
        QVERIFY2(bound > 3 && bound < 30, qPrintable(QString::number(bound)));
        for (int row = 0; row < 2007; row += 150) {
            QMetaObject::invokeMethod(list, "positionViewAtIndex", Q_ARG(int, row), Q_ARG(int, 0));
            QCoreApplication::processEvents();
        }
        QTRY_VERIFY(part(":result:meter:many:n1950:"));
        QCOMPARE(part(":result:meter:many:n1950:")->property("value").toString(), "1,950");
        QVERIFY2(glances(list) < 60, qPrintable(QString::number(glances(list))));
    }
};

QTEST_MAIN(InspectorPanelTest)
#include "tst_panel.moc"
