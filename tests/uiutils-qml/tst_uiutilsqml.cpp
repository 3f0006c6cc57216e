#include "columns.h"
#include "files.h"

#include <QImage>

/// The program as users start it.
class UiUtilsQmlTest : public QObject
{
    Q_OBJECT

private:
    Outcome run(QStringList arguments) const
    {
        QProcess process;
        arguments += {"--root", m_folder.filePath("root")};
        process.start(UIUTILS_QML_PROGRAM, arguments);
        return ended(process);
    }

    QString page(const QByteArray& body) const
    {
        return writeFile(m_folder.filePath("page.qml"), "import QtQuick 2.15\nimport UiUtils 1.0\n" + body);
    }

    QTemporaryDir m_folder;
    const QString m_services = UIUTILS_SOURCE_DIR "/tests/qml/services";

private Q_SLOTS:
    void commandLines_data()
    {
        addColumns<QStringList, int, QString>();
        QTest::newRow("help") << QStringList {"--help"} << 0 << "--services";
        QTest::newRow("nothing") << QStringList {} << 2 << "Name one page";
        QTest::newRow("two pages") << QStringList {"a.qml", "b.qml"} << 2 << "Name one page";
        QTest::newRow("unknown option") << QStringList {"--colour", "a.qml"} << 2 << "colour";
        QTest::newRow("list and page") << QStringList {"--list", "a.qml"} << 2 << "--list takes no page";
        QTest::newRow("empty folder name") << QStringList {"--services", "", "a.qml"} << 2 << "--services needs";
        QTest::newRow("no such page") << QStringList {"/nowhere/a.qml"} << 1 << "There is no page /nowhere/a.qml";
        QTest::newRow("no such folder") << QStringList {"--services", "/nowhere", "--list"} << 1 << "/nowhere";
    }
    void commandLines()
    {
        const auto [arguments, exitCode, words] = currentRow<QStringList, int, QString>();
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.exitCode, exitCode);
        QVERIFY2((outcome.output + outcome.errors).contains(words), qPrintable(outcome.errors));
    }

    void listsTheItems()
    {
        const Outcome outcome = run({"--list", "--services", m_services});
        QCOMPARE(outcome.exitCode, 0);
        const QStringList lines = QString(outcome.output).split('\n');
        QVERIFY2(lines.contains("field_cfg_name\tstd::string\tFiber 7"), qPrintable(outcome.output));
        QVERIFY(lines.contains("field_cfg_mode\tint\tAutomatic"));
    }

    void aPageUsesTheItems()
    {
        const QString file = page("Item { Component.onCompleted: { console.log(field_cfg_name.value, services.field.name);"
                                  " field_cfg_locked.value = 5; console.log(field_cfg_locked.error); Qt.exit(7) } }");
        const Outcome outcome = run({file, "--services", m_services});
        QVERIFY2(outcome.exitCode == 7, qPrintable(QString::number(outcome.exitCode) + outcome.errors));
        QVERIFY2(outcome.errors.contains("Fiber 7 field"), qPrintable(outcome.errors));
        QVERIFY(outcome.errors.contains("The key is turned."));
    }

    void aServiceWhoseNameQmlCannotSpell()
    {
        const QString file = page("Item { Component.onCompleted: { Qt.exit(workflow_manager_app_cfg_activeWorkOrderId.value =="
                                  " 'WO-1' && services['orb.base.workflow_manager_app'] ? 7 : 8) } }");
        const Outcome outcome = run({file, "--services", UIUTILS_TEST_DATA_DIR "/services"});
        QVERIFY2(outcome.exitCode == 7, qPrintable(QString::number(outcome.exitCode) + outcome.errors));
    }

    void takesAPicture()
    {
        const QString picture = m_folder.filePath("page.png");
        const Outcome outcome = run({page("Rectangle { width: 60; height: 40; color: field_cfg_on.value ? 'red' : 'blue' }"),
                "--services", m_services, "--grab", picture});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        const QImage image(picture);
        QCOMPARE(image.size(), QSize(60, 40));
        QCOMPARE(image.pixelColor(30, 20), QColor(Qt::blue));
    }

    void aFaultyPage()
    {
        const Outcome outcome = run({page("Item { colour: 'red' }"), "--services", m_services});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.contains("page.qml:3") && outcome.errors.contains("colour"), qPrintable(outcome.errors));
        QCOMPARE(run({page("QtObject {}"), "--services", m_services}).exitCode, 1);
    }
};

QTEST_GUILESS_MAIN(UiUtilsQmlTest)
#include "tst_uiutilsqml.moc"
