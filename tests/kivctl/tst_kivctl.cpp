#include "columns.h"
#include "servicesonbus.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>

namespace {

const QString program = UIUTILS_KIVCTL_PROGRAM;
const QString count = ":config:station:setup:count:";
const QString level = ":config:station:setup:level_3:";
const QString state = ":result:station:state:";
// What would colour a terminal, as a text of two ways to begin a sequence.
const QString hostileText = QString::fromUtf8("a\tb\x1b[31mc\u009b1md\u202e");

QString valueOf(const QString& id)
{
    return run({"get", id}).output.trimmed();
}

QJsonDocument jsonOf(const QStringList& arguments)
{
    return QJsonDocument::fromJson(run(arguments).output);
}

/// A line as soon as it is there.
QByteArray nextLine(QProcess& process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(60000))
            return "no line";
    }
    return process.readLine();
}

void signalTo(const QProcess& process, int signal)
{
    ::kill(pid_t(process.processId()), signal);
}

} // namespace

/// The program as scripts call it, with services of another process on a bus that nobody else knows.
class KivctlTest : public QObject
{
    Q_OBJECT

private:
    /// The last of the services to be published is there when it returns.
    void startServices()
    {
        QProcess watching;
        watching.start(program, {"watch", state});
        m_services.start({m_folder.path()});
        QVERIFY(nextLine(watching).startsWith(state.toUtf8()));
        watching.terminate();
        QCOMPARE(ended(watching).exitCode, 0);
    }

    QTemporaryDir m_folder;
    ServicesOnBus m_services;

private Q_SLOTS:
    void initTestCase()
    {
        if (!m_services.startBus())
            QSKIP("There is no dbus-daemon");
        const QJsonObject item {{"id", ":result:hostile:text:"}, {"type", "std::string"}, {"label", hostileText}, {"value", hostileText}};
        const QJsonObject action {{"id", ":action:hostile:endless:"}, {"type", "action"}, {"does", QJsonObject {{"delay", 600'000}}}};
        writeFile(m_folder.filePath("hostile.service.json"),
                QJsonDocument(QJsonObject {{"service", "hostile"}, {"items", QJsonArray {item, action}}}).toJson());
    }
    void init()
    {
        if (m_services.process().state() == QProcess::NotRunning)
            startServices();
    }

    void readsAndRefuses_data()
    {
        addColumns<QStringList, int, QString, QString>();
        const QString setup = ":config:station:setup:";
        QTest::newRow("nothing") << QStringList {} << 2 << "" << "No command";
        QTest::newRow("unknown command") << QStringList {"frob"} << 2 << "" << "\"frob\"";
        QTest::newRow("too few") << QStringList {"set", count} << 2 << "" << "kivctl set ID VALUE";
        QTest::newRow("too many") << QStringList {"dump", "a", "b"} << 2 << "" << "kivctl dump SERVICE";
        QTest::newRow("option") << QStringList {"--colour", "list"} << 2 << "" << "colour";
        QTest::newRow("timeout") << QStringList {"list", "--timeout", "0"} << 2 << "" << "--timeout needs";
        QTest::newRow("services") << QStringList {"services"} << 0
                                  << "basemgr\t20\nhostile\t2\nkinds\t9\norb.base.workflow_manager_app\t3\nplots\t5\nstation\t23\n" << "";
        QTest::newRow("values") << QStringList {"get", setup + "mode:", setup + "power:", setup + "note:", setup + "on:",
                setup + "hosts:stringARRAY:", setup + "limits:", ":result:station:gain:"} << 0
                                << "1\n1.5\n\ntrue\n[\"a\"]\n{\"lower\":-1,\"upper\":2.5}\n1500\n" << "";
        QTest::newRow("list") << QStringList {"list", setup + "l"} << 0
                              << setup + "level_3:\tint\t5\tdB\tLevel\n" + setup
                        + "limits:\taggregate\t{\"lower\":-1,\"upper\":2.5}\t\tLimits\n" + setup + "locked:\tint\t1\t\tLocked\n" << "";
        QTest::newRow("control characters") << QStringList {"get", ":result:hostile:text:"} << 0
                                            << "a\\tb\\u001B[31mc\\u009B1md\\u202E\n" << "";
        QTest::newRow("none of two") << QStringList {"get", count, ":config:station:setup:cuont:"} << 3 << "" << count;
        QTest::newRow("last word") << QStringList {"get", "config:points"} << 3 << "" << setup + "points:doubleARRAY:";
        QTest::newRow("far away") << QStringList {"get", ":x:"} << 3 << "" << "\":x:\".\n";
        QTest::newRow("prefix") << QStringList {"list", ":nothing:"} << 3 << "" << ":nothing:";
        QTest::newRow("service") << QStringList {"dump", "statoin"} << 3 << "" << "Nearest: station.";
        QTest::newRow("range") << QStringList {"set", level, "-11"} << 1 << "" << "-10 to 10 dB";
        QTest::newRow("no number") << QStringList {"set", count, "x"} << 1 << "" << "not a number";
        QTest::newRow("no JSON") << QStringList {"set", setup + "points:doubleARRAY:", "1, 2"} << 1 << "" << "takes JSON";
        QTest::newRow("no setting") << QStringList {"set", state, "x"} << 1 << "" << "State cannot be set";
        QTest::newRow("answer") << QStringList {"action", ":action:station:start:", "\u00c4\tb"} << 0 << "Started \u00c4\\tb (%2).\n" << "";
        QTest::newRow("failure") << QStringList {"action", ":action:station:fail:"} << 1 << "" << "No fiber is connected.";
        QTest::newRow("unlisted") << QStringList {"action", ":action:station:saveconfig:", "Mine,1"} << 0
                                  << "The configuration was saved as \"Mine\".\n" << "";
        QTest::newRow("no action") << QStringList {"action", ":action:station:strat:"} << 3 << "" << ":action:station:start:";
        QTest::newRow("slow") << QStringList {"action", ":action:station:slow:"} << 0 << "Done.\n" << "";
        QTest::newRow("too slow") << QStringList {"-t", "2000", "action", ":action:hostile:endless:"} << 1 << "" << "within 2000 ms";
        QTest::newRow("no file") << QStringList {"batch", "/nowhere"} << 1 << "" << "/nowhere cannot be opened";
    }
    void readsAndRefuses()
    {
        const auto [arguments, exitCode, output, words] = currentRow<QStringList, int, QString, QString>();
        const Outcome outcome = run(arguments);
        QCOMPARE(QString(outcome.output), output);
        QVERIFY2(outcome.errors.contains(words) && outcome.errors.isEmpty() == (exitCode == 0), qPrintable(outcome.errors));
        QCOMPARE(outcome.exitCode, exitCode);
    }

    void json()
    {
        const QByteArray bytes = run({"list", "--json", ":result:hostile:"}).output;
        QVERIFY2(!bytes.contains('\x1b') && !bytes.contains("\u009b") && !bytes.contains("\u202e"), bytes);
        QCOMPARE(QJsonDocument::fromJson(bytes)[0]["value"].toString(), hostileText);

        const QJsonValue mode = jsonOf({"get", ":config:station:setup:mode:", "-j"})[0];
        QCOMPARE(mode["value"], QJsonValue(1));
        QCOMPARE(mode["text"].toString(), QString("Automatic"));
        QCOMPARE(mode["choices"][2]["applicable"], QJsonValue(false));
        QCOMPARE(jsonOf({"action", "--json", ":action:station:start:", "1"})["reply"].toString(), QString("Started 1 (%2)."));
        QCOMPARE(jsonOf({"services", "--json"})[5]["items"].toInt(), 23);
    }

    void sets()
    {
        QCOMPARE(run({"set", level, "-5"}).exitCode, 0);
        QCOMPARE(valueOf(level), QString("-5"));
        QCOMPARE(run({"set", ":config:station:setup:mode:", "Manual"}).exitCode, 0);
        QCOMPARE(valueOf(":config:station:setup:mode:"), QString("-2"));
        QCOMPARE(run({"set", ":config:station:setup:points:doubleARRAY:", "[3, 4.5]"}).exitCode, 0);
        QCOMPARE(valueOf(":config:station:setup:points:doubleARRAY:"), QString("[3,4.5]"));
        // The services have stored it when they end by SIGTERM.
        m_services.end();
        startServices();
        QCOMPARE(valueOf(level), QString("-5"));
    }

    void batches()
    {
        const QString before = valueOf(level);
        Outcome outcome = run({"batch", "-"}, "{\"count\": 30, \"level:3\": 99}");
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.contains("Nothing was set") && outcome.errors.contains("99"), qPrintable(outcome.errors));
        QVERIFY(valueOf(count) != QString("30"));

        // By id and by name, of two services, in a text beyond ASCII.
        const QByteArray all = "{\":config:station:setup:count:\": 31, \"level:3\": 1, \":config:basemgr:system:userInfo_name:\": \"\u00c3\u00bc\"}";
        outcome = run({"batch", writeFile(m_folder.filePath("batch.json"), all)});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        QCOMPARE(run({"get", count, level, ":config:basemgr:system:userInfo_name:"}).output, QByteArray("31\n1\n\u00c3\u00bc\n"));

        outcome = run({"batch", "-"}, "{\"count\": 32, \"cuont\": 1}");
        QCOMPARE(outcome.exitCode, 3);
        QVERIFY2(outcome.errors.contains(count), qPrintable(outcome.errors));
        QCOMPARE(run({"batch", "-"}, "[1]").exitCode, 1);
        QCOMPARE(valueOf(count), QString("31"));
    }

    void dumpAndLoad()
    {
        QCOMPARE(run({"set", count, "40"}).exitCode, 0);
        const QByteArray dumped = run({"dump", "station"}).output;
        const QJsonObject settings = QJsonDocument::fromJson(dumped).object();
        QCOMPARE(settings.keys().filter(":config:station:").size(), settings.size());
        QCOMPARE(settings[":config:station:setup:locked:"].toInt(), 1);

        QCOMPARE(run({"set", count, "41"}).exitCode, 0);
        // Settings that cannot be set now are in the file as well.
        Outcome outcome = run({"load", "station", "-"}, dumped);
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        QCOMPARE(run({"dump", "station"}).output, dumped);
        QCOMPARE(run({"load", "station", "-"}, dumped).exitCode, 0);

        outcome = run({"load", "station", "-"}, "{\"count\": 42, \"locked\": 2}");
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.contains("The laser is on."), qPrintable(outcome.errors));
        QCOMPARE(valueOf(count), QString("40"));
        QCOMPARE(run({"load", "basemgr", "-"}, dumped).exitCode, 3);
    }

    void watches()
    {
        QProcess watching;
        watching.start(program, {"watch", state, "--json"});
        const auto next = [&watching] { return QJsonDocument::fromJson(nextLine(watching)); };
        QCOMPARE(next()["service"].toString(), QString("station"));
        QCOMPARE(run({"action", ":action:station:start:", "once"}).exitCode, 0);
        QCOMPARE(next()["value"].toString(), QString("runs once"));
        m_services.process().kill();
        QCOMPARE(next()["gone"], QJsonValue(true));
        m_services.process().waitForFinished();
        startServices();
        QCOMPARE(next()["value"].toString(), QString("idle"));
        signalTo(watching, SIGINT);
        const Outcome outcome = ended(watching);
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(outcome.errors, QString());
    }

    /// Services of the program itself move too.
    void watchesWithoutABus()
    {
        QTemporaryDir folder;
        writeFile(folder.filePath("w.service.json"), R"({ "service": "w", "items": [ { "id": ":result:w:a:", "type": "int",
                "value": 0, "moves": { "as": "ramp", "from": 1, "to": 9, "period": 200, "every": 20 } } ] })");
        QProcess watching;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("KIV_SIMULATION", "on");
        watching.setProcessEnvironment(environment);
        watching.start(program, {"watch", ":result:w:", "--services", folder.path(), "--root", folder.filePath("root")});
        const QByteArray first = nextLine(watching);
        const QByteArray second = nextLine(watching);
        QVERIFY2(first.startsWith(":result:w:a:\t") && second.startsWith(":result:w:a:\t") && first != second,
                first + second + watching.readAllStandardError());
        signalTo(watching, SIGINT);
        QCOMPARE(ended(watching).exitCode, 0);
    }

    void endsWithItsReader()
    {
        QProcess watching;
        watching.start("bash", {"-c", "\"$1\" watch \"$2\" | head -n 1; echo ${PIPESTATUS[0]}", "bash", program, state});
        const Outcome outcome = ended(watching);
        QCOMPARE(outcome.output, state.toUtf8() + "\tidle\t\t\n0\n");
        QCOMPARE(outcome.errors, QString());
    }

    void oneServiceStandsStill()
    {
        writeFile(m_folder.filePath("aside/a.service.json"), R"({"service": "aside", "items": [{"id": ":result:aside:a:", "type": "int"}]})");
        QProcess aside;
        QProcess watching;
        watching.start(program, {"watch", ":result:aside:"});
        aside.start(UIUTILS_KIVD_PROGRAM, {"-s", m_folder.filePath("aside"), "--root", m_folder.filePath("aside")});
        QCOMPARE(nextLine(watching), QByteArray(":result:aside:a:\t\t\t\n"));
        signalTo(aside, SIGSTOP);
        // Who needs another one does not wait for it.
        const int found = run({"-t", "600000", "get", count}).exitCode;
        const Outcome listed = run({"-t", "2000", "services"});
        signalTo(aside, SIGCONT);
        aside.terminate();
        QCOMPARE(ended(aside).exitCode, 0);
        QCOMPARE(nextLine(watching), QByteArray(":result:aside:a:\t\t\tgone\n"));
        watching.terminate();
        QCOMPARE(ended(watching).exitCode, 0);
        QCOMPARE(found, 0);
        QCOMPARE(listed.exitCode, 4);
        QVERIFY2(listed.output.contains("station\t23") && !listed.output.contains("aside"), listed.output);
    }

    void servicesAway()
    {
        signalTo(m_services.process(), SIGSTOP);
        const Outcome outcome = run({"-t", "50", "get", count});
        signalTo(m_services.process(), SIGCONT);
        QCOMPARE(outcome.exitCode, 4);
        QVERIFY2(outcome.errors.contains("within 50 ms"), qPrintable(outcome.errors));
        m_services.end();
        for (const QStringList& arguments : {QStringList {"list"}, QStringList {"get", count}, QStringList {"dump", "station"}}) {
            const Outcome alone = run(arguments);
            QCOMPARE(alone.exitCode, 4);
            QVERIFY2(alone.errors.contains("no service on the bus"), qPrintable(alone.errors));
        }
        const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
        const Outcome busless = run({"watch"});
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QCOMPARE(busless.exitCode, 4);
        QVERIFY2(busless.errors.contains("bus cannot be reached"), qPrintable(busless.errors));
    }

    void withoutABus()
    {
        const auto own = [this](const QStringList& arguments, const QString& root = "own", const QByteArray& input = {}) {
            return run(QStringList {"-s", UIUTILS_TEST_DATA_DIR "/services", "--root", m_folder.filePath(root)} + arguments, input);
        };
        QCOMPARE(own({"set", count, "50"}).exitCode, 0);
        QCOMPARE(own({"batch", "-"}, "own", "{\"level:3\": 4}").exitCode, 0);
        QCOMPARE(own({"get", count, level}).output, QByteArray("50\n4\n"));
        QVERIFY(valueOf(count) != QString("50"));
        writeFile(m_folder.filePath("file"), "");
        const Outcome outcome = own({"set", count, "51"}, "file/root");
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.contains("station.state.json"), qPrintable(outcome.errors));
        QCOMPARE(own({"replay", "a"}).exitCode, 2);
        qputenv("KIV_PLATFORM", "embedded");
        const int exitCode = run({"replay", "a"}).exitCode;
        qunsetenv("KIV_PLATFORM");
        QCOMPARE(exitCode, 2);
    }

    void completes_data()
    {
        addColumns<QString, QString>();
        QTest::newRow("commands") << "l" << "list load";
        QTest::newRow("after the last colon") << "set :config:station:setup:co" << "count:";
        QTest::newRow("settings only") << "set :r" << "";
        QTest::newRow("no further than they go") << "set :config:station:setup:count: 1" << "";
        QTest::newRow("every item") << "-t 100 get :result:station:state: :result:station:g" << "gain:";
        QTest::newRow("actions") << "action :action:station:s" << "start: slow:";
        QTest::newRow("services") << "dump s" << "station";
        QTest::newRow("own services") << "-s " UIUTILS_TEST_DATA_DIR "/services dump h" << "";
        QTest::newRow("options") << "--t" << "--timeout";
    }
    void completes()
    {
        const auto [typed, offered] = currentRow<QString, QString>();
        QProcess bash;
        bash.start("bash", {"-c", "set -u; source \"$1\"; COMP_WORDS=(\"$2\"); COMP_LINE=\"kivctl $3\"; COMP_POINT=${#COMP_LINE};"
                                  " _kivctl; echo \"${COMPREPLY[*]}\"",
                "bash", UIUTILS_SOURCE_DIR "/apps/kivctl/kivctl.bash-completion", program, typed});
        const Outcome outcome = ended(bash);
        QCOMPARE(outcome.errors, QString());
        QStringList words = QString(outcome.output).split(' ', Qt::SkipEmptyParts).replaceInStrings("\n", "");
        words.removeAll("");
        words.sort();
        QStringList expected = offered.split(' ', Qt::SkipEmptyParts);
        expected.sort();
        QCOMPARE(words, expected);
    }
};

QTEST_GUILESS_MAIN(KivctlTest)
#include "tst_kivctl.moc"
