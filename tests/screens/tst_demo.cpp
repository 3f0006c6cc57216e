#include "stage.h"

#include "demotypes.h"
#include "common/translations.h"
#include "files/fileutils.h"
#include "loopbackmeasurement.h"
#include "measurementsettings.h"
#include "qmlwarnings.h"
#include "ui_host/host.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <QQmlApplicationEngine>
#include <QQmlExpression>
#include <QQuickItem>
#include <QTemporaryDir>

using namespace uiutils::demo;

namespace {

KIVNotificationModelManager* notifications()
{
    return KIVNotificationModelManager::instance();
}

/// The item that is shown, of the rows of a list the first.
QQuickItem* itemNamed(QQuickItem* around, const QString& name)
{
    if (!around->isVisible())
        return nullptr;
    if (around->objectName().startsWith(name))
        return around;
    const QList<QQuickItem*> children = around->childItems();
    for (QQuickItem* child : children) {
        if (QQuickItem* const found = itemNamed(child, name))
            return found;
    }
    return nullptr;
}

} // namespace

/// All pages of the demo, and what comes over them.
class DemoScreensTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("UIUTILS_ROOT", m_root.path().toLocal8Bit());
        qputenv("QT_QUICK_CONTROLS_STYLE", "Default");
        registerDemoTypes();
        ScreenAudit::prepare();
        QCOMPARE(m_services.loadFolders({UIUTILS_SOURCE_DIR "/platform/reference/services"}), QStringList());
        m_measurement.setPause(0);
        m_measurement.setSamples(20);
        m_settings = std::make_unique<MeasurementSettings>(&m_measurement,
                KIVClientInterface::getSessionBusClient("loopback"), MeasurementSettings::KeepSampleCounts);
        QVERIFY(m_host.start({{}, {}, {}, m_services.serviceNames(), {uiutils::apps::translationsOf("examples")}}));
        m_warnings.watch(&m_engine);
        m_host.showTo(&m_engine);
        // Anything: its button is judged.
        m_engine.setInitialProperties({{"measurement", QVariant::fromValue(&m_measurement)}, {"inspector", QVariant::fromValue<QObject*>(this)}});
        m_engine.load(QUrl("qrc:/uiutils/demo/Main.qml"));
        QVERIFY(!m_engine.rootObjects().isEmpty());
        m_window = qobject_cast<QQuickWindow*>(m_engine.rootObjects().constFirst());
        QTRY_VERIFY(m_window->findChild<QObject*>("deskDrawer"));
        m_measurement.start();
        QTRY_COMPARE_WITH_TIMEOUT(m_measurement.state(), LoopbackMeasurement::Finished, 60000);
        QVERIFY(run("report.save()").toBool());
    }

    void pages()
    {
        QTRY_VERIFY(m_window->property("isComplete").toBool());
        const QStringList pages = m_window->property("pageNames").toStringList();
        QVERIFY(pages.size() > 10);
        judge(pages, [](const QString&) {});
    }

    /// What a page shows only at times, and what comes over it.
    void scenes()
    {
        const QMap<QString, std::function<void()>> scenes {
            {"desk", [this] { QMetaObject::invokeMethod(m_window->findChild<QObject*>("deskDrawer"), "open"); }},
            {"details", [this] { open("files"); click("report "); }},
            {"preview", [this] { preview(); }},
            {"problem", [this] { open("report"); enterLongName(); }},
            {"problem-left", [this] { open("report"); enterLongName(); itemNamed(m_window->contentItem(), "saveButton")->forceActiveFocus(); }},
            {"question", [this] { m_files.sendNotificationDeleteRequest(longFiles, {}); }},
            {"error", [this] { m_files.sendNotificationNotEnoughSpace(longFiles.section('\n', 0, 0), 1.5e9); }},
            {"notices", [this] { m_files.sendNotificationDriveFull("/mnt/usb"); notifications()->accept(); open("notifications"); }},
            {"away", [this] { m_services.service("loopback")->setReachable(false); open("setup"); }},
            {"review", [this] { change(); open("review"); }},
            {"saving", [this] { save(); }},
            {"refused job", [this] { change(); open("jobs"); click("job "); QVERIFY(run("session.jobs.problem !== ''").toBool()); }},
        };
        judge(scenes.keys(), [&](const QString& scene) {
            endScene();
            scenes[scene]();
        });
        endScene();
    }

    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

private:
    void judge(const QStringList& names, const Stage::Show& show)
    {
        Stage stage(&m_engine, m_window, names, [&](const QString& name) {
            if (m_window->property("pageNames").toStringList().contains(name))
                open(name);
            else
                show(name);
        });
        // No part of the instrument: it is for the mouse of a desktop, in the margin where no control is.
        stage.allow("AbstractButton deskHandle", "the desktop's");
        stage.judgeAll();
        QCOMPARE(stage.report(), 0);
    }

    void endScene()
    {
        m_save.reset();
        while (QQuickItem* const popup = uiutils::audit::topPopup(m_window)) {
            if (notifications()->currentDialog())
                notifications()->reject();
            else
                uiutils::audit::close(popup);
            QTRY_VERIFY(uiutils::audit::topPopup(m_window) != popup);
        }
        notifications()->clear();
        m_services.service("loopback")->setReachable(true);
        run("session.setup.revert()");
        run("session.jobs.problem = ''");
        if (QObject* const name = m_window->findChild<QObject*>("nameEntry"))
            QMetaObject::invokeMethod(name, "restore");
        open("home");
    }

    QVariant run(const QString& expression)
    {
        auto* const instrument = m_window->property("instrument").value<QQuickItem*>();
        return QQmlExpression(QQmlEngine::contextForObject(instrument), instrument, expression).evaluate();
    }

    void open(const QString& page)
    {
        QVariant shown;
        QVERIFY(QMetaObject::invokeMethod(m_window, "open", Q_RETURN_ARG(QVariant, shown), Q_ARG(QVariant, page)));
        QVERIFY2(shown.value<QQuickItem*>(), qPrintable(page));
    }

    void click(const QString& name)
    {
        QTRY_VERIFY(itemNamed(m_window->contentItem(), name));
        QVERIFY(QMetaObject::invokeMethod(itemNamed(m_window->contentItem(), name), "clicked"));
    }

    void change()
    {
        run("session.setup.enter(loopback_cfg_maximumRtt, loopback_cfg_maximumRtt.value + 1)");
        QTRY_COMPARE(run("session.setup.count").toInt(), 1);
    }

    void preview()
    {
        open("report");
        QTRY_VERIFY(m_window->findChild<QObject*>("previewDialog"));
        click("previewButton");
        const auto* const pages = m_window->findChild<QObject*>("previewDialog")->property("preview").value<QObject*>();
        QTRY_VERIFY(pages->property("pageCount").toInt() > 0 && !pages->property("busy").toBool());
    }

    /// A save that does not end.
    void save()
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick 2.15\nimport UiUtils.Controls 1.0\nItem { SaveProgress { delay: 0; report: QtObject {\n"
                          "property bool saving: true; property real progress: 0.42; property string title\n"
                          "function getSetting() { return { value: 'trunk-12-manhole-4-to-the-bridge-at-the-old-brewery-17' } } } } }",
                QUrl("qrc:/save.qml"));
        m_save.reset(qobject_cast<QQuickItem*>(component.beginCreate(m_engine.rootContext())));
        QVERIFY2(m_save, qPrintable(component.errorString()));
        m_save->setParentItem(m_window->contentItem());
        component.completeCreate();
        QTRY_VERIFY(uiutils::audit::topPopup(m_window));
    }

    void enterLongName()
    {
        auto* const field = itemNamed(itemNamed(m_window->contentItem(), "nameEntry"), "field");
        field->forceActiveFocus();
        field->setProperty("text", QString(300, 'x'));
        QMetaObject::invokeMethod(field, "textEdited");
        QMetaObject::invokeMethod(field, "accepted");
    }

    const QString longFiles = "/cust/public/reports/loopback/trunk-12-manhole-4-to-the-bridge-at-the-old-brewery-17.html\n"
                              "/cust/public/reports/loopback/trunk-12-manhole-4-to-the-bridge-at-the-old-brewery-17.pdf\n"
                              "/cust/public/reports/loopback/trunk-12-manhole-4-to-the-bridge-at-the-old-brewery-17.xml";
    QTemporaryDir m_root;
    kiv::embedded::EmbeddedBackend m_services;
    LoopbackMeasurement m_measurement;
    std::unique_ptr<MeasurementSettings> m_settings;
    uiutils::Host m_host;
    QmlWarnings m_warnings;
    QQmlApplicationEngine m_engine;
    QQuickWindow* m_window = nullptr;
    std::unique_ptr<QQuickItem> m_save;
    FileUtils m_files;
};

QTEST_MAIN(DemoScreensTest)
#include "tst_demo.moc"
