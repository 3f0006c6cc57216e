#include "columns.h"
#include "golden.h"
#include "randomdocument.h"

#include "templ2xmlwriter/templatetoxmlwriter.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>

#include <memory>

namespace {

/// Why a reader rejects the text, or finds the element in it that only serves as a wrapper; empty when neither.
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
        addColumns<QString, QString, bool>();
        QTest::newRow("twelve rows") << "twelve-rows" << "twelve-rows" << true;
        QTest::newRow("eleven tables") << "eleven-tables" << "eleven-tables" << true;
        QTest::newRow("everything") << "everything" << "everything" << false;
        QTest::newRow("hostile") << "hostile" << "hostile" << false;
        QTest::newRow("odd keys") << "odd-keys" << "odd-keys" << true;
        QTest::newRow("empty") << "empty" << "empty" << false;
        QTest::newRow("empty for the job manager") << "empty" << "empty-job" << true;
    }
    void goldens()
    {
        const auto [document, golden, jobManagerMode] = currentRow<QString, QString, bool>();
        ReportTemplate report;
        readDocument(report, document);
        if (document == "odd-keys")
            QTest::ignoreMessage(QtWarningMsg, "Section missing tag: No tag here");
        TemplateToXmlWriter writer(report, jobManagerMode, true, true);
        const QString xml = writer.getXml();
        QCOMPARE(writer.getXml(), xml);

        const QString difference = goldenDifference(UIUTILS_TEST_DATA_DIR "/xml/" + golden + ".xml", xml.toUtf8());
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
        QCOMPARE(readerError(xml), QString());
    }

    void blocks_data()
    {
        addColumns<bool, bool, QStringList, QStringList, QStringList>();
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
        const auto [jobManagerMode, includeCustomer, technician, customer, blocks]
                = currentRow<bool, bool, QStringList, QStringList, QStringList>();
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

    /// A caller who chooses the parts gets what the complete pass writes, once.
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

    /// Whatever a document contains, two readers that are independent of the writer accept the text.
    void randomDocumentsAreWellFormed()
    {
        QTemporaryDir dir;
        const auto quiet = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        QStringList files;
        QStringList faults;
        for (quint32 seed = 0; seed < 3000; ++seed) {
            ReportTemplate report;
            RandomDocument(seed).readInto(report);
            const QString xml = TemplateToXmlWriter(report, seed % 2 == 0, true, true).getXml();
            const QString error = readerError(xml);
            if (!error.isEmpty())
                faults += QString("seed %1: %2").arg(seed).arg(error);
            files += writeFile(dir.filePath(QString("%1.xml").arg(seed)), xml.toUtf8());
        }
        qInstallMessageHandler(quiet);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n').left(2000)));

        QCOMPARE(outputOf("xmllint", QStringList {"--noout"} + files).left(2000), QString());
    }
};

QTEST_GUILESS_MAIN(XmlWriterTest)
#include "tst_xmlwriter.moc"
