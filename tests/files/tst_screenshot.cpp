#include "columns.h"
#include "files.h"

#include "files/screenshot.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

namespace {

const QString serviceName = QStringLiteral("orb.base.workflow_manager_app");
const QString config = QStringLiteral(":config:workflow_manager_app:workflow_manager_reg_module:");
const QString session = QStringLiteral(":result:workflow_manager_app:workflow_manager_reg_module:internalSessionName:");

} // namespace

class ScreenshotTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_root;
    kiv::embedded::EmbeddedBackend m_backend;

    bool publish()
    {
        return m_backend.loadFile(UIUTILS_TEST_DATA_DIR "/services/workflow_manager_app.service.json");
    }

    QJsonObject recordOf(const QString& baseName) const
    {
        QFile file(m_root.path() + "/cust/private/screenshots/metadata/" + baseName + ".png.metadata");
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_root.isValid());
        qputenv("UIUTILS_ROOT", QFile::encodeName(m_root.path()));
    }
    void init()
    {
        QVERIFY(publish());
        qputenv("UIUTILS_SESSION", "field");
    }
    void cleanup() { m_backend.withdraw(serviceName); }

    void record()
    {
        Screenshot screenshot;
        screenshot.setBaseName(QString::fromUtf8("Größe 1"));
        QVERIFY(screenshot.saveMetadata());
        const QJsonObject expected {{"type", "TESTDATA.screenshot"}, {"format", "image/png"}, {"timeStamp", ""},
                {"originFilePath", QString::fromUtf8("/cust/public/screenshots/Größe 1.png")},
                {"info", QJsonObject {{"wo", "WO-1"}, {"workflowId", "wf-7"}}}};
        QCOMPARE(recordOf(QString::fromUtf8("Größe 1")), expected);

        screenshot.setBaseName("../out");
        QVERIFY(!screenshot.saveMetadata());
        QVERIFY(!QFile::exists(m_root.path() + "/cust/private/screenshots/out.png.metadata"));
    }

    void workOrders_data()
    {
        addColumns<QByteArray, QString, QString, QJsonObject>();
        const QString order = QString::fromUtf8("Auftrag µ 7");
        const QJsonObject pairs {{"wo", order}, {"workflowId", "wf-7"}};
        QTest::newRow("same session") << QByteArray("a") << "a" << order << pairs;
        QTest::newRow("another session") << QByteArray("a") << "ab" << order << QJsonObject();
        QTest::newRow("only theirs has a name") << QByteArray() << "a" << order << QJsonObject();
        QTest::newRow("only ours has a name") << QByteArray("a") << "" << order << QJsonObject();
        QTest::newRow("no sessions") << QByteArray() << "" << order << pairs;
        QTest::newRow("no work order") << QByteArray("a") << "a" << "" << QJsonObject();
    }
    void workOrders()
    {
        const auto [ours, theirs, order, info] = currentRow<QByteArray, QString, QString, QJsonObject>();
        // The values of an earlier save must be discarded, and new ones read.
        Screenshot screenshot;
        screenshot.setBaseName("a");
        QVERIFY(screenshot.saveMetadata());
        QCOMPARE(recordOf("a").value("info").toObject().value("wo").toString(), QString("WO-1"));
        qputenv("UIUTILS_SESSION", ours);
        QVERIFY(m_backend.service(serviceName)->setValue(session, theirs));
        QVERIFY(m_backend.service(serviceName)->setValue(config + "activeWorkOrderId:", order));
        QVERIFY(screenshot.saveMetadata());
        QCOMPARE(recordOf("a").value("info").toObject(), info);
    }

    void serviceReturns()
    {
        Screenshot screenshot;
        QVERIFY(m_backend.withdraw(serviceName));
        qunsetenv("UIUTILS_SESSION");
        screenshot.updateMetadataInformation();
        QCOMPARE(screenshot.metadata().getInfo("wo"), QString());
        QCOMPARE(screenshot.metadata().type(), QString("TESTDATA.screenshot"));
        QVERIFY(publish());
        qputenv("UIUTILS_SESSION", "field");
        screenshot.updateMetadataInformation();
        QCOMPARE(screenshot.metadata().getInfo("wo"), QString("WO-1"));
    }
};

QTEST_GUILESS_MAIN(ScreenshotTest)
#include "tst_screenshot.moc"
