#include "recordingbench.h"

using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;
using kiv::replay::Player;

namespace {

const QByteArray header = "{\"format\":\"kiv-recording\",\"version\":1,\"started\":\"2026-01-01T00:00:00.000Z\"}\n";
const QString loss = ":result:otdr:loss:";

} // namespace

/// What is recorded of services, and what a player makes of it.
class RecordingsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

private Q_SLOTS:
    void aValue()
    {
        RecordingBench bench;
        bench.publish(R"({"service": "otdr", "items": [{"id": ":result:otdr:loss:", "type": "double", "unit": "dB", "value": 3.2}]})");
        bench.start();
        bench.follow("otdr");
        bench.now = 512;
        bench.backend.service("otdr")->setValue(loss, 0.1);
        const QByteArrayList lines = bench.take();
        QCOMPARE(lines.size(), 4);
        QVERIFY2(lines.at(0).startsWith("{\"format\":\"kiv-recording\",\"version\":1,\"started\":\"20"), lines.at(0));
        QCOMPARE(lines.at(1), QByteArray(R"({"t":0,"service":"otdr","snapshot":1})"));
        QCOMPARE(lines.at(2), QByteArray(R"({"t":0,"service":"otdr","id":":result:otdr:loss:","type":"double","unit":"dB","value":3.2})"));
        QCOMPARE(lines.at(3), QByteArray(R"({"t":512,"service":"otdr","id":":result:otdr:loss:","value":0.1})"));

        const QString file = writeFile(m_folder.filePath("a.kivlog"), lines.join('\n') + '\n');
        EmbeddedBackend backend;
        Player player(&backend);
        QString problem;
        QVERIFY2(player.open(file, &problem), qPrintable(problem));
        QCOMPARE(player.services(), QStringList("otdr"));
        const KIVClientInterface* client = backend.serviceClient("otdr", nullptr);
        QCOMPARE(client->getItem(loss)->getValueString(), QString("3.2 dB"));
        QVERIFY(player.advanceTo(511));
        QCOMPARE(client->getItem(loss)->getValue(), QVariant(3.2));
        QVERIFY(player.advanceTo(512));
        QCOMPARE(client->getItem(loss)->getValue(), QVariant(0.1));
        QCOMPARE(player.troubles(), QString());
        QVERIFY(!player.nextTime());
    }
};

QTEST_GUILESS_MAIN(RecordingsTest)
#include "tst_recordings.moc"
