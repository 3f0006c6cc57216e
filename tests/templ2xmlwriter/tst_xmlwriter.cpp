#include "golden.h"

#include "base/xmlname_p.h"
#include "document/reporttemplate.h"
#include "templ2xmlwriter/templatetoxmlwriter.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

#include <QJsonDocument>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <memory>

namespace {

/// Why a reader refuses the text, or finds the element in it that only serves as a wrapper; empty when neither.
QString readerError(const QString& xml)
{
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == "removeSection")
            return "removeSection";
    }
    return reader.hasError() ? reader.errorString() + " at line " + QString::number(reader.lineNumber()) : QString();
}

void readDocument(ReportTemplate& report, const QString& name)
{
    report.readFile(UIUTILS_TEST_DATA_DIR "/documents/" + name + ".json");
    QVERIFY2(!report.hasError(), qPrintable(report.errorString()));
}

/// A document of random shape: nested sections, tables, rows, cells, missing keys, texts of all planes.
class RandomDocument
{
public:
    explicit RandomDocument(quint32 seed)
        : m_random(seed)
    {
    }

    QJsonObject node(int depth)
    {
        QJsonObject object;
        maybeSet(object, "tag");
        maybeSet(object, "title");
        maybeSet(object, "config_module");
        for (int i = m_random.bounded(4); i > 0; --i)
            object.insert("attr_" + text(), text());
        for (int i = m_random.bounded(3); i > 0; --i)
            object.insert("log_" + text(), text());
        for (int i = m_random.bounded(3); i > 0; --i)
            object.insert(QString("table_%1").arg(i), table());
        for (int i = depth > 0 ? m_random.bounded(4) : 0; i > 0; --i)
            object.insert("section_" + text(), node(depth - 1));
        return object;
    }

private:
    QJsonValue table()
    {
        if (m_random.bounded(8) == 0)
            return text();
        QJsonObject object {{"use_row_labels", true}, {"num_columns", 2}};
        maybeSet(object, "tag");
        for (int i = m_random.bounded(4); i > 0; --i) {
            QJsonObject row;
            maybeSet(row, "label");
            for (int cell = m_random.bounded(3); cell > 0; --cell) {
                QJsonObject content;
                maybeSet(content, "tag");
                maybeSet(content, "label");
                content.insert("attr_" + text(), text());
                content.insert("attr_" + text(), text());
                row.insert(QString("cell_%1").arg(cell), content);
            }
            object.insert(QString("row_%1").arg(i), row);
        }
        return object;
    }

    void maybeSet(QJsonObject& object, const char* key)
    {
        if (m_random.bounded(5) != 0)
            object.insert(QLatin1String(key), text());
    }

    QString text()
    {
        static const QStringList nasty {"-->", "--", "-", "]]>", "<removeSection>\n", "</removeSection>", "xml:lang",
                "xmlns", "EMPTY", " ", "&amp;", "a:b", "1st", "\"'", ">"};
        QString text;
        for (int parts = m_random.bounded(4); parts > 0; --parts) {
            const uint kind = m_random.bounded(4U);
            if (kind == 0) {
                text += nasty.at(m_random.bounded(nasty.size()));
                continue;
            }
            const uint c = kind == 1 ? m_random.bounded(0x110000U) : m_random.bounded(kind == 2 ? 0x100U : 0x80U);
            if (c < 0x10000)
                text += QChar(ushort(c));
            else
                text += QString(QChar(QChar::highSurrogate(c))) + QChar(QChar::lowSurrogate(c));
        }
        return text;
    }

    QRandomGenerator m_random;
};

QString writeXml(const QJsonObject& document, const QTemporaryDir& dir, bool jobManagerMode)
{
    QFile file(dir.filePath("document.json"));
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(document).toJson()) < 0 || !file.flush())
        return QString();
    ReportTemplate report;
    report.readFile(file.fileName());
    return TemplateToXmlWriter(report, jobManagerMode, true, true).getXml();
}

} // namespace

class XmlWriterTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_backend;

    void setList(const char* which, const QStringList& fields)
    {
        const QString id = QString(":config:basemgr:system:%1FieldsIncludedInReport:stringARRAY:").arg(which);
        QVERIFY(m_backend->service("basemgr")->setValue(id, fields));
    }

private Q_SLOTS:
    void init()
    {
        m_backend = std::make_unique<kiv::embedded::EmbeddedBackend>();
        QCOMPARE(m_backend->loadFolders({UIUTILS_TEST_DATA_DIR "/services"}), QStringList());
    }
    void cleanup() { m_backend.reset(); }

    void goldens_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("golden");
        QTest::addColumn<bool>("jobManagerMode");
        QTest::newRow("twelve rows") << "twelve-rows" << "twelve-rows" << true;
        QTest::newRow("eleven tables") << "eleven-tables" << "eleven-tables" << true;
        QTest::newRow("everything") << "everything" << "everything" << false;
        QTest::newRow("hostile") << "hostile" << "hostile" << false;
        QTest::newRow("empty") << "empty" << "empty" << false;
        QTest::newRow("empty for the job manager") << "empty" << "empty-job" << true;
    }
    void goldens()
    {
        QFETCH(QString, document);
        QFETCH(QString, golden);
        QFETCH(bool, jobManagerMode);
        ReportTemplate report;
        readDocument(report, document);
        TemplateToXmlWriter writer(report, jobManagerMode, true, true);
        const QString xml = writer.getXml();
        QCOMPARE(writer.getXml(), xml);

        const QString difference = goldenDifference(UIUTILS_TEST_DATA_DIR "/xml/" + golden + ".xml", xml.toUtf8());
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
        QCOMPARE(readerError(xml), QString());
    }

    void blocks_data()
    {
        QTest::addColumn<bool>("jobManagerMode");
        QTest::addColumn<bool>("includeCustomer");
        QTest::addColumn<QStringList>("technician");
        QTest::addColumn<QStringList>("customer");
        QTest::addColumn<QStringList>("blocks");
        const QStringList tech {"userInfo_name"};
        const QStringList cust {"customerInfo_name"};
        QTest::newRow("both") << false << true << tech << cust
                              << QStringList {"CustomerInformation", "TechnicianInformation"};
        QTest::newRow("customer not included") << false << false << tech << cust << QStringList {"TechnicianInformation"};
        QTest::newRow("job manager") << true << true << tech << cust << QStringList {"TechnicianInformation"};
        QTest::newRow("no technician") << false << true << QStringList() << cust << QStringList {"CustomerInformation"};
        QTest::newRow("neither") << false << true << QStringList() << QStringList() << QStringList();
        QTest::newRow("only missing fields") << false << true << QStringList {"missing"} << QStringList()
                                             << QStringList {"TechnicianInformation"};
    }
    void blocks()
    {
        QFETCH(bool, jobManagerMode);
        QFETCH(bool, includeCustomer);
        QFETCH(QStringList, technician);
        QFETCH(QStringList, customer);
        QFETCH(QStringList, blocks);
        setList("tech", technician);
        setList("customer", customer);
        for (const char* name : {"empty", "twelve-rows"}) {
            ReportTemplate report;
            readDocument(report, name);
            const QString xml = TemplateToXmlWriter(report, jobManagerMode, includeCustomer, true).getXml();
            QCOMPARE(readerError(xml), QString());
            QVERIFY(!xml.contains("removeSection"));
            QCOMPARE(xml.contains("softwareInfo"), !jobManagerMode);
            QCOMPARE(xml.contains("hardwareInfo"), !jobManagerMode);

            QXmlStreamReader reader(xml);
            QVERIFY(reader.readNextStartElement());
            QStringList children;
            while (reader.readNextStartElement()) {
                children += reader.name().toString();
                QVERIFY(xml.contains("\n    <" + children.last()));
                reader.skipCurrentElement();
            }
            QCOMPARE(children.mid(0, blocks.size()), blocks);
            QCOMPARE(children.filter("Information"), blocks);
        }
    }

    void loggedTexts()
    {
        setList("tech", {"userInfo_name"});
        setList("customer", {});
        for (const char* text : {"writeCustomerInfo true", "customerInfoList size 0",
                     "customerFieldsIncludedInReport setting empty.", "techInfoList size 1",
                     "techInfoList value setting userInfo_name"})
            QTest::ignoreMessage(QtDebugMsg, text);
        TemplateToXmlWriter(ReportTemplate(), false, true, true).getXml();

        setList("tech", {});
        for (const char* text :
                {"writeCustomerInfo false", "techInfoList size 0", "techFieldsIncludedInReport setting empty."})
            QTest::ignoreMessage(QtDebugMsg, text);
        TemplateToXmlWriter(ReportTemplate(), false, false, true).getXml();
    }

    void aSectionWithoutATagIsSkippedAndItsSectionsAreNot()
    {
        ReportTemplate report;
        report.beginReport("root");
        report.beginSection("", "No tag here");
        report.beginTable("lost", "Lost");
        report.endTable();
        report.beginSection("inner", "Inner");
        report.endSection();
        report.endSection();
        report.endReport();
        QTest::ignoreMessage(QtWarningMsg, "Section missing tag: No tag here");
        const QString xml = TemplateToXmlWriter(report, true, false, true).getXml();
        QVERIFY(xml.contains("\n    <!--Inner-->\n    <inner/>"));
        QVERIFY(!xml.contains("lost"));
        QVERIFY(!xml.contains("No tag here"));
    }

    /// Who chooses the parts gets what the whole pass writes, once.
    void withoutGenerateTheCallerWritesTheParts()
    {
        ReportTemplate report;
        readDocument(report, "twelve-rows");
        TemplateToXmlWriter writer(report, false, true, false);
        QCOMPARE(writer.getXml(), QString("<?xml version=\"1.0\"?>\n<rows"));
        QJsonObject root = report.object();
        writer.tablesToXml(root);
        writer.sectionsToXml(root);
        writer.writeVersions();
        writer.insertCustomFields();
        QCOMPARE(writer.getXml() + "\n</rows>\n", TemplateToXmlWriter(report, false, true, true).getXml());
        writer.writeTechInfo();
        writer.writeCustomerInfo();
        QCOMPARE(writer.getXml().count("<TechnicianInformation>") + writer.getXml().count("<CustomerInformation>"), 4);
    }

    void withoutAPlatform()
    {
        m_backend.reset();
        ReportTemplate report;
        readDocument(report, "everything");
        const QString xml = TemplateToXmlWriter(report, false, true, true).getXml();
        QCOMPARE(readerError(xml), QString());
        QVERIFY(!xml.contains("Information"));
        QVERIFY(!xml.contains("configuration"));
        QVERIFY(xml.contains("<hardwareInfo/>"));
    }

    void names()
    {
        const QString names[][2] = {{"loss_1.a-b", "loss_1.a-b"}, {"loss at 5 km", "loss_at_5_km"}, {"1st", "_1st"},
                {"-x", "_-x"}, {"<a href=\"x\">", "_a_href__x__"}, {"ns:tag", "ns_tag"}, {"XmLns", "_XmLns"},
                {"Länge_中", "Länge_中"}, {"·x×", "_x_"}, {"😀", "__"}, {QString(QChar(0xd800)) + "x", "_x"},
                {"a\x01" "b", "a_b"}, {"", ""}};
        for (const auto& name : names)
            QCOMPARE(uiutils::xmlName(name[0]), name[1]);
    }

    void attributesThatMeet()
    {
        ReportTemplate report;
        report.beginReport("r");
        report.addAttribute("a", "the root has none");
        report.beginSection("s", "");
        report.addAttribute("a b", "1");
        report.addAttribute("a:b", "2");
        report.addAttribute("", "3");
        report.endSection();
        report.endReport();
        const QString xml = TemplateToXmlWriter(report, true, false, true).getXml();
        QVERIFY2(xml.contains("\n    <s _=\"3\" a_b=\"1\"/>\n"), qPrintable(xml));
        QVERIFY(xml.startsWith("<?xml version=\"1.0\"?>\n<r>\n\n    <TechnicianInformation>\n        <"));
    }

    /// Whatever a document holds, two readers that know nothing of the writer accept the text.
    void randomDocumentsAreWellFormed()
    {
        QTemporaryDir dir;
        const auto quiet = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        QStringList files;
        QStringList faults;
        for (quint32 seed = 0; seed < 3000; ++seed) {
            const QString xml = writeXml(RandomDocument(seed).node(3), dir, seed % 2 == 0);
            const QString error = readerError(xml);
            if (!error.isEmpty())
                faults += QString("seed %1: %2").arg(seed).arg(error);
            QFile file(dir.filePath(QString("%1.xml").arg(seed)));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(xml.toUtf8()) > 0);
            files += file.fileName();
        }
        qInstallMessageHandler(quiet);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n').left(2000)));

        QProcess lint;
        lint.setProcessChannelMode(QProcess::MergedChannels);
        lint.start("xmllint", QStringList {"--noout"} + files);
        QVERIFY(lint.waitForFinished(120'000));
        QVERIFY2(lint.exitCode() == 0, lint.readAll().left(2000).constData());
    }
};

QTEST_GUILESS_MAIN(XmlWriterTest)
#include "tst_xmlwriter.moc"
