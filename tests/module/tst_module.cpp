#include "core/userdata.h"
#include "document/reporttemplate.h"
#include "module/uiutilsmodule.h"

#include <kiv/kivnotificationmodelmanager.h>

#include <QJsonObject>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QtTest>

#include <memory>

/// The types as a page uses them: through an import and through the shared library.
class ModuleTest : public QObject
{
    Q_OBJECT

    /// The description of one type, or an empty text.
    static QString componentText(const QString& name)
    {
        QFile file(UIUTILS_QML_DIR "/UiUtils/plugins.qmltypes");
        file.open(QIODevice::ReadOnly);
        const QRegularExpression component("\n    Component \\{\n        name: \"(?:uiutils::)?" + name + "\"\n.*?\n    \\}",
                QRegularExpression::DotMatchesEverythingOption);
        return component.match(QString::fromUtf8(file.readAll())).captured();
    }

    static bool mentions(const QString& text, const QString& member)
    {
        return text.contains(QRegularExpression("\\n        \\w+ \\{\\s+name: \"" + member + '"'));
    }

    /// Evaluates `text` on a page with the module's import.
    static std::unique_ptr<QObject> made(QQmlEngine& engine, const QByteArray& text)
    {
        QQmlComponent component(&engine);
        component.setData("import QtQml 2.15\nimport UiUtils 1.0\n" + text, QUrl::fromLocalFile("/tmp/"));
        std::unique_ptr<QObject> object(component.create());
        if (!object)
            qFatal("%s", qPrintable(component.errorString()));
        return object;
    }

private Q_SLOTS:
    void initTestCase() { uiutils::registerTypes(); }

    /// The module's description for tools, compared with the written description of the classes. A cross build has
    /// none.
    void descriptionForTools()
    {
        if (!UIUTILS_HAS_QMLTYPES)
            QSKIP("The module was built for another machine.");
        QDirIterator files(UIUTILS_TEST_DATA_DIR "/contract", {"*.txt"});
        QVERIFY(files.hasNext());
        while (files.hasNext()) {
            QFile table(files.next());
            const QString name = files.fileInfo().baseName(), text = componentText(name);
            // Pages do not know the class that shows them.
            if (name == "Host")
                continue;
            const QString exported = name == "KIVNotificationModelManager" ? "Notifications" : name;
            QVERIFY2(text.contains(QString("exports: [\"UiUtils/%1 1.0\"]").arg(exported)), qPrintable(name));
            QVERIFY(table.open(QIODevice::ReadOnly));
            const QString lines = table.readAll();
            const bool isMade = !text.contains("isCreatable: false") && !text.contains("isSingleton: true");
            QVERIFY2(lines.contains(", made by pages\n") == isMade, qPrintable(name));
            auto members = QRegularExpression("^(?:enum|(?:method|property|signal|slot) \\S+) (\\w+)(\\(\\))?",
                    QRegularExpression::MultilineOption).globalMatch(lines);
            while (members.hasNext()) {
                const QStringList found = members.next().capturedTexts();
                const QString member = found.at(1);
                // A property's own notifier is implied when it has no parameters.
                const bool isNotifier = found.size() > 2 && member.endsWith("Changed") && mentions(text, member.chopped(7));
                QVERIFY2(mentions(text, member) || isNotifier, qPrintable(name + " " + member));
            }
        }
        QVERIFY(componentText("QQmlPropertyMap").contains("UiUtils/QMLAggregate 1.0"));
    }

    void aPageBuildsAReport()
    {
        QQmlEngine engine;
        const auto object = made(engine, R"(ReportTemplate {
                property TableRows rows: TableRows {}
                Component.onCompleted: {
                    beginReport("page"); setKey("flag", true); addAttribute("unit", 3.5); beginTable("t", "Table")
                    addRow("a", "First", 1, { "unit": "dB", "align": Alignment.Right, "status": Status.Pass }); endTable()
                    for (let i = 0; i < 12; ++i)
                        rows.addRow("b", "Row", i, { "unit": "m" })
                    setKey("collected", rows.count); beginTable("u", "More"); addRows(rows); endTable(); endReport()
                }
            })");
        const QJsonObject root = qobject_cast<ReportTemplate*>(object.get())->object();
        QCOMPARE(root.value("flag").toString() + root.value("attr_unit").toString(), QString("true3.5"));
        QCOMPARE(root.value("collected"), QJsonValue("12"));
        QCOMPARE(root.value("table_1").toObject().value("row_21").toObject().value("cell_0").toObject(),
                QJsonObject({{"attr_unit", "m"}, {"label", "11"}, {"tag", "b"}, {"title", "Row"}}));
        QCOMPARE(root.value("table_0").toObject().value("row_1").toObject().value("cell_0").toObject(),
                QJsonObject({{"attr_align", "2"}, {"attr_status", "16"}, {"attr_unit", "dB"}, {"label", "1"}, {"tag", "a"}, {"title", "First"}}));
    }

    /// What QML can pass in place of a map of texts, and which of two overloads that selects.
    void aPageAsksForFiles()
    {
        QQmlEngine engine;
        const auto object = made(engine, R"(FileUtils {
                property bool roomForBytes: checkDriveSpaceForFile(9e18, "/")
                property bool roomForFile: checkDriveSpaceForFile("/no such file", Qt.resolvedUrl(".").toString().slice(7))
                property var answers: []
                onAccepted: answers.push("yes " + notification.value("Filename") + notification.value("step"))
                onRejected: answers.push("no " + notification.value("Filename") + notification.value("step"))
                function ask() {
                    sendNotificationDeleteRequest("/mnt/usb/a", { step: 2, note: "x" })
                    answers.push(Notifications.currentDialog.longLabel)
                    Notifications.accept()
                    sendNotificationDeleteRequest("/mnt/usb/b", {}); Notifications.reject()
                    sendNotificationOverwriteRequest("", { step: "3", Filename: "own" }); Notifications.accept()
                }
            })");
        QVERIFY(object->property("roomForFile").toBool());
        QVERIFY(!object->property("roomForBytes").toBool());
        KIVNotificationModelManager::instance()->accept();
        QVERIFY(QMetaObject::invokeMethod(object.get(), "ask"));
        QCOMPARE(object->property("answers").toStringList(),
                (QStringList {"Delete File", "yes /mnt/usb/a2", "no /mnt/usb/bundefined", "yes own3"}));
    }

    /// The objects that all pages share belong to no engine: pages beside each other, and after each other, follow them
    /// without a word in the log.
    void enginesShareObjects()
    {
        const QByteArray page = R"(QtObject {
                property string seen: UserData.getData("word") + Languages.current + UiDataContainer.objectName
                        + Notifications.objectName
                property Connections heard: Connections {
                    target: UserData
                    function onSignalDataChanged(key, value) { seen = value }
                }
            })";
        static QStringList said;
        said.clear();
        const auto before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { said += text; });
        const auto restore = qScopeGuard([=] { qInstallMessageHandler(before); });
        auto first = std::make_unique<QQmlEngine>();
        auto second = std::make_unique<QQmlEngine>();
        auto shownFirst = made(*first, page);
        const auto shownSecond = made(*second, page);
        UserData::getInstance()->setData("word", "both");
        QCOMPARE(shownFirst->property("seen").toString(), QString("both"));
        QCOMPARE(shownSecond->property("seen").toString(), QString("both"));
        shownFirst.reset();
        first.reset();
        QQmlEngine third;
        const auto shownThird = made(third, page);
        UserData::getInstance()->setData("word", "later");
        QCOMPARE(shownSecond->property("seen").toString(), QString("later"));
        QCOMPARE(shownThird->property("seen").toString(), QString("later"));
        QCOMPARE(said, QStringList());
    }

    /// What the application has chosen itself.
    void contextOfTheApplicationStays()
    {
        QQmlEngine engine, other;
        QQmlContext own(engine.rootContext());
        QQmlEngine::setContextForObject(UserData::getInstance(), &own);
        QTest::ignoreMessage(QtWarningMsg, "QQmlEngine::setContextForObject(): Object already has a QQmlContext");
        made(other, "QtObject { property var x: UserData }");
        QCOMPARE(QQmlEngine::contextForObject(UserData::getInstance()), &own);
    }
};

QTEST_GUILESS_MAIN(ModuleTest)
#include "tst_module.moc"
