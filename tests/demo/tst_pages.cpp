#include "columns.h"
#include "files.h"

#include "base/paths_p.h"
#include "demotypes.h"
#include "loopbackmeasurement.h"
#include "loopbackreport.h"
#include "measurementsettings.h"
#include "qmlwarnings.h"
#include "screencamera.h"
#include "service/kivdata.h"
#include "ui_host/host.h"
#include "usbstick.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTcpServer>

#include <algorithm>
#include <functional>
#include <memory>

using namespace uiutils::demo;

namespace {

constexpr int longWait = 60000;

const char* const lastName = ":config:basemgr:system:userInfo_lastName:";
const char* const saveLocation = ":config:basemgr:system:saveLocation:";
const char* const roundTripLimit = ":config:loopback:limits:maximumRtt:";
const char* const roundTripSamples = ":config:loopback:test:rttSamples:";

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

/// Whether the item is in something that scrolls, where being cut off at an edge is not an error.
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
        registerDemoTypes();
    }

    void init()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        m_settingsFolder = std::make_unique<QTemporaryDir>();
        startProgram();
    }

    void cleanup()
    {
        QVERIFY(stick()->pull());
        endProgram();
        KIVNotificationModelManager::instance()->clear();
        QCOMPARE(m_warnings.take(), QStringList());
    }

    /// Measure, cancel, measure, look, save: all with keys. Without a measurement nothing can be saved.
    void keyboardReachesEverything()
    {
        QVERIFY(!button("Save")->isEnabled());
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
        QCOMPARE(m_report->savedFiles().size(), 1);
        QVERIFY(QFile::exists(m_report->savedFiles().constFirst()));

        // A question before the file is overwritten; the answer leads back to the page.
        QTest::keyClick(m_window, Qt::Key_Space);
        const KIVNotificationModelManager* const notifications = KIVNotificationModelManager::instance();
        QVERIFY(notifications->currentDialog());
        // Keys that arrive at once may have been meant for the page.
        QTRY_VERIFY((QTest::keyClick(m_window, Qt::Key_Escape), !notifications->currentDialog()));
        QTRY_VERIFY(button("Save")->hasActiveFocus());
    }

    void fingerChangesLimit()
    {
        SampleModel* const roundTrip = m_measurement->roundTrip();
        QCOMPARE(roundTrip->limit(), LoopbackMeasurement::maximumRoundTripMilliseconds);
        QQuickItem* const raise = button("+");
        QVERIFY(raise->width() >= 44 && raise->height() >= 44);
        click(raise);
        QCOMPARE(roundTrip->limit(), 2 * LoopbackMeasurement::maximumRoundTripMilliseconds);
        QCOMPARE(served(roundTripLimit), QVariant(roundTrip->limit()));
    }

    /// Typed text is held back across a change of the page, and reaches both services at once.
    void settingsAreAppliedTogether()
    {
        QTest::keyClick(m_window, Qt::Key_4, Qt::ControlModifier);
        type(lastName, "Berg");
        type(roundTripLimit, "0.25");
        QCOMPARE(served(lastName), QVariant("Halvorsen"));
        QCOMPARE(m_measurement->roundTrip()->limit(), 1.0);
        QCOMPARE(shownTimes("2 changes are not applied yet."), 1);

        QTest::keyClick(m_window, Qt::Key_1, Qt::ControlModifier);
        QTest::keyClick(m_window, Qt::Key_4, Qt::ControlModifier);
        QCOMPARE(textOf(fieldOf(lastName)), QString("Berg"));
        QVERIFY(isChanged(roundTripLimit) && !isChanged(roundTripSamples));

        press("Apply");
        QCOMPARE(served(lastName), QVariant("Berg"));
        QCOMPARE(served(roundTripLimit), QVariant(0.25));
        QCOMPARE(m_measurement->roundTrip()->limit(), 0.25);
        QCOMPARE(shownTimes("All settings are applied."), 1);
        QVERIFY(!button("Apply")->isEnabled() && !button("Revert")->isEnabled());
    }

    /// Also after a field was changed twice, cannot be applied, or went back by itself.
    void revertRestoresWhatTheServicesHold()
    {
        m_window->setProperty("page", 3);
        type(lastName, "Berg");
        type(roundTripSamples, "");
        QTest::keyClick(m_window, Qt::Key_Backtab);
        type(lastName, "Dahl");
        fieldOf(saveLocation)->forceActiveFocus();
        QTest::keyClick(m_window, Qt::Key_Down);
        type(roundTripLimit, "5");
        type(roundTripLimit, "1.000");
        QVERIFY(!isChanged(roundTripLimit));
        QVERIFY(isChanged(saveLocation));

        press("Revert");
        QCOMPARE(textOf(fieldOf(lastName)), QString("Halvorsen"));
        QCOMPARE(textOf(fieldOf(roundTripSamples)), QString("40"));
        QCOMPARE(shownTimes("All settings are applied."), 1);
        type(roundTripSamples, "50");
        press("Apply");
        QCOMPARE(served(lastName), QVariant("Halvorsen"));
        QCOMPARE(served(saveLocation), QVariant(0));
        QCOMPARE(served(roundTripLimit), QVariant(1.0));
        QCOMPARE(served(roundTripSamples), QVariant(50u));
    }

    void entries_data()
    {
        addColumns<QString, QString, QString, QVariant>();
        const QString limit = roundTripLimit;
        QTest::newRow("point") << limit << "en_US" << "0.25" << QVariant(0.25);
        QTest::newRow("comma") << limit << "de_DE" << "0,25" << QVariant(0.25);
        QTest::newRow("thousands without separators") << limit << "de_DE" << "1234,5" << QVariant(1234.5);
        QTest::newRow("no number") << limit << "de_DE" << "" << QVariant();
        QTest::newRow("too large") << limit << "en_US" << "20000" << QVariant();
        QTest::newRow("whole number") << QString(roundTripSamples) << "de_DE" << "1500" << QVariant(1500u);
        QTest::newRow("fewer than one") << QString(roundTripSamples) << "en_US" << "0" << QVariant();
        QTest::newRow("text with a comma") << QString(lastName) << "de_DE" << "Berg, Ida" << QVariant("Berg, Ida");
        QTest::newRow("letters beyond ASCII")
                << QString(lastName) << "de_DE" << QString::fromUtf8("Sørensen") << QVariant(QString::fromUtf8("Sørensen"));
        QTest::newRow("no name") << QString(lastName) << "en_US" << "" << QVariant("default");
    }

    /// An entry that is not acceptable blocks all others, until it is corrected.
    void entries()
    {
        const auto [id, locale, typed, taken] = currentRow<QString, QString, QString, QVariant>();
        endProgram();
        QLocale::setDefault(QLocale(locale));
        startProgram();
        m_window->setProperty("page", 3);
        const QVariant before = served(id);
        const QString shown = textOf(fieldOf(id));
        type(":config:basemgr:system:userInfo_techID:", "T-1");
        type(id, typed);
        QCOMPARE(textOf(fieldOf(id)), typed);
        QCOMPARE(button("Apply")->isEnabled(), taken.isValid());
        QCOMPARE(hasFailColor(id), !taken.isValid());
        if (!taken.isValid()) {
            QTest::keyClick(m_window, Qt::Key_Return);
            QVERIFY(fieldOf(id)->hasActiveFocus());
            type(id, shown);
        }
        press("Apply");
        QCOMPARE(served(id), taken.isValid() ? taken : before);
        QCOMPARE(served(":config:basemgr:system:userInfo_techID:"), QVariant("T-1"));
    }

    void rejectedSettingsAreExplained_data()
    {
        addColumns<QString, int>();
        // In the bar, and at each setting that the reason may concern.
        QTest::newRow("named") << "Last Name cannot be changed in the field." << 2;
        QTest::newRow("not named") << "The roster is closed." << 3;
    }

    void rejectedSettingsAreExplained()
    {
        const auto [words, times] = currentRow<QString, int>();
        service(lastName)->setRefusal(lastName, words);
        m_window->setProperty("page", 3);
        type(lastName, "Berg");
        type(roundTripLimit, "2");
        // At every attempt.
        for (int i = 0; i < 2; ++i) {
            press("Apply");
            QCOMPARE(shownTimes("Nothing was set. " + words), times);
            QVERIFY(isInSight(fieldOf(lastName)));
            QCOMPARE(served(lastName), QVariant("Halvorsen"));
            QCOMPARE(served(roundTripLimit), QVariant(1.0));
            QVERIFY(isChanged(lastName) && isChanged(roundTripLimit));
        }

        service(lastName)->setRefusal(lastName, QString());
        press("Apply");
        QCOMPARE(served(lastName), QVariant("Berg"));
        QCOMPARE(served(roundTripLimit), QVariant(2.0));
        QCOMPARE(shownTimes("Nothing was set. " + words), 0);
    }

    /// The service decides about a setting; what it reports of other settings leaves the entry alone.
    void settingsFollowTheService()
    {
        m_window->setProperty("page", 3);
        type(lastName, "Berg");
        type(roundTripSamples, "");
        service(lastName)->setReady(lastName, false);
        QVERIFY(!fieldOf(lastName)->isEnabled());
        service(lastName)->setReady(lastName, true);
        service(roundTripSamples)->setReady(roundTripSamples, false);
        service(roundTripSamples)->setReady(roundTripSamples, true);
        service(roundTripLimit)->setValue(roundTripLimit, 3);
        QCOMPARE(textOf(fieldOf(lastName)), QString("Berg"));
        QCOMPARE(textOf(fieldOf(roundTripSamples)), QString());
        QCOMPARE(textOf(fieldOf(roundTripLimit)), QString("3.000"));
        QVERIFY(isChanged(lastName) && !isChanged(roundTripLimit));

        service(lastName)->setValue(lastName, "Dahl");
        QCOMPARE(textOf(fieldOf(lastName)), QString("Dahl"));
        QVERIFY(!isChanged(lastName));

        // What is not applicable is hidden and blocks nothing.
        service(roundTripSamples)->setApplicable(roundTripSamples, false);
        QVERIFY(!fieldOf(roundTripSamples)->isVisible());
        type(lastName, "Berg");
        QVERIFY(button("Apply")->isEnabled());
    }

    /// The keyboard reaches all settings, and each is scrolled into view.
    void keyboardReachesEverySetting()
    {
        m_window->setProperty("page", 3);
        fieldOf(":config:basemgr:system:userInfo_firstName:")->forceActiveFocus();
        int fields = 0;
        for (; m_window->activeFocusItem()->inherits("QQuickTextField")
                || m_window->activeFocusItem()->inherits("QQuickComboBox"); ++fields) {
            const QQuickItem* field = m_window->activeFocusItem();
            waitForFrame();
            QVERIFY(isInSight(field));
            QTest::keyClick(m_window, Qt::Key_Tab);
        }
        QCOMPARE(fields, 14);
    }

    void fingerChooses()
    {
        service(saveLocation)->setChoices(saveLocation,
                {{0, "Internal", "Internal", true}, {1, "Usb", "USB", false}, {2, "Both", "Internal and USB", true}});
        m_window->setProperty("page", 3);
        fieldOf(saveLocation)->forceActiveFocus();
        waitForFrame();
        click(fieldOf(saveLocation));
        waitForFrame();
        const auto choice = [this](const QString& label) {
            return firstItem([&](const QQuickItem* item) {
                return item->inherits("QQuickItemDelegate") && textOf(item) == label;
            });
        };
        QVERIFY(choice("USB")->height() >= 44);
        // A choice that is not applicable now cannot be selected.
        click(choice("USB"));
        QVERIFY(!isChanged(saveLocation));
        click(choice("Internal and USB"));
        QVERIFY(isChanged(saveLocation));
        press("Apply");
        QCOMPARE(served(saveLocation), QVariant(2));
    }

    /// The page works without services that the user's own folder lacks.
    void noServicesNoSettings()
    {
        endProgram();
        m_serviceFolders.clear();
        startProgram();
        m_serviceFolders = QStringList(shippedServices);
        m_window->setProperty("page", 3);
        QCOMPARE(shownTimes("There are no settings, because the services basemgr and loopback are not published."), 1);
    }

    /// The keys of the list, and the position after each.
    void savedReportsByKeys()
    {
        const QString folder = "/cust/public/reports/loopback/";
        removeReports();
        QFile::remove(m_root.filePath("base/bin/pdf_viewer"));
        m_window->setProperty("page", 2);
        put(folder + "a.pdf", "a report");
        Q_EMIT m_report->reportFilesChanged();
        QTRY_VERIFY(button("Delete")->isVisible() && !button("Open")->isVisible());
        for (const char* name : {"b.txt", "c.txt"})
            put(folder + name, "a report");
        // Prints that it was started.
        put("/base/bin/pdf_viewer", "#!/bin/sh\ntouch shown\n");
        QVERIFY(QFile(m_root.filePath("base/bin/pdf_viewer")).setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        QVERIFY(QDir(m_root.path()).mkpath("base/qml/pdf_viewer"));
        Q_EMIT m_report->reportFilesChanged();
        const QQuickItem* const list = named("reportList");
        QTRY_COMPARE(list->property("count").toInt(), 3);
        for (int i = 0; i < 20 && !list->hasActiveFocus(); ++i)
            QTest::keyClick(m_window, Qt::Key_Tab);

        // Files may have the same time; the one that can be opened is somewhere in the list.
        while (!button("Open")->isVisible() && list->property("currentIndex").toInt() < 2) {
            QTest::keyClick(m_window, Qt::Key_Return);
            QTest::keyClick(m_window, Qt::Key_Down);
        }
        QTest::keyClick(m_window, Qt::Key_Return);
        QTRY_VERIFY(QFile::exists(m_root.filePath("base/qml/pdf_viewer/shown")));

        for (int i = 0; i < 3; ++i)
            QTest::keyClick(m_window, Qt::Key_Up);
        QTest::keyClick(m_window, Qt::Key_Down);
        QTest::keyClick(m_window, Qt::Key_Delete);
        KIVNotificationModelManager* const notifications = KIVNotificationModelManager::instance();
        QVERIFY(notifications->currentDialog());
        QCOMPARE(notifications->currentDialog()->longLabel(), QString("Delete File"));
        notifications->accept();
        QTRY_COMPARE(list->property("count").toInt(), 2);
        QTRY_COMPARE(list->property("currentIndex").toInt(), 1);
        QTRY_VERIFY(list->hasActiveFocus());
    }

    void screenshotsHaveNamesOfTheirOwn()
    {
        const QString name("screenshot_20260131-142500");
        QCOMPARE(ScreenCamera::freeBaseName("20260131-142500"), name);
        for (const char* taken : {".png", "_2.png"})
            put("/cust/public/screenshots/" + name + taken, "a picture");
        QCOMPARE(ScreenCamera::freeBaseName("20260131-142500"), name + "_3");
        QVERIFY(QDir(m_root.filePath("cust/public/screenshots")).removeRecursively());
    }

    /// With its dialogs, under a name of its own, and with one notification.
    void screenshots()
    {
        KIVNotificationModelManager* const notifications = KIVNotificationModelManager::instance();
        const QString folder = m_root.filePath("cust/public/screenshots");
        put("/cust/public/screenshots", "no folder");
        QTest::keyClick(m_window, Qt::Key_P, Qt::ControlModifier);
        QTRY_VERIFY(notifications->currentDialog());
        QCOMPARE(notifications->currentDialog()->longLabel(), QString("Write Error"));
        QCOMPARE(notifications->count(), 1);
        QVERIFY(QFile::remove(folder));

        waitForFrame();
        for (int taken = 1; taken <= 2; ++taken) {
            QTest::keyClick(m_window, Qt::Key_Print);
            QTRY_COMPARE(notifications->count(), 1 + taken);
        }
        const QStringList names = namesIn(folder);
        QCOMPARE(names.size(), 2);
        for (const QString& name : names) {
            // The page below the open dialog is dimmed.
            QVERIFY(QImage(folder + '/' + name).pixelColor(2, 300).lightness() < 200);
            QVERIFY(QFile::exists(m_root.filePath("cust/private/screenshots/metadata/" + name + ".metadata")));
        }
        notifications->reject();
        QTRY_VERIFY((QTest::keyClick(m_window, Qt::Key_Escape), !notifications->currentDialog()));
    }

    /// The report comes first, then the error.
    void windowClosesOnceSaved()
    {
        QGuiApplication::setQuitOnLastWindowClosed(false);
        connect(m_report, &Report::savingChanged, this, [this] {
            if (m_report->isSaving())
                QVERIFY(!m_window->close() && m_window->findChild<QObject*>("saveProgress")->property("visible").toBool());
        });
        for (const bool isWritten : {false, true}) {
            removeReports();
            if (!isWritten)
                put("/cust/public/reports", "no folder");
            QCOMPARE(m_report->save(), isWritten);
            QVERIFY(m_window->isVisible());
            QCoreApplication::processEvents();
            QTRY_COMPARE(m_window->isVisible(), !isWritten);
            KIVNotificationModelManager::instance()->reject();
            QVERIFY(isWritten || QFile::remove(m_root.filePath("cust/public/reports")));
        }
    }

    /// No text is cut off, outside the window or over a neighbouring card, in any state of a page. Controls show no
    /// markup either.
    void textsFit_data()
    {
        addColumns<QString, QSize>();
        for (const char* state : {"idle", "failed", "finished", "marginal", "with a USB drive"}) {
            QTest::addRow("%s, instrument", state) << state << QSize(1024, 600);
            QTest::addRow("%s, smallest", state) << state << QSize(880, 540);
        }
    }

    void textsFit()
    {
        const auto [state, size] = currentRow<QString, QSize>();
        m_window->resize(size);
        if (state == "failed")
            failToMeasure();
        else if (state != "idle") {
            measure();
            // The widest texts, whatever this machine measures under its present load.
            for (const double factor : {1.0, 1.5}) {
                m_measurement->roundTrip()->append(6789 * factor);
                m_measurement->throughput()->append((state == "marginal" ? 65432 : 123456) * factor);
            }
        }
        if (state == "marginal") {
            for (SampleModel* quantity : {m_measurement->roundTrip(), m_measurement->throughput()})
                quantity->setLimit(quantity->median());
            QVERIFY(QMetaObject::invokeMethod(m_window, "saveReport"));
        }
        if (state == "with a USB drive")
            saveOnBoth();
        for (int page = 0; page <= 4; ++page) {
            m_window->setProperty("page", page);
            waitForFrame();
            const QList<QQuickItem*> texts = shownTexts();
            QVERIFY(!texts.isEmpty());
            for (const QQuickItem* text : texts) {
                QVERIFY2(text->property("textFormat").toInt() == Qt::PlainText, qPrintable(textOf(text)));
                checkFits(text);
            }
        }
    }

private:
    void startProgram()
    {
        m_services = std::make_unique<kiv::embedded::EmbeddedBackend>();
        m_services->setStateFolder(m_settingsFolder->path());
        QCOMPARE(m_services->loadFolders(m_serviceFolders), QStringList());
        m_measurement = std::make_unique<LoopbackMeasurement>();
        m_measurement->setPause(0);
        m_settings = std::make_unique<MeasurementSettings>(m_measurement.get(),
                KIVClientInterface::getSessionBusClient("loopback"), MeasurementSettings::KeepSampleCounts);
        m_host = std::make_unique<uiutils::Host>();
        const QStringList names = m_services->serviceNames();
        QVERIFY(names.isEmpty() || m_host->start({{}, {}, {}, names}));
        m_engine = std::make_unique<QQmlApplicationEngine>();
        m_warnings.take();
        m_warnings.watch(m_engine.get());
        m_host->showTo(m_engine.get());
        m_engine->setInitialProperties({{"measurement", QVariant::fromValue(m_measurement.get())}});
        m_engine->load(QUrl("qrc:/uiutils/demo/Main.qml"));
        QVERIFY(!m_engine->rootObjects().isEmpty());
        m_window = qobject_cast<QQuickWindow*>(m_engine->rootObjects().constFirst());
        QVERIFY(m_window);
        m_report = m_window->property("report").value<LoopbackReport*>();
        QVERIFY(m_report);
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window, longWait));
    }

    void endProgram()
    {
        m_engine.reset();
        m_host.reset();
        m_settings.reset();
        m_measurement.reset();
        m_services.reset();
    }

    /// Files of the instrument.
    void put(const QString& path, const QByteArray& contents) { writeFile(m_root.path() + path, contents); }
    void removeReports()
    {
        QVERIFY(QDir(m_root.filePath("cust/public/reports")).removeRecursively());
        Q_EMIT m_report->reportFilesChanged();
    }

    kiv::embedded::EmbeddedService* service(const QString& id) const
    {
        return m_services->service(id.section(':', 2, 2));
    }

    /// The service's value.
    QVariant served(const QString& id) const { return service(id)->item(id)->getValue(); }

    /// The row of a setting on the settings page.
    QQuickItem* rowOf(const QString& id) const
    {
        return firstItem([&](const QQuickItem* item) {
            const auto* data = item->property("item").value<KivData*>();
            return data && data->getId() == id && item->property("changed").isValid();
        });
    }

    /// The control in that row.
    QQuickItem* fieldOf(const QString& id) const
    {
        const QList<QQuickItem*> items = itemsBelow(rowOf(id));
        const auto isControl = [](const QQuickItem* item) {
            return item->inherits("QQuickTextField") || item->inherits("QQuickComboBox");
        };
        return *std::find_if(items.begin(), items.end(), isControl);
    }

    bool isChanged(const QString& id) const { return rowOf(id)->property("changed").toBool(); }

    /// Whether the permitted values are shown as a warning.
    bool hasFailColor(const QString& id) const
    {
        const QList<QQuickItem*> items = itemsBelow(rowOf(id));
        return std::any_of(items.begin(), items.end(), [](const QQuickItem* item) {
            return item->inherits("QQuickText") && !textOf(item).isEmpty()
                    && item->property("color").value<QColor>() == QColor("#b3261e");
        });
    }

    /// Whether the settings page is scrolled so that the complete item is visible.
    bool isInSight(const QQuickItem* item) const
    {
        const auto* view = firstItem([](const QQuickItem* candidate) {
            return candidate->isVisible() && candidate->inherits("QQuickFlickable")
                    && candidate->property("contentHeight").toReal() > candidate->height();
        });
        const QRectF sight = view->mapRectToScene(QRectF(0, 0, view->width(), view->height()));
        return sight.contains(item->mapRectToScene(QRectF(0, 0, item->width(), item->height())));
    }

    void type(const QString& id, const QString& text)
    {
        QQuickItem* const field = fieldOf(id);
        field->forceActiveFocus();
        QVERIFY(QMetaObject::invokeMethod(field, "selectAll"));
        QTest::keyClick(m_window, Qt::Key_Delete);
        for (const QChar letter : text)
            QTest::sendKeyEvent(QTest::Click, m_window, Qt::Key_unknown, letter, Qt::NoModifier);
    }

    void press(const QString& words)
    {
        focusButton(words);
        QTest::keyClick(m_window, Qt::Key_Space);
    }

    void click(const QQuickItem* item)
    {
        QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier,
                item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint());
    }

    int shownTimes(const QString& words) const
    {
        const QList<QQuickItem*> texts = shownTexts();
        return int(std::count_if(
                texts.begin(), texts.end(), [&](const QQuickItem* text) { return textOf(text) == words; }));
    }

    void measure()
    {
        m_measurement->start();
        QTRY_COMPARE_WITH_TIMEOUT(m_measurement->state(), LoopbackMeasurement::Finished, longWait);
    }

    /// The unit's list has the most buttons.
    void saveOnBoth()
    {
        QVERIFY(stick()->plug());
        service(saveLocation)->setValue(saveLocation, 2);
        QVERIFY(QMetaObject::invokeMethod(m_window, "saveReport"));
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

    /// Layouts are settled when the page has been drawn.
    void waitForFrame()
    {
        QSignalSpy drawn(m_window, &QQuickWindow::frameSwapped);
        m_window->update();
        QVERIFY(drawn.wait(longWait));
    }

    void checkFits(const QQuickItem* text)
    {
        const QString words = textOf(text);
        QVERIFY2(!text->property("truncated").toBool(), qPrintable("cut off: " + words));
        if (isScrolled(text))
            return;
        const QRectF painted(0, 0, text->property("paintedWidth").toReal(), text->property("paintedHeight").toReal());
        const QSizeF room = text->size() + QSizeF(1, 1);
        QVERIFY2(painted.width() <= room.width() && painted.height() <= room.height(), qPrintable("too large for its room: " + words));
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

    QQuickItem* named(const QString& name) const
    {
        return firstItem([&](const QQuickItem* item) { return item->objectName() == name; });
    }

    UsbStick* stick() const
    {
        return firstItem([](const QQuickItem* item) {
            return item->property("report").isValid() && item->property("stick").isValid();
        })->property("stick").value<UsbStick*>();
    }

    QQuickItem* button(const QString& words) const
    {
        return firstItem([&](const QQuickItem* item) {
            return item->inherits("QQuickButton") && textOf(item) == words;
        });
    }

    /// The visible texts.
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

    const QString shippedServices = UIUTILS_SOURCE_DIR "/platform/reference/services";

    QTemporaryDir m_root;
    std::unique_ptr<QTemporaryDir> m_settingsFolder;
    QStringList m_serviceFolders {shippedServices};
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_services;
    std::unique_ptr<MeasurementSettings> m_settings;
    std::unique_ptr<uiutils::Host> m_host;
    std::unique_ptr<LoopbackMeasurement> m_measurement;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow* m_window = nullptr;
    LoopbackReport* m_report = nullptr;
    QmlWarnings m_warnings;
};

QTEST_MAIN(PagesTest)
#include "tst_pages.moc"
