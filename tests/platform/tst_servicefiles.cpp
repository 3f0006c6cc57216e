#include "columns.h"
#include "files.h"
#include "jsonschema_p.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QJsonDocument>
#include <QJsonObject>

using kiv::embedded::EmbeddedBackend;

namespace {

QJsonObject objectIn(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

} // namespace

class ServiceFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The installed files and those of the tests conform to the schema.
    void shippedFilesLoad_data()
    {
        addColumns<QString, QStringList>();
        QTest::newRow("shipped") << UIUTILS_SOURCE_DIR "/platform/reference/services"
                                 << QStringList {"basemgr", "jobs", "loopback", "loopback_rtt", "loopback_throughput",
                                        "optical", "orb.base.workflow_manager_app", "unit"};
        QTest::newRow("of the tests") << UIUTILS_TEST_DATA_DIR "/services"
                                      << QStringList {"basemgr", "kinds", "orb.base.workflow_manager_app", "plots",
                                             "station"};
    }
    void shippedFilesLoad()
    {
        const auto [folder, services] = currentRow<QString, QStringList>();
        EmbeddedBackend backend;
        const QStringList problems = backend.loadFolders({folder});
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join("\n")));
        QCOMPARE(backend.serviceNames(), services);
        for (const QString& service : services)
            QVERIFY(!backend.service(service)->itemIds().isEmpty());
    }

    /// Files that say what a shipped one says are loaded without a look at the schema, and no others.
    void shippedFilesConform()
    {
        const QJsonObject schema = objectIn(UIUTILS_SOURCE_DIR "/docs/service-file.schema.json");
        QVERIFY(!schema.isEmpty());
        const QDir folder(UIUTILS_SOURCE_DIR "/platform/reference/services");
        const QStringList files = folder.entryList({"*.service.json"});
        QVERIFY(!files.isEmpty());
        QTemporaryDir changed;
        for (const QString& name : files) {
            QJsonObject service = objectIn(folder.filePath(name));
            QCOMPARE(kiv::embedded::schemaViolation(schema, service), QString());
            QCOMPARE(service, objectIn(":/uiutils/services/" + name));
            service.insert("unknown", 1);
            writeFile(changed.filePath(name), QJsonDocument(service).toJson());
        }
        EmbeddedBackend backend;
        QCOMPARE(backend.loadFolders({changed.path()}).size(), files.size());
        QCOMPARE(backend.serviceNames(), QStringList());
    }

    /// A screen must be able to write back every value, or the file is wrong.
    void shippedSettingsTakeTheirOwnValues()
    {
        EmbeddedBackend backend;
        QCOMPARE(backend.loadFolders({UIUTILS_SOURCE_DIR "/platform/reference/services"}), QStringList());
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
        QCOMPARE(refusals, QStringList {"The calibration can only be set at the factory."});
        QVERIFY(settings > 20);
    }

    void rejectedFiles_data()
    {
        addColumns<QByteArray, QString>();
        QTest::newRow("syntax") << QByteArray("{\n  \"service\": \"s\",\n  \"items\": [,]\n}") << ":3:14: ";
        QTest::newRow("huge id") << "{\"service\": \"s\", \"items\": [{\"id\": \":config:" + QByteArray(200'000, 'a')
                        + ":\", \"type\": \"bool\"}]}" << ": /items/0/id: ";
        QTest::newRow("deep") << QByteArray(3000, '[') << ":1:";
        for (const QStringList& row : tableIn("/rejected/services.txt"))
            QTest::newRow(qPrintable(row.at(0))) << row.at(2).toUtf8() << row.at(1);
    }
    void rejectedFiles()
    {
        const auto [contents, place] = currentRow<QByteArray, QString>();
        QTemporaryDir dir;
        const QString path = writeFile(dir.filePath("bad.service.json"), contents);
        writeFile(dir.filePath("good.service.json"), "{\"service\": \"good\", \"items\": []}");

        EmbeddedBackend backend;
        const QStringList problems = backend.loadFolders({dir.path()});
        QCOMPARE(problems.size(), 1);
        QVERIFY2(problems.first().startsWith(path + place), qPrintable(problems.first()));
        QVERIFY(problems.first().size() > path.size() + place.size());
        QCOMPARE(backend.serviceNames(), QStringList {"good"});
    }

    /// The place, the item and where to ask, and nothing that a terminal would obey.
    void whatContradictsTheSchema()
    {
        const auto problemOf = [](const QByteArray& id) {
            QTemporaryDir dir;
            const QString path = writeFile(dir.filePath("bad.service.json"),
                    "{\"service\": \"s\", \"items\": [{\"id\": \"" + id + "\", \"type\": \"int\", \"label\": 5}]}");
            return EmbeddedBackend().loadFolders({dir.path()}).value(0).remove(path);
        };
        const QString words = ": a service file may not say this here; uiutils-check tells what it may";
        QCOMPARE(problemOf(":config:s:a:"), ": /items/0/label" + words + " [:config:s:a:]");
        QCOMPARE(problemOf(":config:s:\\u001b[2J:"), ": /items/0/label" + words);
    }

    void folders()
    {
        QTemporaryDir dir;
        for (const char* name : {"a.service.json", "b.service.json"})
            writeFile(dir.filePath(name), "{\"service\": \"same\", \"items\": []}");
        writeFile(dir.filePath("other.json"), "not looked at");
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
