#include "columns.h"
#include "files.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/filesystemusage.h>
#include <kiv/kivclientinterface.h>

#include <limits>

using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;
using kiv::embedded::ItemDescription;
using kiv::embedded::ServiceDescription;

namespace {

const QString stationFile = QStringLiteral(UIUTILS_TEST_DATA_DIR "/services/station.service.json");
const QString prefix = QStringLiteral(":config:station:setup:");
const QString levelId = prefix + "level_3:";

/// A run of the program: a back end with the station, whose state is in a folder.
class Run
{
public:
    explicit Run(const QString& folder)
    {
        m_backend = std::make_unique<EmbeddedBackend>();
        m_backend->setStateFolder(folder);
        QString problem;
        m_isUp = m_backend->loadFile(stationFile, &problem);
        problems = problem.split('\n', Qt::SkipEmptyParts);
    }

    bool isUp() const { return m_isUp; }
    EmbeddedBackend* backend() const { return m_backend.get(); }
    EmbeddedService* service() const { return m_backend->service("station"); }
    KIVClientInterface* client() const { return KIVClientInterface::getSessionBusClient("station"); }
    QVariant value(const QString& id) const { return client()->getItem(id)->getValue(); }

    QStringList problems;

private:
    std::unique_ptr<EmbeddedBackend> m_backend;
    bool m_isUp = false;
};

QJsonObject readJson(const QString& path)
{
    return QJsonDocument::fromJson(contentsOf(path)).object();
}

ItemDescription item(const QString& id, const QString& type, const QVariant& value)
{
    ItemDescription description;
    description.id = id;
    description.type = type;
    description.value = value;
    return description;
}

} // namespace

class ServiceStateTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;

    QString folder() const { return m_dir->filePath("made/when/needed"); }
    QString stateFile() const { return folder() + "/station.state.json"; }

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }

    void valuesSurvive_data()
    {
        addColumns<QString, QVariant>();
        QTest::newRow("smallest step") << "power" << QVariant(std::nextafter(1.0, 2.0));
        QTest::newRow("third") << "power" << QVariant(1.0 / 3.0);
        QTest::newRow("denormal") << "power" << QVariant(std::numeric_limits<double>::denorm_min());
        QTest::newRow("int") << "level_3" << QVariant(-10);
        QTest::newRow("largest uint") << "count" << QVariant(std::numeric_limits<uint>::max());
        QTest::newRow("bool") << "on" << QVariant(false);
        QTest::newRow("text") << "note" << QVariant(QString::fromUtf8("\"quoted\"\n\tµ \xf0\x9f\x94\x8c"));
        QTest::newRow("empty text") << "note" << QVariant(QString(""));
        QTest::newRow("choice") << "mode" << QVariant(-2);
        QTest::newRow("texts") << "hosts:stringARRAY" << QVariant(QStringList {"x", "yz"});
        QTest::newRow("numbers") << "points:doubleARRAY" << QVariant(QVariantList {-1e300, 0.1, 2.0});
        QTest::newRow("no numbers") << "points:doubleARRAY" << QVariant(QVariantList());
        QTest::newRow("record") << "limits" << QVariant(QVariantMap {{"lower", -2147483647 - 1}, {"upper", 0.1}});
    }
    void valuesSurvive()
    {
        const auto [name, value] = currentRow<QString, QVariant>();
        const QString id = prefix + name + ":";
        {
            const Run run(folder());
            QVERIFY(run.isUp());
            QVERIFY(run.client()->setItem(id, value));
            QTRY_VERIFY(QFile::exists(stateFile()));
        }
        const Run run(folder());
        QVERIFY2(run.problems.isEmpty(), qPrintable(run.problems.join("\n")));
        QCOMPARE(run.value(id), value);
        QCOMPARE(run.value(id).userType(), value.userType());
        // QVariant compares doubles with a tolerance.
        if (value.userType() == QMetaType::Double)
            QVERIFY(run.value(id).toDouble() == value.toDouble());
    }

    void onlyValuesFromClientsAreStored()
    {
        {
            const Run run(folder());
            QVERIFY(run.service()->setValue(levelId, 9));
            QVERIFY(run.service()->setValue(prefix + "power:", 9));
            QCoreApplication::processEvents();
            QVERIFY(!QFile::exists(stateFile()));
            QVERIFY(run.client()->setItem(levelId, 1));
            // From now on the service's own changes of this setting are stored too, and so are those of an action.
            QVERIFY(run.service()->setValue(levelId, 2));
            QVERIFY(run.client()->invokeAction(":action:station:start:"));
        }
        QCOMPARE(readJson(stateFile()).value("values").toObject(),
                (QJsonObject {{levelId, 2}, {prefix + "count:", 1}}));
        QCOMPARE(readJson(stateFile()).value("service").toString(), QString("station"));
        QFile::remove(stateFile());
        const Run run(QString {});
        QVERIFY(run.client()->setItem(levelId, 1));
        QCoreApplication::processEvents();
        QVERIFY(!QFile::exists(stateFile()));
    }

    void manyChangesMakeOneFile()
    {
        const Run run(folder());
        for (int i = 0; i < 10; ++i)
            QVERIFY(run.client()->setItem(levelId, i));
        QVERIFY(!QFile::exists(stateFile()));
        // What a killed write leaves.
        writeFile(folder() + "/.uiutils-left.tmp", "half");
        QTRY_VERIFY(QFile::exists(stateFile()));
        QCOMPARE(readJson(stateFile()).value("values").toObject(), (QJsonObject {{levelId, 9}}));
        QCOMPARE(namesIn(folder()), QStringList {"station.state.json"});

        // A withdrawal does not wait for the event loop, and the client finds the next service.
        KIVClientInterface* client = run.client();
        QSignalSpy lists(client, &KIVClientInterface::itemsChanged);
        QVERIFY(client->setItem(levelId, 3));
        QVERIFY(run.backend()->withdraw("station"));
        QVERIFY(!run.backend()->withdraw("station"));
        QCOMPARE(readJson(stateFile()).value("values").toObject(), (QJsonObject {{levelId, 3}}));
        QVERIFY(!client->isValid() && !run.client());
        QCOMPARE(lists.size(), 1);
        QVERIFY(run.backend()->loadFile(stationFile));
        QCOMPARE(lists.size(), 2);
        QCOMPARE(run.client(), client);
        QCOMPARE(run.value(levelId), QVariant(3));
    }

    void whatDoesNotFitIsReportedAndStays()
    {
        const QJsonObject old {{levelId, 99}, {prefix + "power:", "high"}, {prefix + "mode:", 7}, {prefix + "gone:", 1},
                {":result:station:loss:", 1}, {prefix + "title:", "Kept"}};
        writeFile(stateFile(), QJsonDocument(QJsonObject {{"values", old}}).toJson());
        {
            const Run run(folder());
            QVERIFY(run.isUp());
            QCOMPARE(run.problems.size(), 5);
            for (const QString& problem : run.problems)
                QVERIFY2(problem.startsWith(stateFile() + ": :"), qPrintable(problem));
            QCOMPARE(run.value(levelId), QVariant(5));
            QCOMPARE(run.value(prefix + "title:"), QVariant("Kept"));
            QVERIFY(run.client()->setItem(levelId, 1));
        }
        QJsonObject expected = old;
        expected.insert(levelId, 1);
        QCOMPARE(readJson(stateFile()).value("values").toObject(), expected);

        // An item that is added later gets its value, and one that is removed leaves it in the file.
        Run run(folder());
        QVERIFY(run.service()->addItem(item(prefix + "gone:", "int", 0)));
        QCOMPARE(run.value(prefix + "gone:"), QVariant(1));
        QVERIFY(run.client()->setItem(prefix + "gone:", 2));
        QVERIFY(run.service()->removeItem(prefix + "gone:"));
        QVERIFY(run.backend()->withdraw("station"));
        expected.insert(prefix + "gone:", 2);
        QCOMPARE(readJson(stateFile()).value("values").toObject(), expected);
    }

    void nanAndInfinityAreNotStored()
    {
        {
            const Run run(folder());
            QVERIFY(run.client()->setItem(prefix + "power:", 3));
            QVERIFY(run.service()->setValue(prefix + "power:", qQNaN()));
            QVERIFY(run.client()->setItem(levelId, 1));
        }
        QCOMPARE(readJson(stateFile()).value("values").toObject(), (QJsonObject {{levelId, 1}}));
    }

    void damagedFiles_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << QByteArray("{\"values\": {\":config:station:set");
        QTest::newRow("no object") << QByteArray("[]");
        QTest::newRow("no values") << QByteArray("{\"values\": []}");
        QTest::newRow("bytes") << QByteArray("\0\xff\xfe", 3);
    }
    void damagedFiles()
    {
        QFETCH(QByteArray, contents);
        for (const char* name : {"/station.state.json.damaged", "/station.state.json.damaged-2"}) {
            writeFile(stateFile(), contents);
            const Run run(folder());
            QVERIFY(run.isUp());
            QCOMPARE(run.problems.size(), 1);
            QVERIFY2(run.problems.first().startsWith(stateFile()) && run.problems.first().contains(name),
                    qPrintable(run.problems.first()));
            QVERIFY(QFile::exists(folder() + name));
            QCOMPARE(contentsOf(folder() + name), contents);
            QVERIFY(!QFile::exists(stateFile()));
            QVERIFY(run.client()->setItem(levelId, 1));
            QTRY_VERIFY(QFile::exists(stateFile()));
        }
    }

    void aFolderThatCannotBeWritten()
    {
        // A file in the place of the folder stops root too.
        writeFile(m_dir->filePath("made"), "in the way");
        const Run run(folder());
        QVERIFY(run.isUp());
        QSignalSpy errors(run.client(), &KIVClientInterface::SigError);
        QVERIFY(run.client()->setItem(levelId, 1));
        QTRY_COMPARE(errors.size(), 1);
        const QString error = errors.first().first().toString();
        QVERIFY2(error.contains("station") && error.contains(stateFile()), qPrintable(error));
        QCOMPARE(run.value(levelId), QVariant(1));
        QVERIFY(QFile::remove(m_dir->filePath("made")));
        QVERIFY(run.client()->setItem(prefix + "on:", false));
        QTRY_VERIFY(QFile::exists(stateFile()));
        QCOMPARE(readJson(stateFile()).value("values").toObject(), (QJsonObject {{levelId, 1}, {prefix + "on:", false}}));
        QCOMPARE(errors.size(), 1);

        // Without a next change the end of the service is the last moment to try again.
        QVERIFY(QDir(m_dir->filePath("made")).removeRecursively());
        writeFile(m_dir->filePath("made"), "in the way");
        QVERIFY(run.client()->setItem(levelId, 2));
        QTRY_COMPARE(errors.size(), 2);
        QVERIFY(QFile::remove(m_dir->filePath("made")));
        QVERIFY(run.backend()->withdraw("station"));
        QCOMPARE(readJson(stateFile()).value("values").toObject().value(levelId).toInt(), 2);
    }

    void configurations_data()
    {
        addColumns<QString, QString>();
        QTest::newRow("plain") << "My settings,1" << "My settings.json";
        QTest::newRow("comma in the name") << "One, two,1" << "One, two.json";
        QTest::newRow("path") << "../../etc,1" << "%2e.%2f..%2fetc.json";
        QTest::newRow("parent folder") << "..,1" << "%2e..json";
        QTest::newRow("NUL and newline") << QString("a") + QChar(0) + "\nb,1" << "a%00%0ab.json";
        QTest::newRow("empty") << ",1" << QString();
        QTest::newRow("blank") << "  ,1" << QString();
        QTest::newRow("no comma") << "name" << QString();
    }
    void configurations()
    {
        const auto [argument, file] = currentRow<QString, QString>();
        const Run run(folder());
        QString reply;
        const QString id = ":action:station:saveconfig:";
        QCOMPARE(run.client()->sendAction(id, argument, &reply, 1000), !file.isEmpty());
        QCOMPARE(reply.isEmpty(), file.isEmpty());
        const QDir stored(folder() + "/station.configurations");
        QCOMPARE(stored.entryList(QDir::Files | QDir::Hidden), file.isEmpty() ? QStringList() : QStringList {file});
        if (file.isEmpty())
            return;
        const QJsonObject values = readJson(stored.filePath(file)).value("values").toObject();
        QCOMPARE(values.value(levelId).toInt(), 5);
        QCOMPARE(values.size(), run.client()->getItemIds(":config:").size() - 1); // one has no value

        const QString longName(300, QChar(0xe9));
        QVERIFY(run.client()->sendAction(id, longName + "a,1", &reply, 1000));
        QVERIFY(run.client()->sendAction(id, longName + "b,1", &reply, 1000));
        QCOMPARE(stored.entryList(QDir::Files | QDir::Hidden).size(), 3);
    }

    void withoutAFolderNoConfigurationIsSaved()
    {
        const Run run(QString {});
        QVERIFY(!run.client()->sendAction(":action:station:saveconfig:", "Name,1", nullptr, 1000));
        QVERIFY(run.client()->getLastError().contains("\"Name\""));
    }

    /// What the service itself offers to the program that publishes it.
    void publishedFromCode()
    {
        EmbeddedBackend backend;
        QString problem;
        ServiceDescription description;
        description.service = "../odd";
        description.items = {item(":config:odd:a:", "int", "3"), item(":config:odd:a:", "int", 1)};
        QVERIFY(!backend.publish(description, &problem));
        QVERIFY2(problem.startsWith("/items/1: "), qPrintable(problem));
        description.items.removeLast();
        backend.setStateFolder(folder());
        EmbeddedService* service = backend.publish(description, &problem);
        QVERIFY2(service && problem.isEmpty(), qPrintable(problem));
        QCOMPARE(service->item(":config:odd:a:")->getValue(), QVariant(3));
        QVERIFY(!backend.publish(description, &problem));
        QVERIFY2(problem.contains("../odd"), qPrintable(problem));

        QVERIFY(service->setRange(":config:odd:a:", 0, 9));
        QVERIFY(!service->setRange(":config:odd:a:", 9, 0));
        QVERIFY(!service->setRange(":config:odd:a:", 0.5, 9));
        QVERIFY(!service->setValue(":config:odd:a:", "three"));
        QVERIFY(service->setValue(":config:odd:a:", 10)); // limits bind clients only
        KIVClientInterface* client = KIVClientInterface::getSessionBusClient("../odd");
        QVERIFY(!client->setItem(":config:odd:a:", 10));
        QVERIFY(client->setItem(":config:odd:a:", 9));
        QTRY_VERIFY(QFile::exists(folder() + "/%2e.%2fodd.state.json"));
    }

    void handlers()
    {
        const Run run(QString {});
        const QString id = ":action:station:orphan:";
        bool isDone = true;
        const auto handler = [&](const QString& argument, QString* text) {
            *text = "heard " + argument;
            return isDone;
        };
        QVERIFY(!run.service()->setActionHandler(":action:station:none:", handler));
        QVERIFY(run.service()->setActionHandler(id, handler));
        QString reply;
        QVERIFY(run.client()->sendAction(id, "a", &reply, 1000));
        QCOMPARE(reply, QString("heard a"));
        isDone = false;
        QVERIFY(!run.client()->sendAction(id, "b", &reply, 1000));
        QCOMPARE(reply, QString("heard a"));
        QCOMPARE(run.client()->getLastError(), QString("heard b"));

        QVERIFY(run.service()->setActionHandler(id, [&](const QString&, QString*) {
            return run.service()->setActionHandler(id, nullptr) && run.backend()->withdraw("station");
        }));
        KIVClientInterface* client = run.client();
        QVERIFY(client->invokeAction(id));
        QVERIFY(!client->isValid());
    }

    void drivesGoWithTheirServices()
    {
        EmbeddedBackend backend;
        ServiceDescription description;
        QString problem;
        description.service = "relative";
        description.mounted = QStringList {"mnt/usb"};
        QVERIFY2(!backend.publish(description, &problem) && problem.startsWith("/mounted/0: "), qPrintable(problem));
        description.mounted = QStringList {"/mnt/usb/"};
        for (const char* name : {"one", "other"}) {
            description.service = name;
            QVERIFY(backend.publish(description));
        }
        QVERIFY(!backend.service("one")->setMounted("mnt/usb", true));
        QVERIFY(backend.service("one")->setMounted("/mnt/usb", false));
        QVERIFY(FileSystemUsage::isMounted("/mnt/usb/"));
        backend.service("other")->setReachable(false);
        QVERIFY(FileSystemUsage::isMounted("/mnt/usb/"));
        QVERIFY(backend.withdraw("other"));
        QVERIFY(!FileSystemUsage::isMounted("/mnt/usb/"));
        // This back end does not read the system's own table.
        QVERIFY(!FileSystemUsage::isMounted("/proc"));
    }
};

QTEST_GUILESS_MAIN(ServiceStateTest)
#include "tst_servicestate.moc"
