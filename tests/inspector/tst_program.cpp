#include "columns.h"
#include "files.h"
#include "qmlwarnings.h"

#include "inspector/inspectorpanel.h"
#include "service/kivdata.h"
#include "service/manifest.h"
#include "ui_host/host.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>

using uiutils::inspector::InspectorPanel;

/// The program as users start it.
class InspectorProgramTest : public QObject
{
    Q_OBJECT

private:
    Outcome run(QStringList arguments) const
    {
        QProcess process;
        arguments += {"--root", m_folder.filePath("root")};
        process.start(UIUTILS_INSPECTOR_PROGRAM, arguments);
        return ended(process);
    }

    QTemporaryDir m_folder;
    const QString m_services = UIUTILS_SOURCE_DIR "/tests/qml/services";

private Q_SLOTS:
    void commandLines_data()
    {
        addColumns<QStringList, int, QString>();
        QTest::newRow("help") << QStringList {"--help"} << 0 << "KIV_BUS";
        QTest::newRow("a page") << QStringList {"page.qml"} << 2 << "uiutils-qml shows pages";
        QTest::newRow("no such theme") << QStringList {"--theme", "pink"} << 2 << "--theme needs";
        QTest::newRow("no such screen") << QStringList {"--screen", "big"} << 2 << "--screen needs a size";
        QTest::newRow("empty folder name") << QStringList {"--services", ""} << 2 << "--services needs a name";
        QTest::newRow("no such folder") << QStringList {"--services", "/nowhere"} << 1 << "/nowhere";
        QTest::newRow("no such language") << QStringList {"--services", m_services, "--language", "xx"} << 1 << "no language \"xx\"";
    }
    void commandLines()
    {
        const auto [arguments, exitCode, words] = currentRow<QStringList, int, QString>();
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.exitCode, exitCode);
        QVERIFY2((outcome.output + outcome.errors).contains(words), qPrintable(outcome.errors));
    }

    void servicesOfOtherProcesses()
    {
        qputenv("KIV_PLATFORM", "bus");
        QProcess daemon;
        daemon.start(KIVD_PROGRAM, {"--services", m_services, "--root", m_folder.filePath("kivd")});
        QVERIFY(daemon.waitForStarted());
        {
            uiutils::Host host;
            QVERIFY(host.start({{}, m_folder.filePath("root")}));
            QTRY_VERIFY_WITH_TIMEOUT(host.serviceNames().contains("field"), 60000);
            QQuickWindow window;
            QmlWarnings warnings;
            InspectorPanel panel(&host);
            warnings.watch(panel.engine());
            host.showTo(panel.engine());
            QQuickItem* const item = panel.load();
            QVERIFY2(item, qPrintable(panel.error()));
            item->setParentItem(window.contentItem());
            item->setSize(QSizeF(500, 700));
            window.resize(500, 700);
            window.show();

            const auto shown = [item](const QString& name) {
                const auto parts = item->findChildren<QQuickItem*>(name);
                return std::any_of(parts.begin(), parts.end(), [](const QQuickItem* part) { return part->isVisible(); });
            };
            // It can be edited; hands stay off, and words say why.
            item->setProperty("chosen", QVariant::fromValue<QObject*>(Manifest::getKivData(":config:field:setup:name:")));
            QTRY_VERIFY(shown("itemEntry"));
            QVERIFY(!shown("readyHand"));
            QVERIFY(item->findChild<QQuickItem*>("hands")->property("note").toString().contains("lives in another"));
            item->findChild<QQuickItem*>("inspectorTabs")->setProperty("currentIndex", 1);
            QTRY_VERIFY(shown("inspectorServices"));
            QVERIFY(!shown("slow field"));
            QCOMPARE(warnings.take(), QStringList());
        }
        daemon.terminate();
        QVERIFY(daemon.waitForFinished(60000));
    }
};

QTEST_MAIN(InspectorProgramTest)
#include "tst_program.moc"
