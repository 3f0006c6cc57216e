#include "qmlwarnings.h"

#include "ui_host/host.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QtTest>

/// A program with modules of its services: they are in the program, so its pages find them wherever it runs.
class AddedServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pagesOfEveryEngineFindThem()
    {
        const QTemporaryDir root;
        uiutils::Host host;
        QVERIFY(host.start({QStringList(UIUTILS_SOURCE_DIR "/platform/reference/services"), root.path()}));
        for (int i = 0; i < 2; ++i) {
            QmlWarnings warnings;
            QQmlEngine engine;
            warnings.watch(&engine);
            host.showTo(&engine);
            QQmlComponent component(&engine);
            component.setData("import QtQml 2.15\nimport Our.Unit.Optical 1.0\nimport Our.Unit.WorkflowManagerApp 1.0\n"
                              "QtObject { property bool isSame: Optical.cfg_mode === optical_cfg_mode && Optical.cfg_mode.value === i\n"
                              "           property int i: Optical.cfg_mode_Auto\n"
                              "           property string name: WorkflowManagerApp.service.name }",
                    QUrl());
            const std::unique_ptr<QObject> page(component.create());
            QVERIFY2(page, qPrintable(component.errorString()));
            QCOMPARE(page->property("isSame"), QVariant(true));
            QCOMPARE(page->property("name"), QVariant("orb.base.workflow_manager_app"));
            QCOMPARE(warnings.take(), QStringList());
        }
    }
};

QTEST_GUILESS_MAIN(AddedServicesTest)
#include "tst_addedservices.moc"
