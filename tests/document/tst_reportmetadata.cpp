#include "filesizelimit.h"
#include "files.h"

#include <QtTest>

#include "document/reportmetadata.h"

#include <sys/stat.h>

namespace {

const char* const reports = "/cust/public/reports/otdr/";
const char* const records = "/cust/private/reports/metadata/otdr/";

ReportMetadata recordOf(const QString& name)
{
    ReportMetadata record;
    record.setMetadataName(name);
    record.updateMetadataPathBase(reports);
    record.setType("result");
    record.setFormat("PDF");
    record.setTimeStamp("2026-11-21T09:05:07+01:00");
    record.setInfo("wo", "WO-1");
    return record;
}

QStringList valuesOf(const ReportMetadata& record)
{
    return {record.type(), record.format(), record.timeStamp(), record.originFilePath(), record.getInfo("wo")};
}

} // namespace

class ReportMetadataTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_root;

    QString onDisk(const QString& path) const { return m_root.path() + path; }

private Q_SLOTS:
    void init()
    {
        QVERIFY(m_root.isValid());
        qputenv("UIUTILS_ROOT", QFile::encodeName(m_root.path()));
        QDir(onDisk("/cust")).removeRecursively();
    }

    void folders()
    {
        const QString metadata("/cust/private/reports/metadata");
        const std::pair<const char*, QString> rows[] {{"/cust/public/reports/", metadata + "/"},
                {"/cust/public/reports/otdr/a/", metadata + "/otdr/a/"},
                {"/cust/public/reports/otdr", metadata + "/otdr"},
                {"/cust/private/reports/autosave/otdr/", metadata + "/otdr/"},
                {"/cust/public/reports/autosave/", "/cust/public/reports/metadata/"},
                {"/cust/public/reports/otdr/autosave/", metadata + "/otdr/autosave/"},
                // Without a final slash they are no such folders.
                {"/cust/public/reports", "/cust/public/reports"},
                {"/cust/private/reports/autosave", "/cust/private/reports/autosave"}, {"/mnt/usb/", "/mnt/usb/"},
                {"", ""}};
        for (const auto& [reportFolder, folder] : rows) {
            ReportMetadata record;
            record.updateMetadataPathBase(reportFolder);
            QCOMPARE(record.metadataPath(), folder);
            QCOMPARE(record.originBase(), QString(reportFolder));
        }
    }

    void originPaths()
    {
        ReportMetadata record;
        record.setMetadataName("a.pdf");
        record.updateMetadataPathCable();
        const QMap<QString, QString> paths {{"/mnt/usb/", "/mnt/usb/a.pdf"}, {"/mnt/usb", "/mnt/usb/a.pdf"},
                {"/mnt/usb//", "/mnt/usb/a.pdf"}, {"/", "/a.pdf"}, {"", "a.pdf"}};
        for (auto it = paths.cbegin(); it != paths.cend(); ++it) {
            record.setOriginBase(it.key());
            const QString line = "originFilePath " + *it + ", metadataPath /cust/private/cable/metadata";
            QTest::ignoreMessage(QtDebugMsg, qPrintable(line));
            record.updateOriginFilePath();
            QCOMPARE(record.originFilePath(), *it);
        }
    }

    void writtenAndRead()
    {
        const QString odd = QString::fromUtf8("\"\n\\ 5 µm Größe %1 \xf0\x9f\x94\xa6") + QChar(0) + "}";
        ReportMetadata record = recordOf(QString::fromUtf8("Größe 5%.pdf"));
        record.setInfo(std::string("größe"), std::string("µ"));
        record.setInfo(odd, odd);
        record.setInfo(QString("wo"), QString("WO-2"));
        QVERIFY(record.saveMetadataToFile());

        const QString path = onDisk(records) + QString::fromUtf8("Größe 5%.pdf.metadata");
        QCOMPARE(record.metadataFilePath(), path.mid(m_root.path().size()));
        const QByteArray text = contentsOf(path);
        const QJsonObject object = QJsonDocument::fromJson(text).object();
        QVERIFY2(text.startsWith("{\n    \""), text.constData());
        QCOMPARE(object.keys(), (QStringList {"format", "info", "originFilePath", "timeStamp", "type"}));
        QCOMPARE(object.value("originFilePath").toString(),
                QString::fromUtf8("/cust/public/reports/otdr/Größe 5%.pdf"));
        QCOMPARE(object.value("info").toObject().size(), 3);

        ReportMetadata other;
        other.setMetadataName(record.metadataName());
        other.updateMetadataPathBase("/cust/public/reports/otdr");
        other.setInfo(QString("stale"), QString("x"));
        QVERIFY(other.loadFromDisk());
        QCOMPARE(valuesOf(other), valuesOf(record));
        QCOMPARE(other.getInfo(QString::fromUtf8("größe")), QString::fromUtf8("µ"));
        QCOMPARE(other.getInfo(odd), odd);
        QCOMPARE(other.getInfo("stale"), QString());

        writeFile(path, R"({"type": 5, "format": 1.5, "info": {"wo": 88213}})");
        QVERIFY(other.loadFromDisk());
        QCOMPARE(valuesOf(other), (QStringList {"5", "1.5", "", "", "88213"}));

        record.clear();
        QCOMPARE(valuesOf(record), (QStringList {"", "", "", "", ""}));
        QCOMPARE(record.metadataName() + record.metadataPath() + record.originBase(), QString());
    }

    void recordsOfOthers()
    {
        const QByteArray most(int(ReportMetadata::maximumFileSize), ' ');
        const std::pair<QByteArray, bool> rows[] {{"{}", true}, {R"({"later": [1], "info": {}})", true},
                {QByteArray(most).replace(0, 2, "{}"), true}, {"{}" + most, false}, {"{} {}", false},
                {R"({"type": "x", "info": {"wo": )", false},
                {R"(["type"])", false}, {R"({"format": "x", "type": []})", false},
                {R"({"type": "x", "info": ["wo"]})", false}, {R"({"type": "x", "info": {"wo": {"wo": "x"}}})", false}};
        for (const auto& [text, isTaken] : rows) {
            ReportMetadata record = recordOf("a.pdf");
            record.updateOriginFilePath();
            const QStringList before = valuesOf(record);
            writeFile(onDisk(record.metadataFilePath()), text);
            if (!isTaken)
                QTest::ignoreMessage(QtWarningMsg, "bool ReportMetadata::loadFromDisk() Error while parsing JSON from "
                                                   "/cust/private/reports/metadata/otdr/a.pdf.metadata");
            QVERIFY2(record.loadFromDisk() == isTaken, text.left(80));
            QCOMPARE(valuesOf(record), isTaken ? QStringList({"", "", "", "", ""}) : before);
        }
    }

    /// A pipe without a writer would block the reader forever.
    void nothingToRead()
    {
        ReportMetadata record = recordOf("a.pdf");
        const QStringList before = valuesOf(record);
        const auto isRefused = [&] {
            QTest::ignoreMessage(QtWarningMsg, "bool ReportMetadata::loadFromDisk() Could not open "
                                               "/cust/private/reports/metadata/otdr/a.pdf.metadata");
            return !record.loadFromDisk() && valuesOf(record) == before;
        };
        const QString path = onDisk(record.metadataFilePath());
        QVERIFY(isRefused());
        QVERIFY(QDir().mkpath(path));
        QVERIFY(isRefused());
        QVERIFY(QDir().rmdir(path));
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        QVERIFY(isRefused());
    }

    void failedWrites()
    {
        const QString path = onDisk(records) + "a.pdf.metadata";
        // A full disk, more than can be read, out of the folder, and no folder.
        for (const auto& [name, folder, room, pairs] : {std::tuple("a.pdf", records, 64, 0),
                     std::tuple("a.pdf", records, 100'000'000, 100'000), std::tuple("../../a.pdf", records, 100'000, 0),
                     std::tuple("a.pdf", "", 100'000, 0)}) {
            QVERIFY(recordOf("a.pdf").saveMetadataToFile());
            const QByteArray before = contentsOf(path);
            const QStringList all = QDir(m_root.path()).entryList() + QDir::current().entryList();
            ReportMetadata record = recordOf(name);
            record.setMetadataPath(folder);
            record.setFormat("HTML");
            for (int i = 0; i < pairs; ++i)
                record.setInfo(QString::number(i), QString("value"));
            const QString line
                    = "bool ReportMetadata::saveMetadataToFile() could not open file " + record.metadataFilePath();
            QTest::ignoreMessage(QtWarningMsg, qPrintable(line));
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^(The record has|Cannot (write|create|replace)) "));
            bool isSaved = true;
            {
                const FileSizeLimit disk {rlim_t(room)};
                isSaved = record.saveMetadataToFile();
            }
            QVERIFY(!isSaved);
            QCOMPARE(record.format(), QString("HTML"));
            QCOMPARE(namesIn(onDisk(records)), QStringList {"a.pdf.metadata"});
            QCOMPARE(contentsOf(path), before);
            QCOMPARE(QDir(m_root.path()).entryList() + QDir::current().entryList(), all);
        }
        // The obstacle has been removed.
        QVERIFY(recordOf("a.pdf").saveMetadataToFile());
    }
};

QTEST_GUILESS_MAIN(ReportMetadataTest)
#include "tst_reportmetadata.moc"
