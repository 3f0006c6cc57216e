#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using kiv::embedded::EmbeddedBackend;

namespace {

bool writeFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
}

QByteArray oneItem(const QByteArray& item)
{
    return "{\"service\": \"s\", \"items\": [" + item + "]}";
}

} // namespace

class ServiceFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The files that ship, and the ones that the tests use, are the schema's first readers.
    void shippedFilesLoad_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QStringList>("services");
        QTest::newRow("shipped") << UIUTILS_SOURCE_DIR "/platform/reference/services"
                                 << QStringList {"basemgr", "loopback", "loopback_rtt", "loopback_throughput",
                                        "optical", "orb.base.workflow_manager_app"};
        QTest::newRow("of the tests") << UIUTILS_TEST_DATA_DIR "/services"
                                      << QStringList {"basemgr", "kinds", "orb.base.workflow_manager_app", "plots",
                                             "station"};
    }
    void shippedFilesLoad()
    {
        QFETCH(QString, folder);
        QFETCH(QStringList, services);
        EmbeddedBackend backend;
        const QStringList problems = backend.loadFolders({folder});
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join("\n")));
        QCOMPARE(backend.serviceNames(), services);
        for (const QString& service : services)
            QVERIFY(!backend.service(service)->itemIds().isEmpty());
    }

    /// A value that a screen could not give back would be a fault of the file.
    void shippedSettingsTakeTheirOwnValues()
    {
        EmbeddedBackend backend;
        backend.loadFolders({UIUTILS_SOURCE_DIR "/platform/reference/services"});
        QStringList refusals;
        int settings = 0;
        for (const QString& service : backend.serviceNames()) {
            KIVClientInterface* client = KIVClientInterface::getSessionBusClient(service);
            for (const QString& id : client->getItemIds(":config:")) {
                ++settings;
                if (!client->setItem(id, client->getItem(id)->getValue()))
                    refusals += client->getLastError();
            }
        }
        QCOMPARE(refusals, QStringList {"The calibration is set in the factory only."});
        QVERIFY(settings > 20);
    }

    void refusedFiles_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("place");
        QTest::newRow("empty") << QByteArray() << ":1:1: ";
        QTest::newRow("syntax") << QByteArray("{\n  \"service\": \"s\",\n  \"items\": [,]\n}") << ":3:14: ";
        QTest::newRow("root") << QByteArray("[]") << ":1:1: ";
        QTest::newRow("no service name") << QByteArray("{\"items\": []}") << ": /: ";
        QTest::newRow("items of the wrong kind") << QByteArray("{\"service\": \"s\", \"items\": {}}") << ": /items: ";
        QTest::newRow("unknown key") << QByteArray("{\"service\": \"s\", \"items\": [], \"itmes\": []}") << ": /";
        QTest::newRow("no id") << oneItem("{\"type\": \"bool\"}") << ": /items/0: ";
        QTest::newRow("unknown type") << oneItem("{\"id\": \":config:a:\", \"type\": \"float\"}") << ": /items/0/type: ";
        QTest::newRow("value of another type")
                << oneItem("{\"id\": \":config:a:\", \"type\": \"bool\"},"
                           "{\"id\": \":config:b:\", \"type\": \"double\", \"value\": \"1\"}")
                << ": /items/1/value: ";
        QTest::newRow("number beyond its type")
                << oneItem("{\"id\": \":config:a:\", \"type\": \"int\", \"value\": 2147483648}") << ": /items/0/value: ";
        QTest::newRow("element of another type")
                << oneItem("{\"id\": \":config:a:stringARRAY:\", \"type\": \"stringARRAY\", \"value\": [\"x\", 1]}")
                << ": /items/0/value/1: ";
        QTest::newRow("fraction") << oneItem("{\"id\": \":config:a:\", \"type\": \"uint\", \"value\": 1.5}")
                                  << ": /items/0/value: ";
        QTest::newRow("category") << oneItem("{\"id\": \":setting:a:\", \"type\": \"bool\"}") << ": /items/0/id: ";
        QTest::newRow("no closing colon") << oneItem("{\"id\": \":config:a\", \"type\": \"bool\"}") << ": /items/0/id: ";
        QTest::newRow("huge id") << oneItem("{\"id\": \":config:" + QByteArray(200'000, 'a') + ":\", \"type\": \"bool\"}")
                                 << ": /items/0/id: ";
        QTest::newRow("array mark without the type")
                << oneItem("{\"id\": \":config:a:stringARRAY:\", \"type\": \"bool\"}") << ": /items/0: ";
        QTest::newRow("type without the array mark")
                << oneItem("{\"id\": \":config:a:\", \"type\": \"doubleARRAY\"}") << ": /items/0: ";
        QTest::newRow("id twice") << oneItem("{\"id\": \":config:a:\", \"type\": \"bool\"},"
                                             "{\"id\": \":config:a:\", \"type\": \"bool\"}")
                                  << ": /items/1: ";
        // The reasons that the schema cannot give.
        const auto item = [](const char* id, const char* type, const char* rest) {
            return oneItem(QByteArray("{\"id\": \"") + id + "\", \"type\": \"" + type + "\", " + rest + "}");
        };
        const QByteArray members = "\"members\": [{\"name\": \"a\", \"type\": \"int\"}]";
        QTest::newRow("minimum of a bool") << item(":config:a:", "bool", "\"minimum\": 1") << ": /items/0: ";
        QTest::newRow("minimum that is no int") << item(":config:a:", "int", "\"minimum\": 1.5")
                                                << ": /items/0/minimum: ";
        QTest::newRow("no value between the limits")
                << item(":config:a:", "double", "\"minimum\": 2, \"maximum\": 1") << ": /items/0: ";
        QTest::newRow("limit of another kind") << item(":config:a:", "int", "\"maximum\": \"9\"")
                                               << ": /items/0/maximum: ";
        QTest::newRow("choices of a double")
                << item(":config:a:", "double", "\"choices\": []") << ": /items/0: ";
        QTest::newRow("choice without a name")
                << item(":config:a:", "int", "\"choices\": [{\"value\": 1}]") << ": /items/0/choices/0: ";
        QTest::newRow("two choices of one value")
                << item(":config:a:", "int",
                           "\"choices\": [{\"value\": 1, \"name\": \"x\"}, {\"value\": 1, \"name\": \"y\"}]")
                << ": /items/0/choices/1: ";
        QTest::newRow("choice that a uint cannot be")
                << item(":config:a:", "uint", "\"choices\": [{\"value\": -1, \"name\": \"x\"}]")
                << ": /items/0/choices/0: ";
        QTest::newRow("quality") << item(":result:a:", "int", "\"quality\": \"good\"") << ": /items/0/quality: ";
        QTest::newRow("applicable") << item(":result:a:", "int", "\"applicable\": 1") << ": /items/0/applicable: ";
        QTest::newRow("record without members") << item(":config:a:", "aggregate", "\"value\": {}") << ": /items/0: ";
        QTest::newRow("members of an int") << item(":config:a:", "int", members.constData()) << ": /items/0: ";
        QTest::newRow("member of another type")
                << item(":config:a:", "aggregate", (members + ", \"value\": {\"a\": \"1\"}").constData())
                << ": /items/0/value/a: ";
        QTest::newRow("missing member")
                << item(":config:a:", "aggregate", (members + ", \"value\": {}").constData()) << ": /items/0/value: ";
        QTest::newRow("row of a table")
                << item(":config:a:", "listAggregate", (members + ", \"value\": [{\"a\": 1}, {\"a\": true}]").constData())
                << ": /items/0/value/1/a: ";
        QTest::newRow("action among the settings") << item(":config:a:", "action", "\"label\": \"x\"") << ": /items/0: ";
        QTest::newRow("setting among the actions") << item(":action:a:", "int", "\"label\": \"x\"") << ": /items/0: ";
        QTest::newRow("action with a value") << item(":action:a:", "action", "\"value\": 1") << ": /items/0: ";
        QTest::newRow("setting that does something")
                << item(":config:a:", "int", "\"does\": {}") << ": /items/0: ";
        QTest::newRow("action sets what is not there")
                << item(":action:a:", "action", "\"does\": {\"set\": {\":result:x:\": 1}}") << ": /items/0/does/set: ";
        QTest::newRow("action sets another type")
                << item(":action:a:", "action",
                           "\"does\": {\"set\": {\":result:b:\": \"one\"}}},{\"id\": \":result:b:\", \"type\": \"int\"")
                << ": /items/0/does/set: ";
        QTest::newRow("endless delay") << QByteArray("{\"service\": \"s\", \"items\": [], \"delay\": 1e9}") << ": /delay: ";
        QTest::newRow("mount point that is none")
                << QByteArray("{\"service\": \"s\", \"items\": [], \"mounted\": [\"/mnt/usb/\", \"sda1\"]}")
                << ": /mounted/1: ";
        QTest::newRow("deep") << QByteArray(3000, '[') << ":1:";
    }
    void refusedFiles()
    {
        QFETCH(QByteArray, contents);
        QFETCH(QString, place);
        QTemporaryDir dir;
        const QString path = dir.filePath("bad.service.json");
        QVERIFY(writeFile(path, contents));
        QVERIFY(writeFile(dir.filePath("good.service.json"), "{\"service\": \"good\", \"items\": []}"));

        EmbeddedBackend backend;
        const QStringList problems = backend.loadFolders({dir.path()});
        QCOMPARE(problems.size(), 1);
        QVERIFY2(problems.first().startsWith(path + place), qPrintable(problems.first()));
        QVERIFY(problems.first().size() > path.size() + place.size());
        QCOMPARE(backend.serviceNames(), QStringList {"good"});
    }

    void folders()
    {
        QTemporaryDir dir;
        QVERIFY(writeFile(dir.filePath("a.service.json"), "{\"service\": \"same\", \"items\": []}"));
        QVERIFY(writeFile(dir.filePath("b.service.json"), "{\"service\": \"same\", \"items\": []}"));
        QVERIFY(writeFile(dir.filePath("other.json"), "not looked at"));
        EmbeddedBackend backend;
        const QStringList problems = backend.loadFolders({dir.filePath("missing"), dir.path()});
        QCOMPARE(problems.size(), 2);
        QVERIFY2(problems.at(0).startsWith(dir.filePath("missing")), qPrintable(problems.at(0)));
        QVERIFY2(problems.at(1).startsWith(dir.filePath("b.service.json")) && problems.at(1).contains("a.service.json"),
                qPrintable(problems.at(1)));

        qputenv("KIV_SERVICES", "/one::/two");
        QCOMPARE(EmbeddedBackend::foldersFromEnvironment(), (QStringList {"/one", "/two"}));
        qputenv("KIV_SERVICES", "");
        QCOMPARE(EmbeddedBackend::foldersFromEnvironment(), QStringList());
    }
};

QTEST_GUILESS_MAIN(ServiceFilesTest)
#include "tst_servicefiles.moc"
