#include "files.h"

#include "modules/modulefiles.h"
#include "modules/moduleplan.h"
#include "modules/moduletexts.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace uiutils;
using modules::Module;
using modules::Plan;
using names::ItemFacts;

namespace {

ItemFacts item(const QString& service, const QString& id, const QString& member)
{
    ItemFacts facts;
    facts.service = service;
    facts.tag = names::tagOf(service);
    facts.id = id;
    facts.name = member.section('_', 1);
    facts.memberName = member;
    facts.type = "double";
    return facts;
}

ItemFacts choice(const QString& member, const QVector<names::Choice>& choices)
{
    ItemFacts facts = item("optical", ":config:optical:" + member + ":", member);
    facts.choices = choices;
    facts.isEnumeration = true;
    return facts;
}

QStringList membersOf(const Module& module)
{
    QStringList names;
    for (const modules::Member& member : module.members) {
        names += member.facts.memberName;
        for (const modules::Constant& constant : member.constants)
            names += QString("%1=%2").arg(constant.name).arg(constant.value);
    }
    return names;
}

QString singleton(const ItemFacts& facts)
{
    return QString::fromUtf8(modules::singletonText(modules::plan({facts}).modules.value(0)));
}

} // namespace

/// What modules of services are called, what they have, and how their files are written.
class ModulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void moduleNames()
    {
        const QVector<QPair<QString, QString>> modules {{"optical", "Optical"}, {"workflow_manager_app", "WorkflowManagerApp"},
                {"loopback_rtt", "LoopbackRtt"}, {"otdrX2", "OtdrX2"}, {"OTDR", "OTDR"}, {"_x", "X"}, {QString::fromUtf8("größe_ä"), QString::fromUtf8("GrößeÄ")},
                {QString::fromUtf8("оптика"), QString::fromUtf8("Оптика")},
                // No name in QML, or none that may begin a type's: these have no capitals.
                {"3gpp", ""}, {"a-b", ""}, {"a b", ""}, {"", ""}, {"_", ""}, {"_3", ""}, {QString::fromUtf8("光学"), ""}, {QString::fromUtf8("בדיקה"), ""},
                {QString::fromUtf8("a\xF0\x9D\x94\xB8"), ""}, {"a\"; b", ""}};
        for (const auto& [tag, name] : modules)
            QCOMPARE(modules::moduleName(tag), name);
    }

    void whatHasAProperty()
    {
        const Plan plan = modules::plan({item("com.example.optical", ":config:optical:a:range:", "cfg_range"),
                item("com.example.optical", ":config:optical:b:range:", "cfg_range"),
                item("com.example.optical", ":config:optical:max-level:", "cfg_max-level"), item("com.example.optical", ":other:optical:x:", ""),
                item("org.example.optical", ":result:optical:loss:", "res_loss"), item("com.example.2nd", ":result:2nd:x:", "res_x"),
                item("com.example.work_flow", ":result:work_flow:x:", "res_x"), item("com.example.workFlow", ":result:workFlow:y:", "res_y"), item("com.example.workflow", ":result:workflow:z:", "res_z")});
        QCOMPARE(plan.modules.size(), 2);
        QCOMPARE(plan.modules.at(0).name, QString("Optical"));
        QCOMPARE(membersOf(plan.modules.at(0)), (QStringList {"cfg_range", "res_loss"}));
        // As under the context name, the last one counts.
        QCOMPARE(plan.modules.at(0).members.at(0).facts.id, QString(":config:optical:b:range:"));
        QCOMPARE(plan.modules.at(1).name, QString("WorkFlow"));
        const QString notes = plan.notes.join('\n');
        QVERIFY(notes.contains(":config:optical:max-level:") && notes.contains("optical: Later items have the names of these: :config:optical:a:range:."));
        QVERIFY(notes.contains("com.example.optical, org.example.optical have one beginning"));
        QVERIFY(!notes.contains(":other:") && !notes.contains(":b:range:"));
        QCOMPARE(plan.problems.size(), 3);
        QVERIFY(plan.problems.at(0).startsWith("com.example.2nd: QML cannot spell"));
        // Which of the two has the module does not depend on the order in which they come.
        QVERIFY(plan.problems.at(1).startsWith("com.example.work_flow: Its module would be called WorkFlow, and that of \"workFlow\" is called WorkFlow."));
        // A disk that does not distinguish capitals holds one of them.
        QVERIFY(plan.problems.at(2).contains("would be called Workflow, and that of \"workFlow\" is called WorkFlow."));
    }

    void choicesThatCanBeSpelled()
    {
        const Plan plan = modules::plan({choice("cfg_mode", {{0, "Auto", ""}, {-1, "Off", ""}, {2, "by hand", ""}, {3, "1310nm", ""}, {4, "", ""}, {5, "Auto", ""}, {6, "x", ""}}),
                item("optical", ":config:optical:mode_x:", "cfg_mode_x")});
        QCOMPARE(membersOf(plan.modules.at(0)), (QStringList {"cfg_mode", "cfg_mode_Auto=0", "cfg_mode_Off=-1", "cfg_mode_1310nm=3", "cfg_mode_x"}));
    }

    void noMoreThanQmlCanNumber()
    {
        QVector<ItemFacts> many;
        for (int i = 0; i < 16001; ++i)
            many += item("optical", QString(":config:optical:a%1:").arg(i), QString("cfg_a%1").arg(i));
        const Plan plan = modules::plan(many);
        QCOMPARE(plan.modules.at(0).members.size(), 16000);
        QCOMPARE(plan.problems.size(), 1);
        QVERIFY(plan.problems.at(0).contains("16000"));
    }

    void aPropertyIsDocumented()
    {
        ItemFacts range = item("optical", ":config:optical:range:", "cfg_range");
        range.label = "Range";
        range.unit = "km";
        range.minimum = 0.5;
        range.maximum = 260.0;
        QVERIFY(singleton(range).contains("    /// Range\n    /// Setting, a number, 0.5 to 260 km\n    /// :config:optical:range:\n"
                                          "    readonly property KivData cfg_range: null\n"));
        range.kind = ItemFacts::Table;
        QVERIFY(singleton(range).contains("/// Setting, a table"));
        range.kind = ItemFacts::Aggregate;
        QVERIFY(singleton(range).contains("/// Setting, an aggregate"));
        ItemFacts text = item("optical", ":result:optical:text:", "res_text");
        text.type = "std::string";
        text.maximum = 20;
        QVERIFY(singleton(text).contains("/// Result, read-only, a text, at most 20 characters\n"));
        QVERIFY(singleton(choice("cfg_mode", {{0, "Auto", "Automatic"}, {1, "Manual", "Manual"}})).contains("/// Setting, one of Automatic (0), Manual (1)\n"));
    }

    /// Services are not trusted: what they say stays a comment.
    void aLabelCannotLeaveItsComment()
    {
        ItemFacts facts = choice("cfg_mode", {{0, "Auto", QString::fromUtf8("A\nQtObject { }\r\u2028x: 1\u2029*/ y\u0085z")}});
        facts.label = QString::fromUtf8("L\nImage { source: \"http://127.0.0.1\" }\u2028Q\u2029R\v\f\u202e \x1b[31m");
        facts.unit = "%1\n}";
        facts.id += "\nx";
        const QString text = singleton(facts);
        QVERIFY(!text.contains(QChar(0x202E)) && !text.contains(QChar(0x1B)));
        const QStringList lines = text.split(QRegularExpression("[\n\r\u2028\u2029\u0085\v\f]"));
        // Mark, pragma, import, empty, root, tag, empty, three lines of documentation, two properties, brace.
        QCOMPARE(lines.size(), 14);
        for (int i = 7; i < 10; ++i)
            QVERIFY(lines.at(i).startsWith("    /// "));
        QVERIFY(lines.at(11).startsWith("    readonly property int cfg_mode_Auto: 0 // A QtObject { } x: 1 */ y"));
    }

    void onlyWhatHasChangedIsWritten()
    {
        const QTemporaryDir folder;
        const modules::Place place {folder.filePath("imports"), "Test.Instrument"};
        const QString qmldir = folder.filePath("imports/Test/Instrument/Optical/qmldir");
        const QString singleton = folder.filePath("imports/Test/Instrument/Optical/Optical.qml");
        Plan plan = modules::plan({item("optical", ":config:optical:range:", "cfg_range")});
        QCOMPARE(modules::write(plan.modules, place), QStringList());
        QVERIFY(contentsOf(qmldir).contains("module Test.Instrument.Optical\nsingleton Optical 1.0 Optical.qml\n"));
        QCOMPARE(namesIn(folder.filePath("imports/Test/Instrument/Optical")), (QStringList {"Optical.qml", "plugins.qmltypes", "qmldir"}));
        plan = modules::plan({item("optical", ":config:optical:range:", "cfg_range"), item("optical", ":result:optical:loss:", "res_loss")});
        const QDateTime before = QDateTime::currentDateTime().addDays(-1);
        for (const QString& path : {qmldir, singleton}) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(before, QFileDevice::FileModificationTime));
        }
        QCOMPARE(modules::write(plan.modules, place), QStringList());
        QVERIFY(contentsOf(singleton).contains("res_loss"));
        QVERIFY(QFileInfo(singleton).lastModified() > before.addSecs(1));
        QVERIFY(QFileInfo(qmldir).lastModified() < before.addSecs(1));
    }

    void nobodyElsesFilesAreReplaced()
    {
        const QTemporaryDir folder;
        const modules::Place place {folder.path(), "Instrument"};
        const QByteArray theirs = "module Instrument.Optical\nplugin optical\n";
        const QString qmldir = writeFile(folder.filePath("Instrument/Optical/qmldir"), theirs);
        const Plan plan = modules::plan({item("optical", ":config:optical:range:", "cfg_range"), item("supply", ":config:supply:range:", "cfg_range")});
        const QStringList problems = modules::write(plan.modules, place);
        QCOMPARE(problems.size(), 1);
        QVERIFY(problems.at(0).startsWith(qmldir + " was not made by uiutils-describe"));
        QCOMPARE(contentsOf(qmldir), theirs);
        // Not half a module either; the others are written.
        QCOMPARE(namesIn(folder.filePath("Instrument/Optical")), QStringList {"qmldir"});
        QCOMPARE(namesIn(folder.filePath("Instrument/Supply")).size(), 3);
        // Where a folder stands in the way, nothing is written either.
        QVERIFY(QDir(folder.path()).mkpath("Instrument/Supply2/qmldir"));
        QCOMPARE(modules::write(modules::plan({item("supply2", ":config:supply2:range:", "cfg_range")}).modules, place).size(), 1);
        QCOMPARE(namesIn(folder.filePath("Instrument/Supply2")), QStringList {"qmldir"});
    }

    void resourcesNameEveryFile()
    {
        const QTemporaryDir folder;
        const modules::Place place {folder.filePath("a & b"), "Instrument"};
        const QString path = folder.filePath("modules.qrc");
        const Plan plan = modules::plan({item("optical", ":config:optical:range:", "cfg_range")});
        QCOMPARE(modules::write(plan.modules, place), QStringList());
        QCOMPARE(modules::writeResources(plan.modules, place, path), QString());
        const QString text = QString::fromUtf8(contentsOf(path));
        QVERIFY(text.contains("prefix=\"/qt-project.org/imports\""));
        QCOMPARE(text.count("<file alias=\"Instrument/Optical/"), 3);
        QVERIFY(text.contains("/a &amp; b/Instrument/Optical/qmldir</file>"));
        writeFile(path, "<RCC/>\n");
        QVERIFY(modules::writeResources(plan.modules, place, path).contains("was not made by"));
        QCOMPARE(contentsOf(path), QByteArray("<RCC/>\n"));
    }
};

QTEST_GUILESS_MAIN(ModulesTest)
#include "tst_modules.moc"
