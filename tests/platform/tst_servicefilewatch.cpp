#include "files.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <embedded/servicefilewatch.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;
using kiv::embedded::ServiceFileWatch;

namespace {

const QString length = ":config:field:length:";
const QString loss = ":result:field:loss:";

/// One item a line, so that a test replaces a line.
const QByteArray file = R"({ "service": "field", "items": [
{ "id": ":config:field:length:", "type": "int", "label": "Length", "value": 1, "maximum": 50 },
{ "id": ":result:field:loss:", "type": "double", "value": 0.5, "quality": "passing", "ready": false },
{ "id": ":result:field:state:", "type": "std::string", "value": "idle" }
] })";

} // namespace

/// Service files are edited while their services run.
class ServiceFileWatchTest : public QObject
{
    Q_OBJECT

private:
    void write(const QByteArray& from, const QByteArray& to, const QString& name = "field.service.json")
    {
        QVERIFY(file.contains(from));
        m_read->clear();
        writeFile(m_folder->filePath(name), QByteArray(file).replace(from, to));
        QVERIFY(m_read->wait(30000));
    }
    QStringList problems() const { return m_read->constLast().constFirst().toStringList(); }
    EmbeddedService* field() const { return m_backend->service("field"); }
    QVariant value(const QString& id) const { return field()->item(id)->getValue(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<EmbeddedBackend> m_backend;
    std::unique_ptr<ServiceFileWatch> m_watch;
    std::unique_ptr<QSignalSpy> m_read;

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        writeFile(m_folder->filePath("field.service.json"), file);
        m_backend = std::make_unique<EmbeddedBackend>();
        m_backend->setStateFolder(m_folder->filePath("state"));
        QCOMPARE(m_backend->loadFolders({m_folder->path()}), QStringList());
        m_watch = std::make_unique<ServiceFileWatch>(m_backend.get(), QStringList(m_folder->path()));
        m_read = std::make_unique<QSignalSpy>(m_watch.get(), &ServiceFileWatch::filesRead);
    }
    void cleanup()
    {
        m_watch.reset();
        m_backend.reset();
    }

    /// What the file says anew wins; everything else stays, also what clients have set.
    void keepsWhatTheFileDoesNotChange()
    {
        KIVClientInterface* client = m_backend->serviceClient("field", nullptr);
        QSignalSpy changed(client, &KIVClientInterface::itemsChanged);
        QVERIFY(client->setItem(length, 7));
        QVERIFY(field()->setValue(loss, 0.7) && field()->setQuality(loss, KIVClientItem::QualityFailing));
        QVERIFY(field()->setReady(loss, true));
        write("\"Length\"", "\"Reach\"");
        QCOMPARE(problems(), QStringList());
        QVERIFY(changed.count() > 0 && client->isValid());
        QCOMPARE(field()->item(length)->getLabel(), QString("Reach"));
        QCOMPARE(value(length), QVariant(7));
        QCOMPARE(value(loss), QVariant(0.7));
        QCOMPARE(field()->item(loss)->getQualityCode(), int(KIVClientItem::QualityFailing));
        QVERIFY(field()->item(loss)->isReady());

        write("\"value\": 0.5, \"quality\": \"passing\"", "\"value\": 0.9, \"quality\": \"warning\"");
        QCOMPARE(value(loss), QVariant(0.9));
        QCOMPARE(field()->item(loss)->getQualityCode(), int(KIVClientItem::QualityWarning));
        QVERIFY(field()->item(loss)->isReady());
        QCOMPARE(value(length), QVariant(7));
        // Also for a setting, which is stored.
        write("\"value\": 1,", "\"value\": 3,");
        QCOMPARE(value(length), QVariant(3));
    }

    void aServiceThatWasAwayStaysAway()
    {
        field()->setReachable(false);
        write("idle", "busy");
        QVERIFY(!field()->isReachable());
        field()->setReachable(true);
        QCOMPARE(value(":result:field:state:"), QVariant("busy"));
    }

    void mistakesChangeNothing()
    {
        QVERIFY(field()->setValue(loss, 0.7));
        const QPointer<EmbeddedService> before = field();
        for (const QByteArray& wrong : {QByteArray("\"type\": \"number\""), QByteArray("\"type\": \"double\",,"), QByteArray("\"type\": \"int\", \"precision\": -5")}) {
            write("\"type\": \"double\"", wrong);
            QCOMPARE(problems().size(), 1);
            QVERIFY2(problems().constFirst().contains("field.service.json"), qPrintable(problems().constFirst()));
            QVERIFY(before && field() == before);
            QCOMPARE(value(loss), QVariant(0.7));
        }
        write("Length", "Reach");
        QCOMPARE(problems(), QStringList());
        QCOMPARE(value(loss), QVariant(0.7));
        QCOMPARE(field()->item(length)->getLabel(), QString("Reach"));
    }

    /// Items come and go with their lines; services with files and names.
    void newItemsAndServices()
    {
        write(":result:field:state:", ":result:field:mode:");
        QVERIFY(!field()->item(":result:field:state:"));
        QCOMPARE(value(":result:field:mode:"), QVariant("idle"));
        QSignalSpy added(m_watch.get(), &ServiceFileWatch::serviceAdded);
        write("\"field\"", "\"other\"", "other.service.json");
        QCOMPARE(added.count(), 1);
        QCOMPARE(m_backend->serviceNames(), QStringList({"field", "other"}));
        write("\"field\"", "\"third\"", "other.service.json");
        QCOMPARE(m_backend->serviceNames(), QStringList({"field", "third"}));
        // A name that another file has.
        write("Length", "Reach", "other.service.json");
        QVERIFY2(problems().join("\n").contains("published already"), qPrintable(problems().join("\n")));
        QCOMPARE(field()->item(length)->getLabel(), QString("Length"));
        QVERIFY(m_backend->service("third"));
    }
};

QTEST_GUILESS_MAIN(ServiceFileWatchTest)
#include "tst_servicefilewatch.moc"
