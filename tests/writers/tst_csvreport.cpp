#include "columns.h"
#include "golden.h"

#include "writers/csv/csvreport.h"

#include <embedded/embeddedbackend.h>

#include <memory>

using namespace uiutils;

namespace {

/// The texts of a row are separated by "|"; in a text, the status follows "!" and the unit "~".
QJsonObject rowOf(const QString& texts)
{
    QJsonObject row;
    const QStringList cells = texts.split('|');
    row["label"] = cells.at(0);
    for (int i = 1; i < cells.size(); ++i) {
        const QString text = cells.at(i).section('!', 0, 0);
        row["cell_" + QString::number(i - 1)] = QJsonObject {{"label", text.section('~', 0, 0)},
                {"attr_status", cells.at(i).section('!', 1)}, {"attr_unit", text.section('~', 1)}};
    }
    return row;
}

/// The first text is the title, and empty for none; the labels of the columns follow. Without row labels if these begin with "|".
QJsonObject tableOf(const QString& head, const QStringList& rows)
{
    const QStringList labels = head.split('|');
    QJsonObject table {{"title", labels.at(0)}, {"num_columns", labels.size() - 1}, {"use_row_labels", true}};
    for (int i = 1; i < labels.size(); ++i)
        table["col_label_" + QString::number(i - 1)] = labels.at(i);
    for (int i = 0; i < rows.size(); ++i)
        table["row_" + QString::number(1 + i)] = rowOf(rows.at(i));
    return table;
}

void fill(ReportTemplate& report, const QJsonObject& document)
{
    const QTemporaryDir folder;
    report.readFile(writeFile(folder.filePath("a.json"), QJsonDocument(document).toJson()));
    QVERIFY(!report.hasError());
}

CsvLayout plainLayout()
{
    CsvLayout layout;
    layout.hasByteOrderMark = layout.content.showHardwareRevs = layout.content.showSoftwareRevs = false;
    return layout;
}

/// What another program makes of a file; empty without the program.
QString readBy(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
}

} // namespace

class CsvReportTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_backend;

private Q_SLOTS:
    void init()
    {
        m_backend = std::make_unique<kiv::embedded::EmbeddedBackend>();
        QCOMPARE(m_backend->loadFolders({UIUTILS_TEST_DATA_DIR "/services"}), QStringList());
    }
    void cleanup() { m_backend.reset(); }

    void tables_data()
    {
        addColumns<QJsonObject, QString, QString>();
        const auto add = [](const char* name, const QJsonObject& table, const QString& points, const QString& commas) {
            QTest::newRow(name) << table << points << commas;
        };
        add("units and statuses", tableOf("T|Value", {"A|0.25 dB!16", "B|-12.3 dB!32", "C|n/a!64", "D|", "E|!16"}),
                "Name,Value,Unit,Status\r\nA,0.25,dB,Pass\r\nB,-12.3,dB,Marginal\r\nC,n/a,,Fail\r\nD,,,\r\nE,,,Pass\r\n",
                "Name;Value;Unit;Status\r\nA;0,25;dB;Pass\r\nB;-12,3;dB;Marginal\r\nC;n/a;;Fail\r\nD;;;\r\nE;;;Pass\r\n");
        add("columns of several", tableOf("T|Loss|Kind", {"A|0.5 dB!16|Splice", "B|7~dB|Gap", "C|7 dB~dB|x"}),
                "Name,Loss,Loss unit,Loss status,Kind\r\nA,0.5,dB,Pass,Splice\r\nB,7,dB,,Gap\r\nC,7,dB,,x\r\n",
                "Name;Loss;Loss unit;Loss status;Kind\r\nA;0,5;dB;Pass;Splice\r\nB;7;dB;;Gap\r\nC;7;dB;;x\r\n");
        add("quoting", tableOf("T|V", {"a,b|x;y", "say \"hi\"|two\nlines", " blanks | kept inside ", "tab|a\tb\r\nc"}),
                "Name,V\r\n\"a,b\",\"x;y\"\r\n\"say \"\"hi\"\"\",\"two\nlines\"\r\nblanks,kept inside\r\ntab,\"a b\nc\"\r\n",
                "Name;V\r\n\"a,b\";\"x;y\"\r\n\"say \"\"hi\"\"\";\"two\nlines\"\r\nblanks;kept inside\r\ntab;\"a b\nc\"\r\n");
        add("numbers", tableOf("T|V", {"1|1,204.5", "2|1,204,500", "3|1,204", "4|+3.5", "5|\u22122e-9", "6|1.2.3", "7|007", "8|.5",
                               "9|1,20.5", "10|5G", "11|99.5%", "12|12 dB/100m", "13|9-10 s", "14|1e", "15|3 Port7"}),
                "Name,V,Unit\r\n1,1204.5,\r\n2,1204500,\r\n3,\"1,204\",\r\n4,+3.5,\r\n5,-2e-9,\r\n6,1.2.3,\r\n7,007,\r\n8,.5,\r\n"
                "9,\"1,20.5\",\r\n10,5G,\r\n11,99.5,%\r\n12,12,dB/100m\r\n13,9-10 s,\r\n14,1e,\r\n15,3 Port7,\r\n",
                "Name;V;Unit\r\n1;1204,5;\r\n2;1204500;\r\n3;\"1,204\";\r\n4;+3,5;\r\n5;-2e-9;\r\n6;1.2.3;\r\n7;007;\r\n8;,5;\r\n"
                "9;\"1,20.5\";\r\n10;5G;\r\n11;99,5;%\r\n12;12;dB/100m\r\n13;9-10 s;\r\n14;1e;\r\n15;3 Port7;\r\n");
        // A spreadsheet with the other separator begins a cell within the quotes.
        add("formulas", tableOf("=T|@V", {"=1+1|-1+1", "-5|+1 a b", "\t=1|\r-x", "@x|--", "\uff1d1|\"=1", "a;=1|a;\"=1", "b,=1|b,-1",
                                "c\n=1|c\n1", "d = e|-", "-3 dB|-3 dB"}),
                "Name,'@V,Unit\r\n'=1+1,'-1+1,\r\n'-5,'+1 a b,\r\n'=1,'-x,\r\n'@x,--,\r\n'\uff1d1,\"\"\"'=1\",\r\n"
                "\"a;'=1\",\"a;\"\"'=1\",\r\n\"b,=1\",\"b,-1\",\r\n\"c\n'=1\",\"c\n1\",\r\nd = e,-,\r\n'-3 dB,-3,dB\r\n",
                "Name;'@V;Unit\r\n'=1+1;'-1+1;\r\n'-5;'+1 a b;\r\n'=1;'-x;\r\n'@x;--;\r\n'\uff1d1;\"\"\"'=1\";\r\n"
                "\"a;=1\";\"a;\"\"=1\";\r\n\"b,'=1\";\"b,'-1\";\r\n\"c\n'=1\";\"c\n1\";\r\nd = e;-;\r\n'-3 dB;-3;dB\r\n");
        add("right to left", tableOf("T|\u05e2\u05e8\u05da", {"\u202eabc\u202c|\u05e9\u05dc\u05d5\u05dd 12"}),
                "Name,\u05e2\u05e8\u05da\r\nabc,\u05e9\u05dc\u05d5\u05dd 12\r\n", "Name;\u05e2\u05e8\u05da\r\nabc;\u05e9\u05dc\u05d5\u05dd 12\r\n");
        add("no rows", tableOf("T|A|B", {}), "Name,A,B\r\n", "Name;A;B\r\n");
        QJsonObject unlabelled = tableOf("T|A|", {"x|1|", "y||", "z|2|"});
        unlabelled["use_row_labels"] = false;
        add("no row labels, empty rows and columns", unlabelled, "A\r\n1\r\n2\r\n", "A\r\n1\r\n2\r\n");
        unlabelled["num_columns"] = 0;
        add("nothing", unlabelled, "", "");
        const QString names = QString("|c").repeated(200);
        const QString comma = QString(",c").repeated(200);
        add("200 columns", tableOf("T" + names, {"r" + QString("|1").repeated(200)}),
                "Name" + comma + "\r\nr" + QString(",1").repeated(200) + "\r\n",
                "Name" + QString(";c").repeated(200) + "\r\nr" + QString(";1").repeated(200) + "\r\n");
    }
    void tables()
    {
        const auto [table, points, commas] = currentRow<QJsonObject, QString, QString>();
        ReportTemplate report;
        fill(report, {{"section_0", QJsonObject {{"section_1", QJsonObject {{"table_0", table}}}}}});
        CsvLayout layout = plainLayout();
        QCOMPARE(csvTableCount(report), 1);
        QCOMPARE(QString::fromUtf8(reportCsv(report, layout)), points);
        layout.hasByteOrderMark = layout.hasDecimalComma = true;
        QCOMPARE(QString::fromUtf8(reportCsv(report, layout).mid(3)), commas);
        QVERIFY(reportCsv(report, layout).startsWith("\xef\xbb\xbf"));
    }

    /// Order, names and contents, and what a program that knows nothing of this one finds in the archive.
    void files()
    {
        const QJsonObject one = tableOf("Loss/Gain: \"A\"?|V", {"a|1"});
        const QJsonObject bare = tableOf("|V", {});
        const QJsonObject plot {{"title", "Curve"}, {"label", "plot"}, {"service", "plots"}};
        const QJsonObject hidden {{"enabled", "false"}, {"table_0", one}};
        const QJsonObject section {{"title", "Events"}, {"log_0", "=started"}, {"log_1", " "}, {"table_0", bare}, {"table_10", tableOf("NUL|V", {})},
                {"table_2", tableOf("events 2|V", {})}, {"table_3", tableOf("EVENTS|V", {})}, {"section_0", hidden}};
        ReportTemplate report;
        fill(report, {{"node_type", "report"}, {"tag", "t"}, {"title", "Größe"}, {"attr_unit", "3.5"}, {"table_0", one}, {"table_1", one},
                             {"section_0", section}, {"section_1", QJsonObject {{"table_0", plot}}}, {"table_9", tableOf("Größe.|V", {})}});
        CsvLayout layout = plainLayout();
        layout.content.timestamp = QDateTime({2026, 11, 21}, {9, 5, 7});
        QCOMPARE(csvTableCount(report), 8);
        QVERIFY(reportCsv(report, layout).isNull());
        QStringList names;
        QMap<QString, QString> contents;
        visitCsvFiles(report, layout, [&](const QString& name, const QByteArray& bytes) {
            names += name;
            contents[name] = QString::fromUtf8(bytes);
        });
        QCOMPARE(names, QStringList({"report.csv", "Loss_Gain_ _A__.csv", "Loss_Gain_ _A__ 2.csv", "Größe.csv", "Events.csv",
                                "events 2.csv", "EVENTS 3.csv", "_NUL.csv", "Curve.csv", "Log.csv"}));
        QCOMPARE(contents["report.csv"],
                QString("Name,Value\r\nTimestamp,2026-11-21 09:05:07\r\nunit,3.5\r\ntag,t\r\ntitle,Größe\r\n"));
        QCOMPARE(contents["Log.csv"], QString("Section,Entry\r\nEvents,'=started\r\n"));
        const QStringList points = contents["Curve.csv"].split("\r\n");
        QVERIFY2(points.size() > 3 && points.at(1).count(',') == points.at(0).count(','), qPrintable(contents["Curve.csv"]));

        const QTemporaryDir folder;
        const QString file = writeFile(folder.filePath("a.zip"), reportCsvZip(report, layout));
        const QString listing = readBy("python3", {"-c",
                "import sys, zipfile\nz = zipfile.ZipFile(sys.argv[1])\nprint(z.testzip())\n"
                "for i in z.infolist(): print(i.filename, *i.date_time, z.read(i).decode(), sep='|', end='|')", file});
        QString expected = "None\n";
        for (const QString& name : qAsConst(names))
            expected += name + "|2026|11|21|9|5|6|" + contents[name] + '|';
        QCOMPARE(listing, expected);
    }

    /// More than the oldest form of archives can count.
    void manyFiles()
    {
        QJsonObject document;
        for (int i = 0; i < 66'000; ++i)
            document["table_" + QString::number(i)] = QJsonObject {{"title", "T"}};
        ReportTemplate report;
        fill(report, document);
        const QTemporaryDir folder;
        const QByteArray archive = reportCsvZip(report, plainLayout());
        QCOMPARE(archive.right(14).left(4), QByteArray(4, '\xff'));
        const QString file = writeFile(folder.filePath("a.zip"), archive);
        const QString count = "import sys, zipfile; n = zipfile.ZipFile(sys.argv[1]).namelist(); print(len(set(n)), n[1], n[-1])";
        QCOMPARE(readBy("python3", {"-c", count, file}).trimmed(), QString("66001 T.csv T 66000.csv"));
    }

    /// The cells that a spreadsheet finds: numbers (40) are numbers, texts (60) are not calculated. This one takes the apostrophe off again.
    void spreadsheet()
    {
        const QString program = QStandardPaths::findExecutable("ssconvert");
        if (program.isEmpty())
            QSKIP("This machine has no spreadsheet for the command line (gnumeric).");
        ReportTemplate report;
        fill(report, {{"table_0", tableOf("T|V", {"Größe|-12.5 dB", "=1+1|+7", "a;=1+1|1,204.5", "two\nlines|--", "@SUM(1)|5G"})}});
        const QTemporaryDir folder;
        const QString file = writeFile(folder.filePath("a.csv"), reportCsv(report));
        readBy(program, {file, folder.filePath("a.gnumeric")});
        const QString sheet = readBy("gzip", {"-dc", folder.filePath("a.gnumeric")});
        QStringList cells;
        static const QRegularExpression cell("<gnm:Cell [^>]*?(?:ValueType=\"(\\d+)\")?(?: ValueFormat=\"[^\"]*\")?>([^<]*)<");
        for (auto it = cell.globalMatch(sheet); it.hasNext();) {
            const QRegularExpressionMatch match = it.next();
            cells += match.captured(1) + ' ' + match.captured(2);
        }
        QCOMPARE(cells, QStringList({"60 Name", "60 V", "60 Unit", "60 Größe", "40 -12.5", "60 dB", "60 =1+1", "40 7", "60 a;'=1+1",
                                "40 1204.5", "60 two\nlines", "60 --", "60 @SUM(1)", "60 5G"}));
    }
};

QTEST_GUILESS_MAIN(CsvReportTest)
#include "tst_csvreport.moc"
