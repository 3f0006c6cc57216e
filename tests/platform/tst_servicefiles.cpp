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
        QTest::newRow("syntax") << QByteArray("{\n  \"service\": \"s\",\n  \"items\": [,]\n}") << ":3:14: ";
        QTest::newRow("huge id") << "{\"service\": \"s\", \"items\": [{\"id\": \":config:" + QByteArray(200'000, 'a')
                        + ":\", \"type\": \"bool\"}]}" << ": /items/0/id: ";
        QTest::newRow("deep") << QByteArray(3000, '[') << ":1:";
        QFile table(UIUTILS_TEST_DATA_DIR "/refused/services.txt");
        QVERIFY(table.open(QIODevice::ReadOnly));
        table.readLine();
        while (!table.atEnd()) {
            const QStringList columns = QString::fromUtf8(table.readLine()).chopped(1).split(" | ");
            QCOMPARE(columns.size(), 3);
            QTest::newRow(qPrintable(columns.at(0))) << columns.at(2).toUtf8() << columns.at(1);
        }
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
