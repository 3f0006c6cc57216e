#include "columns.h"
#include "files.h"
#include "writers/pdfreading.h"

#include "document/reporttemplate.h"
#include "templ2xmlwriter/templatetoxmlwriter.h"
#include "writers/csv/csvreport.h"
#include "writers/text/textreport.h"

#include <embedded/embeddedbackend.h>

#include <QImage>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString program = UIUTILS_CONVERT_PROGRAM;
const QString testData = UIUTILS_TEST_DATA_DIR;
const QString completionScript = UIUTILS_SOURCE_DIR "/apps/reportconvert/reportconvert.bash-completion";
const QByteArray smallDocument(R"({"node_type": "report", "tag": "small", "title": "Small"})");

/// Names and contents of everything below the folder.
QMap<QString, QByteArray> snapshot(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
            QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files[path] = contentsOf(path);
    }
    return files;
}

/// The errors that an independent reader finds in the file; empty for none.
QString complaintOf(const QString& reader, const QStringList& arguments)
{
    const QString said = outputOf(reader, arguments);
    // Status 1 is tidy's, with warnings that are suppressed.
    return said.startsWith("status") && said != "status 1\n" ? said.left(2000) : QString();
}

} // namespace

class ReportConvertTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"); }

    void init()
    {
        // Paths are those of the desktop, even where an instrument has its plots.
        m_folder = std::make_unique<QTemporaryDir>("/tmp/rep_plot_XXXXXX");
        m_scratch = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid() && m_scratch->isValid());
        m_environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"UIUTILS_ROOT", "XDG_RUNTIME_DIR", "QT_QPA_PLATFORM", "DISPLAY"})
            m_environment.remove(name);
        m_environment.insert("TMPDIR", m_scratch->path());
        m_environment.insert("TERM", "linux");
    }

    /// However a run ends, nothing of it stays in the temporary folder.
    void cleanup() { QCOMPARE(snapshot(m_scratch->path()).keys(), QStringList()); }

    void formats_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList documents = QDir(testData + "/documents").entryList({"*.json"});
        for (const QString& document : documents)
            QTest::newRow(qPrintable(document)) << document.chopped(5);
    }
    void formats()
    {
        QFETCH(const QString, name);
        const QString document = testData + "/documents/" + name + ".json";
        const Outcome outcome = run({"--format", "all", "--services", testData + "/services", "--output", path("new/folder/"), document});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        kiv::embedded::EmbeddedBackend backend;
        QCOMPARE(backend.loadFolders({testData + "/services"}), QStringList());
        ReportTemplate report;
        report.readFile(document);
        QStringList names;
        for (const char* suffix : {".html", ".json", ".pdf", ".txt", ".xml", uiutils::csvTableCount(report) > 1 ? ".zip" : ".csv"})
            names += name + suffix;
        names.sort();
        QCOMPARE(namesIn(path("new/folder")), names);
        const QString stem = path("new/folder/") + name;
        QCOMPARE(contentsOf(stem + ".json"), report.toJson().toUtf8());
        QCOMPARE(contentsOf(stem + ".xml"), TemplateToXmlWriter(report, false, true, true).getXml().toUtf8());
        // The time of the run is the only difference.
        static const QRegularExpression timestamp("\n  Timestamp  .*\\d\\d:\\d\\d:\\d\\d\n");
        QString text = QString::fromUtf8(contentsOf(stem + ".txt"));
        QVERIFY(text.contains(timestamp));
        uiutils::TextLayout layout;
        layout.includeJobInfo = layout.includeCustomerInfoTop = layout.includeTechnicianInfoTop = true;
        QCOMPARE(text.remove(timestamp), uiutils::reportText(report, layout));
        QCOMPARE(complaintOf("xmllint", {"--noout", stem + ".html", stem + ".xml"}), QString());
        QCOMPARE(complaintOf("tidy", {"-q", "-e", "--show-warnings", "no", stem + ".html"}), QString());
        QCOMPARE(faultsOf(stem + ".pdf"), QString());
    }

    /// Icons, logo, plot and the services' tables are inside, and no other file is needed.
    void pageStandsAlone()
    {
        writeFile(path("plot.json"), R"({"node_type": "report", "tag": "t", "section_0": {"node_type": "section",
            "tag": "s", "title": "S", "table_0": {"node_type": "table", "tag": "p", "title": "", "label": "plot",
            "service": "plots", "use_row_labels": true, "num_columns": 0},
            "table_1": {"node_type": "table", "tag": "p", "title": "", "use_row_labels": true, "num_columns": 1,
            "row_1": {"label": "Good", "cell_0": {"label": "1", "attr_status": "16"}}}}})");
        const QString services = testData + "/none:" + testData + "/services";
        const Outcome outcome = run({"-f", "html", "-s", services, "-o", path("page.html"), path("plot.json")});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        QVERIFY2(outcome.errors.contains(testData + "/none"), qPrintable(outcome.errors));

        const QString page = QString::fromUtf8(contentsOf(path("page.html")));
        static const QRegularExpression source("src=\"(data:image/png;base64,)?([^\"]*)\"");
        QList<int> widths;
        auto images = source.globalMatch(page);
        while (images.hasNext())
            widths += QImage::fromData(QByteArray::fromBase64(images.next().captured(2).toLatin1())).width();
        QCOMPARE(widths.size(), 3);
        QCOMPARE(widths.at(1), 600);
        QVERIFY(!widths.contains(0));
        for (const char* value : {"WO-1", "Acme", "T-1", "BU-1"})
            QVERIFY2(page.contains(value), value);
    }

    void pageOptions()
    {
        writeFile(path("small.json"), smallDocument);
        const auto page = [&](const QStringList& options) {
            return QString::fromUtf8(run(QStringList{"-f", "html", "-o", "-", path("small.json")} + options).output);
        };
        QVERIFY(page({}).contains("<title>Small</title>"));
        QVERIFY(page({}).contains("<img src=\"data:"));
        QVERIFY(page({"--title", "Größe <1>"}).contains("<title>Größe &lt;1&gt;</title>"));
        QVERIFY(!page({"--no-logo"}).contains("<img"));
        QVERIFY(page({}).contains("<body dir=\"ltr\" lang=\"en\" style="));
        QCOMPARE(page({"--style", "classic"}).left(99), page({}).left(99));
        const QString modern = page({"--style", "modern", "--orientation", "landscape"});
        QVERIFY(modern.contains("<html lang=\"en\" dir=\"ltr\">") && modern.contains("@page { size: landscape; }"));
        QCOMPARE(run({"-o", "small.txt", "--title", "Größe", path("small.json")}).exitCode, 0);
        QVERIFY(contentsOf(path("small.txt")).startsWith("=====\nGröße\n=====\n"));

        m_environment.insert("UIUTILS_ROOT", m_folder->path());
        const Outcome bare = run({"-f", "html", "-o", "-", path("small.json")});
        QVERIFY2(bare.errors.contains("UIUTILS_ROOT"), qPrintable(bare.errors));
        QCOMPARE(bare.exitCode, 0);
        // Pages on paper have icons of their own.
        QCOMPARE(run({"-f", "pdf", "-o", "small.pdf", path("small.json")}).errors, QString());
    }

    void paperOptions()
    {
        writeFile(path("small.json"), smallDocument);
        QImage logo(640, 320, QImage::Format_RGB32);
        logo.fill(Qt::red);
        QVERIFY(logo.save(path("red.png")));
        const auto described = [&](const QStringList& options) {
            const Outcome outcome = run(QStringList {"-o", "a.pdf", "small.json"} + options);
            return outcome.errors + run("pdfinfo", {"a.pdf"}) + run("pdftotext", {"a.pdf", "-"})
                    + run("pdfimages", {"-list", "a.pdf"});
        };
        const QString plain = described({});
        for (const char* text : {"612 x 792", "Page 1 of 1", "Small", "Producer:        uiutils"})
            QVERIFY2(plain.contains(text), qPrintable(plain));
        QVERIFY(!plain.contains("Unit ID"));
        const QString other = described({"--orientation", "landscape", "--unit-id", "U-9", "--logo", "red.png", "--title",
                "Größe", "-s", testData + "/services"});
        for (const char* text : {"792 x 612", "Unit ID: U-9", "Größe", " 640   320 "})
            QVERIFY2(other.contains(text), qPrintable(other));
        QVERIFY(described({"-s", testData + "/services"}).contains("Unit ID: WB1"));
        QVERIFY(!described({"--no-logo"}).contains(" image "));

        writeFile(path("wide.json"), QByteArray(smallDocument).replace("{", "{\"orientation\": \"landscape\","));
        QCOMPARE(run({"-f", "pdf", "-o", "-", "wide.json"}).output.left(5), QByteArray("%PDF-"));
        QCOMPARE(run({"-f", "pdf", "wide.json"}).exitCode, 0);
        QVERIFY(run("pdfinfo", {"wide.pdf"}).contains("792 x 612"));
    }

    /// The old file stays, and nothing is left beside it.
    void interruptedPages()
    {
        QByteArray rows;
        for (int i = 0; i < 60000; ++i)
            rows += QByteArray(",'row_%1':{'label':'l','cell_0':{'label':'v'}}").replace("%1", QByteArray::number(i));
        const QByteArray head = "{'node_type':'report','tag':'t','table_0':{'node_type':'table','tag':'t','title':'T',"
                                "'use_row_labels':true,'num_columns':1";
        writeFile(path("long.json"), QByteArray(head + rows + "}}").replace('\'', '"'));
        writeFile(path("long.pdf"), "old");
        QProcess process;
        prepare(process);
        process.start(program, {"-f", "pdf", "long.json"});
        QVERIFY(process.waitForStarted());
        // Nothing but pages needs fonts.
        const QString maps = QString("/proc/%1/maps").arg(process.processId());
        const auto isPrinting = [&] { return contentsOf(maps).contains(".ttf"); };
        QTRY_VERIFY_WITH_TIMEOUT(isPrinting(), 60000);
        QCOMPARE(::kill(pid_t(process.processId()), SIGINT), 0);
        const Outcome outcome = ended(process);
        QCOMPARE(outcome.exitCode, 128 + SIGINT);
        QVERIFY2(outcome.errors.contains("0 of 1 files were written"), qPrintable(outcome.errors));
        QCOMPARE(contentsOf(path("long.pdf")), QByteArray("old"));
        QCOMPARE(namesIn(m_folder->path()), QStringList({"long.json", "long.pdf"}));
    }

    /// No effect of the locale, of a display that does not answer, or of a name that looks like an option.
    void hostileEnvironment()
    {
        m_environment.insert("LC_ALL", "C");
        m_environment.insert("QT_QPA_PLATFORM", "xcb");
        m_environment.insert("DISPLAY", "127.0.0.1:9999");
        writeFile(path("-platform"), smallDocument);
        writeFile(path("Größe 1.json"), smallDocument);
        const Outcome outcome = run({"--format=html", "--title=Größe", "--", "-platform", "Größe 1.json"});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        QVERIFY(contentsOf(path("Größe 1.html")).contains("<title>Größe</title>"));
        QVERIFY(QFile::exists(path("-platform.html")));
    }

    void standardStreams()
    {
        writeFile(path("small.json"), smallDocument);
        QCOMPARE(run({"-o", path("a.XML"), path("small.json")}).exitCode, 0);
        const Outcome piped = run({"--format", "xml", "--output", "-", "-"}, smallDocument);
        QCOMPARE(piped.exitCode, 0);
        QCOMPARE(piped.errors, QString());
        QVERIFY(!piped.output.isEmpty());
        QCOMPARE(piped.output, contentsOf(path("a.XML")));

        QCOMPARE(run({"--format", "xml", "-"}, smallDocument).exitCode, 0);
        QCOMPARE(contentsOf(path("report.xml")), piped.output);
    }

    void brokenDocumentAmongOthers()
    {
        writeFile(path("a.json"), smallDocument);
        writeFile(path("broken.json"), "{\n  \"tag\": nonsense }");
        writeFile(path("c.json"), smallDocument);
        const Outcome outcome = run({"-f", "html", "-f", "json", "-o", "out/", "a.json", "broken.json", "c.json"});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.startsWith("reportconvert: broken.json:2:"), qPrintable(outcome.errors));
        QVERIFY2(outcome.errors.endsWith("2 of 3 documents were converted. Not, or not completely: broken.json.\n"),
                qPrintable(outcome.errors));
        QCOMPARE(outcome.errors.count('\n'), 2);
        QCOMPARE(namesIn(path("out")), QStringList({"a.html", "a.json", "c.html", "c.json"}));
    }

    /// The documents of a folder are converted beside them, or where the call says; other files are left alone.
    void folders()
    {
        QVERIFY(QDir(m_folder->path()).mkpath("in/below") && QDir(m_folder->path()).mkpath("other/empty"));
        QStringList expected;
        for (int i = 100; i < 140; ++i) {
            writeFile(path(QString("in/%1.json").arg(i)), smallDocument);
            expected << QString("%1.json").arg(i) << QString("%1.xml").arg(i);
        }
        for (const char* name : {"in/a.txt", "in/below/b.json", "other/100.json"})
            writeFile(path(name), smallDocument);
        const Outcome outcome = run({"-f", "xml", "-j", "3", "in"});
        QCOMPARE(outcome.errors, QString("reportconvert: 40 of 40 documents were converted.\n"));
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(namesIn(path("in")), expected + QStringList({"a.txt", "below"}));
        QCOMPARE(contentsOf(path("in/139.xml")), run({"-f", "xml", "-o", "-", "in/100.json"}).output);
        QCOMPARE(run({"-f", "csv", "-o", "out/", "in/below", "other/100.json"}).exitCode, 0);
        QCOMPARE(namesIn(path("out")), QStringList({"100.csv", "b.csv"}));
    }

    /// A document that ends its process is lost alone.
    void crash()
    {
        for (const char* name : {"b.json", "c.json"})
            writeFile(path(name), smallDocument);
        QProcess process;
        prepare(process);
        process.start(program, {"-f", "xml", "-j", "1", "-", "b.json", "c.json"});
        const QString children = QString("/proc/%1/task/%1/children").arg(process.processId());
        const auto worker = [&] { return contentsOf(children).trimmed().toInt(); };
        // What is read goes to a temporary file.
        const auto isReading = [&] {
            const QFileInfoList files = QDir(QString("/proc/%1/fd").arg(worker())).entryInfoList(QDir::Files | QDir::System);
            const QRegularExpression input("^" + m_scratch->path() + "/[^/]+/(input|#)");
            return std::any_of(files.begin(), files.end(),
                    [&](const QFileInfo& file) { return file.symLinkTarget().contains(input); });
        };
        QTRY_VERIFY_WITH_TIMEOUT(isReading(), 60000);
        QVERIFY(worker() > 1);
        QCOMPARE(::kill(pid_t(worker()), SIGKILL), 0);
        const Outcome outcome = ended(process);
        QCOMPARE(outcome.exitCode, 1);
        QCOMPARE(outcome.errors, QString("reportconvert: <standard input>: the conversion of this document crashed (SIGKILL)\n"
                "reportconvert: 2 of 3 documents were converted. Not, or not completely: <standard input>.\n"));
        QCOMPARE(namesIn(m_folder->path()), QStringList({"b.json", "b.xml", "c.json", "c.xml"}));
    }

    /// What is missing for all documents is said once, however many processes miss it.
    void missingForAll()
    {
        for (const char* name : {"b.json", "c.json"})
            writeFile(path(name), smallDocument);
        const Outcome outcome = run({"-f", "xml", "-j", "4", "-s", "none", "b.json", "c.json"});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.count("No service could be loaded") == 1 && !outcome.errors.contains("documents"),
                qPrintable(outcome.errors));
        QCOMPARE(namesIn(m_folder->path()), QStringList({"b.json", "c.json"}));
        const Outcome other = run({"-f", "xml", "-j", "4", "-s", "none:" + testData + "/services", "b.json", "c.json"});
        QVERIFY2(other.exitCode == 0 && other.errors.count("none") == 1, qPrintable(other.errors));
    }

    /// The pictures show what the PDF pages show; a window needs a display.
    void previewOfPages()
    {
        writeFile(path("one.json"), smallDocument);
        QCOMPARE(run({"-f", "pdf", "--orientation", "landscape", "one.json"}).exitCode, 0);
        QCOMPARE(run({"--preview", "--orientation", "landscape", "-o", "new/", "one.json"}).exitCode, 0);
        QCOMPARE(namesIn(path("new/one")), QStringList({"page-1.png"}));
        const QImage picture(path("new/one/page-1.png"));
        QCOMPARE(picture.size(), QSize(1650, 1275));
        outputOf("pdftoppm", {"-r", "150", "-png", "-singlefile", path("one.pdf"), path("one")});
        const auto coarse = [](const QImage& image) { return image.scaled(80, 60, Qt::IgnoreAspectRatio, Qt::SmoothTransformation); };
        const QImage own = coarse(picture), other = coarse(QImage(path("one.png")));
        for (int i = 0; i < 80 * 60; ++i)
            QVERIFY(qAbs(qGray(own.pixel(i % 80, i / 80)) - qGray(other.pixel(i % 80, i / 80))) < 40);
        const Outcome window = run({"--preview", "one.json"});
        QVERIFY2(window.exitCode == 1 && window.errors.contains("no display"), qPrintable(window.errors));
    }

    void tablesForSpreadsheets()
    {
        const QByteArray two = "'table_0':{'title':'A','num_columns':1,'row_1':{'cell_0':{'label':'0.5 dB'}}},"
                               "'table_1':{'title':'B'},";
        writeFile(path("one.json"), smallDocument);
        writeFile(path("two.json"), QByteArray(smallDocument).replace("{", '{' + QByteArray(two).replace('\'', '"')));
        QCOMPARE(run({"-f", "csv", "one.json", "two.json"}).exitCode, 0);
        QVERIFY(contentsOf(path("one.csv")).startsWith("\xef\xbb\xbfName,Value\r\nTimestamp,"));
        QVERIFY(contentsOf(path("two.zip")).startsWith("PK"));
        QCOMPARE(run({"-f", "csv", "--csv=zip", "one.json"}).exitCode, 0);
        QCOMPARE(namesIn(m_folder->path()), QStringList({"one.csv", "one.json", "one.zip", "two.json", "two.zip"}));
        QCOMPARE(run({"-f", "csv", "--csv=files", "--decimal-comma", "--no-bom", "-o", "new/", "two.json"}).exitCode, 0);
        QCOMPARE(namesIn(path("new/two")), QStringList({"A.csv", "B.csv", "report.csv"}));
        QCOMPARE(contentsOf(path("new/two/A.csv")), QByteArray(";Unit\r\n0,5;dB\r\n"));
        QVERIFY(run({"-o", "a.zip", "one.json"}).exitCode == 0 && contentsOf(path("a.zip")).startsWith("PK"));
        QVERIFY(run({"-f", "csv", "--csv=zip", "-o", "-", "two.json"}).output.startsWith("PK"));
        for (const char* output : {"-", "a.csv"}) {
            const Outcome several = run({"-f", "csv", "-o", output, "two.json"});
            QVERIFY2(several.exitCode == 1 && several.errors.contains("2 tables"), qPrintable(several.errors));
        }
        QVERIFY(!QFile::exists(path("a.csv")));
    }

    void documentFaults_data()
    {
        addColumns<QString, QString, int>();
        QTest::newRow("syntax") << QString("{\"a\": 1,}") << ":1:(9|10): " << 1;
        QTest::newRow("empty") << QString("") << ":1:1: " << 1;
        QTest::newRow("array") << QString("[]") << ":1:1: " << 1;
        QTest::newRow("root") << QString("{}") << ": warning: .*: /: " << 0;
        QTest::newRow("section") << R"({"node_type": "report", "tag": "", "section_0": {"node_type": 1}})"
                                 << ": warning: .*: /section_0" << 0;
        // moc does not continue after a backslash in a raw string.
        QTest::newRow("terminal's controls")
                << "{\"node_type\": \"report\", \"tag\": \"\", \"attr_\\u001b[2J\\n\": 1}"
                << ": /attr_\uFFFD\\[2J\uFFFD: " << 0;
    }
    /// The same from a file and from standard input, except for the name.
    void documentFaults()
    {
        const auto [text, place, exitCode] = currentRow<QString, QString, int>();
        writeFile(path("odd.json"), text.toUtf8());
        for (const QString& name : {QString("odd.json"), QString("<standard input>")}) {
            const QStringList arguments{"-f", "json", "-o", "out/", name.startsWith('<') ? "-" : name};
            const Outcome outcome = run(arguments, text.toUtf8());
            QCOMPARE(outcome.exitCode, exitCode);
            const QRegularExpression message("^reportconvert: " + name + ".*" + place + ".*\n$");
            QVERIFY2(message.match(outcome.errors).hasMatch(), qPrintable(outcome.errors));
            QCOMPARE(QDir(path("out")).exists(), outcome.exitCode == 0);
            const Outcome strict = run(arguments + QStringList("--strict"), text.toUtf8());
            QCOMPARE(strict.exitCode, 1);
            QVERIFY2(strict.errors.startsWith("reportconvert: " + name + ":"), qPrintable(strict.errors));
        }
    }

    void rejectedCalls_data()
    {
        addColumns<QString, QString>();
        for (const QStringList& row : tableIn("/rejected/commandlines.txt"))
            QTest::newRow(qPrintable(row.at(0))) << row.at(0) << row.at(1);
    }
    /// Each ends with exit status 2 and one line with the error, and leaves the disk unchanged.
    void rejectedCalls()
    {
        const auto [arguments, words] = currentRow<QString, QString>();
        QVERIFY(QDir(m_folder->path()).mkdir("sub") && QDir(m_folder->path()).mkdir("empty") && QFile::link(m_folder->path(), path("link")));
        for (const char* name : {"a.json", "sub/a.json", "sub/b.json"})
            writeFile(path(name), smallDocument);
        // The header of 9,000 by 9,000 pixels.
        writeFile(path("huge.bmp"), QByteArray::fromHex("424d00000000000000003600000028000000282300002823000001002000")
                        + QByteArray(24, '\0'));
        const auto before = snapshot(m_folder->path());

        const Outcome outcome = runLine("exec \"$0\" " + arguments);
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY2(outcome.errors.contains(words), qPrintable(outcome.errors));
        QCOMPARE(outcome.errors.count('\n'), 1);
        QVERIFY(outcome.output.isEmpty());
        QCOMPARE(snapshot(m_folder->path()), before);
    }

    void failures_data()
    {
        addColumns<QString, QString>();
        for (const QStringList& row : tableIn("/rejected/runs.txt"))
            QTest::newRow(qPrintable(row.at(0))) << row.at(0) << row.at(1);
    }
    /// Each ends with exit status 1 and a sentence with the error, and leaves the disk unchanged.
    void failures()
    {
        const auto [line, words] = currentRow<QString, QString>();
        if (line.endsWith(">/dev/full") && !QFile::exists("/dev/full"))
            QSKIP("This machine has no device that is always full.");
        writeFile(path("a.json"), smallDocument);
        writeFile(path("file"), "kept");
        writeFile(path("big.html"), "kept");
        QVERIFY(QDir(m_folder->path()).mkpath("full/a.html"));
        QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
        const auto before = snapshot(m_folder->path());
        const Outcome outcome = runLine("run() { exec \"$0\" -f html \"$@\"; }; " + line);
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.contains(words), qPrintable(outcome.errors));
        QCOMPARE(snapshot(m_folder->path()), before);
    }

    void signalBetweenDocuments_data()
    {
        addColumns<int, QString, int>();
        QTest::newRow("terminated") << SIGTERM << "" << 128 + SIGTERM;
        QTest::newRow("terminal gone") << SIGHUP << "" << 128 + SIGHUP;
        QTest::newRow("ignored by the caller") << SIGHUP << "trap '' HUP;" << 1;
    }
    /// The message about the first document shows that the program is running; then it waits for the second.
    void signalBetweenDocuments()
    {
        const auto [signal, trap, exitCode] = currentRow<int, QString, int>();
        writeFile(path("broken.json"), "{");
        writeFile(path("c.json"), smallDocument);
        QProcess process;
        prepare(process);
        process.start("bash", {"-c", trap + "exec \"$0\" \"$@\"", program, "-j", "1", "-f", "html", "broken.json", "-", "c.json"});
        process.setReadChannel(QProcess::StandardError);
        QVERIFY(process.waitForReadyRead());
        QCOMPARE(::kill(pid_t(process.processId()), signal), 0);
        if (!trap.isEmpty()) {
            process.write(smallDocument);
            process.closeWriteChannel();
        }
        const Outcome outcome = ended(process);
        QCOMPARE(outcome.exitCode, exitCode);
        QCOMPARE(outcome.errors.contains("0 of 3 files were written"), trap.isEmpty());
        QCOMPARE(QDir(m_folder->path()).entryList({"*.html", ".*"}, QDir::Files | QDir::Hidden),
                trap.isEmpty() ? QStringList() : QStringList({"c.html", "report.html"}));
    }

    /// The next run removes what a killed one left.
    void killed()
    {
        writeFile(path("c.json"), smallDocument);
        QProcess process;
        prepare(process);
        process.start(program, {"-f", "html", "-"});
        QTRY_VERIFY(!snapshot(m_scratch->path()).isEmpty());
        process.kill();
        QVERIFY(process.waitForFinished() && !snapshot(m_scratch->path()).isEmpty());
        QCOMPARE(run({"-f", "html", "c.json"}).exitCode, 0);
    }

    void progressOnATerminalOnly()
    {
        writeFile(path("a.json"), smallDocument);
        const QString line = "exec \"$0\" -f all -o out/ a.json";
        QCOMPARE(runLine(line).errors, QString());

        const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
        const bool isUsable = ::grantpt(terminal) == 0 && ::unlockpt(terminal) == 0;
        const QByteArray name = isUsable ? ::ptsname(terminal) : "";
        // Written data is lost when nobody holds the other end.
        const int otherEnd = ::open(name.constData(), O_RDWR | O_NOCTTY);
        if (otherEnd < 0)
            QSKIP("This machine has no terminal to give.");
        QCOMPARE(runLine(line + " 2>" + name).exitCode, 0);
        // The terminal passes the data on in its own time, and in pieces.
        const QByteArray cleared = "\r\033[K";
        // Five files and the document, two steps of one page, and the end.
        const int clearedTimes = 8;
        QByteArray shown;
        pollfd waiting{terminal, POLLIN, 0};
        while (shown.count(cleared) < clearedTimes && ::poll(&waiting, 1, 10000) > 0) {
            char piece[256];
            shown.append(piece, int(qMax<ssize_t>(0, ::read(terminal, piece, sizeof piece))));
        }
        ::close(otherEnd);
        ::close(terminal);
        QVERIFY2(shown.contains("out/a.pdf: page 1 of 1"), shown);
        QVERIFY(shown.endsWith(cleared));
        QVERIFY(!shown.contains('\n'));
    }

    void helpFitsATerminal()
    {
        const QList<QByteArray> lines = run({"--help"}).output.split('\n');
        for (const QByteArray& line : lines)
            QVERIFY2(line.size() <= 80, line);
    }

    /// The completion offers what the program knows.
    void completion()
    {
        QCOMPARE(complaintOf("bash", {"-n", completionScript}), QString());
        if (!QFile::exists("/dev/fd"))
            QSKIP("Without /dev/fd, bash completes nothing.");
        QSet<QString> options;
        static const QRegularExpression option("^ .*(--[a-z-]+)", QRegularExpression::MultilineOption);
        const QString help = QString::fromUtf8(run({"--help"}).output);
        auto it = option.globalMatch(help.section("Exit status:", 0, 0));
        while (it.hasNext())
            options.insert(it.next().captured(1));
        const QStringList offered = complete("reportconvert --");
        QCOMPARE(QSet<QString>(offered.begin(), offered.end()), options);

        const QStringList formats = complete("reportconvert --format ");
        const QString named = formats.mid(0, formats.size() - 1).join(", ") + " and " + formats.last();
        QVERIFY(run({"-f", "?", "a.json"}).errors.contains(named));
        QCOMPARE(complete("reportconvert -f x"), QStringList("xml"));
        QCOMPARE(complete("reportconvert --format = h"), QStringList("html"));

        QVERIFY(QDir(m_folder->path()).mkdir("a folder"));
        for (const char* name : {"a 1.json", "a.txt", "b.json"})
            writeFile(path(name), {});
        QCOMPARE(complete("reportconvert a"), QStringList({"a folder", "a 1.json"}));
        QCOMPARE(complete("reportconvert --services a"), QStringList("a folder"));
        QCOMPARE(complete("reportconvert -o a.").value(0), QString("a.txt"));
    }

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    void prepare(QProcess& process) const
    {
        process.setProcessEnvironment(m_environment);
        process.setWorkingDirectory(m_folder->path());
    }

    Outcome run(QProcess& process, const QString& command, const QStringList& arguments,
            const QByteArray& input = {})
    {
        prepare(process);
        process.start(command, arguments);
        if (!input.isEmpty())
            process.write(input);
        process.closeWriteChannel();
        return ended(process);
    }

    /// Runs a line of the shell, in which "$0" is the program.
    Outcome runLine(const QString& line)
    {
        QProcess process;
        return run(process, "bash", {"-c", line, program});
    }

    /// The output of another program.
    QString run(const char* other, const QStringList& arguments)
    {
        QProcess process;
        return QString::fromUtf8(run(process, other, arguments).output);
    }

    Outcome run(const QStringList& arguments, const QByteArray& input = {})
    {
        QProcess process;
        return run(process, program, arguments, input);
    }

    /// The completions of the last word of a line, separated by single blanks.
    QStringList complete(const QString& line)
    {
        QProcess process;
        const QStringList words = line.split(' ');
        const Outcome outcome = run(process, "bash",
                QStringList{"-c",
                        "source \"$0\"; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _reportconvert;"
                        "printf '%s\\n' \"${COMPREPLY[@]}\"",
                        completionScript}
                        + words);
        return QString::fromUtf8(outcome.output).split('\n', Qt::SkipEmptyParts);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QTemporaryDir> m_scratch;
    QProcessEnvironment m_environment;
};

QTEST_GUILESS_MAIN(ReportConvertTest)
#include "tst_reportconvert.moc"
