#include "document/reporttemplate.h"
#include "templ2xmlwriter/templatetoxmlwriter.h"

#include <embedded/embeddedbackend.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QLoggingCategory>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <memory>
#include <sys/stat.h>

namespace {

const QString program = UIUTILS_CONVERT_PROGRAM;
const QString testData = UIUTILS_TEST_DATA_DIR;
const QByteArray smallDocument(R"({"node_type": "report", "tag": "small", "title": "Small"})");

struct Outcome
{
    int exitCode = -1;
    QByteArray output;
    QString errors;
};

void finish(QProcess& process, Outcome* outcome)
{
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished();
    } else {
        outcome->exitCode = process.exitCode();
    }
    outcome->output = process.readAllStandardOutput();
    outcome->errors = QString::fromUtf8(process.readAllStandardError());
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size(), qPrintable(path));
}

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

/// What a reader that knows nothing of this library has against the file; empty for nothing.
QString complaintOf(const QString& reader, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(reader, arguments);
    if (!process.waitForFinished(60000))
        return reader + " does not run";
    return process.exitCode() == 0 ? QString() : QString::fromUtf8(process.readAll()).left(2000);
}

int imageCount(const QString& html)
{
    return html.count("<img src=\"data:image/png;base64,");
}

} // namespace

class ReportConvertTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"); }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_scratch = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid() && m_scratch->isValid());
        m_environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"UIUTILS_ROOT", "XDG_RUNTIME_DIR", "QT_QPA_PLATFORM", "DISPLAY"})
            m_environment.remove(name);
        m_environment.insert("TMPDIR", m_scratch->path());
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
        const Outcome outcome = run({"--format", "all", "--services", testData + "/services", "--output",
                path("new/folder/"), document});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        QCOMPARE(QDir(path("new/folder")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                QStringList({name + ".html", name + ".json", name + ".xml"}));

        kiv::embedded::EmbeddedBackend backend;
        backend.loadFolders({testData + "/services"});
        ReportTemplate report;
        report.readFile(document);
        const QString stem = path("new/folder/") + name;
        QCOMPARE(contentsOf(stem + ".json"), report.toJson().toUtf8());
        QCOMPARE(contentsOf(stem + ".xml"), TemplateToXmlWriter(report, false, true, true).getXml().toUtf8());
        QCOMPARE(complaintOf("xmllint", {"--noout", stem + ".html", stem + ".xml"}), QString());
        QCOMPARE(complaintOf("tidy", {"-q", "-e", "--show-warnings", "no", stem + ".html"}), QString());
    }

    /// Icons, logo, plot and the services' tables are inside, and no other file is needed.
    void pageStandsAlone()
    {
        write(path("plot.json"), R"({"node_type": "report", "tag": "t", "section_0": {"node_type": "section",
            "tag": "s", "title": "S", "table_0": {"node_type": "table", "tag": "p", "title": "", "label": "plot",
            "service": "plots", "use_row_labels": true, "num_columns": 0},
            "table_1": {"node_type": "table", "tag": "p", "title": "", "use_row_labels": true, "num_columns": 1,
            "row_1": {"label": "Good", "cell_0": {"label": "1", "attr_status": "16"}}}}})");
        const QString services = testData + "/none:" + testData + "/services";
        const Outcome outcome
                = run({"-f", "html", "-s", services, "-o", path("page.html"), path("plot.json")});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        QVERIFY2(outcome.errors.contains(testData + "/none"), qPrintable(outcome.errors));

        const QString page = QString::fromUtf8(contentsOf(path("page.html")));
        QVERIFY(!page.contains(QRegularExpression("src=\"(?!data:)")));
        QList<int> widths;
        auto images = QRegularExpression("src=\"data:image/png;base64,([^\"]*)\"").globalMatch(page);
        while (images.hasNext())
            widths += QImage::fromData(QByteArray::fromBase64(images.next().captured(1).toLatin1())).width();
        QCOMPARE(widths.size(), 3);
        QCOMPARE(widths.at(1), 600);
        QVERIFY(!widths.contains(0));
        for (const char* value : {"WO-1", "Acme", "T-1", "BU-1"})
            QVERIFY2(page.contains(value), value);
    }

    void pageOptions()
    {
        write(path("small.json"), smallDocument);
        const auto page = [&](const QStringList& options) {
            return QString::fromUtf8(
                    run(QStringList{"-f", "html", "-o", "-", path("small.json")} + options).output);
        };
        QVERIFY(page({}).contains("<title>Small</title>"));
        QCOMPARE(imageCount(page({})), 1);
        QVERIFY(page({"--title", "Größe <1>"}).contains("<title>Größe &lt;1&gt;</title>"));
        QCOMPARE(imageCount(page({"--no-logo"})), 0);
        QVERIFY(!page({"--no-logo"}).contains("<img"));

        m_environment.insert("UIUTILS_ROOT", m_folder->path());
        const Outcome bare = run({"-f", "html", "-o", "-", path("small.json")});
        QVERIFY2(bare.errors.contains("UIUTILS_ROOT"), qPrintable(bare.errors));
        QCOMPARE(bare.exitCode, 0);
    }

    /// Neither the locale nor a display that does not answer matters, nor a name that looks like an option.
    void hostileEnvironment()
    {
        m_environment.insert("LC_ALL", "C");
        m_environment.insert("QT_QPA_PLATFORM", "xcb");
        m_environment.insert("DISPLAY", "127.0.0.1:9999");
        for (const char* name : {"Größe 1.json", "-platform"}) {
            write(path(name), smallDocument);
            const Outcome outcome = run({"--format=html", "--", name});
            QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        }
        QVERIFY(QFile::exists(path("Größe 1.html")));
        QVERIFY(QFile::exists(path("-platform.html")));
    }

    void standardStreams()
    {
        write(path("small.json"), smallDocument);
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
        write(path("a.json"), smallDocument);
        write(path("broken.json"), "{\n  \"tag\": nonsense }");
        write(path("c.json"), smallDocument);
        const Outcome outcome
                = run({"-f", "html", "-f", "json", "-o", "out/", "a.json", "broken.json", "c.json"});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.startsWith("reportconvert: broken.json:2:"), qPrintable(outcome.errors));
        QCOMPARE(outcome.errors.count('\n'), 1);
        QCOMPARE(QDir(path("out")).entryList(QDir::Files | QDir::Hidden),
                QStringList({"a.html", "a.json", "c.html", "c.json"}));
    }

    void documentFaults_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("place");
        const QByteArray noTitle = R"({"node_type": "report", "tag": "", "section_0": {"node_type": 1}})";
        QTest::newRow("syntax") << QByteArray("{\"a\": 1,}") << QStringList() << 1 << ":1:(9|10): ";
        QTest::newRow("empty") << QByteArray() << QStringList() << 1 << ":1:1: ";
        QTest::newRow("array") << QByteArray("[]") << QStringList() << 1 << ":1:1: ";
        QTest::newRow("root") << QByteArray("{}") << QStringList() << 0 << ": warning: .*: /: ";
        QTest::newRow("deep") << noTitle << QStringList() << 0 << ": warning: .*: /section_0";
        QTest::newRow("strict") << noTitle << QStringList("--strict") << 1 << ": /section_0";
        QTest::newRow("control characters in a key")
                << QByteArray("{\"node_type\": \"report\", \"tag\": \"\", \"attr_\\u001b[2J\\n\": 1}")
                << QStringList() << 0 << ": /attr_\uFFFD\\[2J\uFFFD: ";
    }
    /// The same from a file and from standard input, but for the name.
    void documentFaults()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QStringList, options);
        QFETCH(const QString, place);
        write(path("odd.json"), text);
        for (const QString& name : {QString("odd.json"), QString("<standard input>")}) {
            const QString document = name.startsWith('<') ? "-" : name;
            const Outcome outcome = run(options + QStringList{"-f", "json", "-o", "out/", document}, text);
            QTEST(outcome.exitCode, "exitCode");
            const QRegularExpression message("^reportconvert: " + name + ".*" + place);
            QVERIFY2(message.match(outcome.errors).hasMatch(), qPrintable(outcome.errors));
            QCOMPARE(outcome.errors.count('\n'), 1);
            QCOMPARE(QDir(path("out")).exists(), outcome.exitCode == 0);
        }
    }

    void refusedCalls_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("words");
        const QString a = "a.json";
        QTest::newRow("no document") << QStringList{"-f", "html"} << "No document";
        QTest::newRow("empty name") << QStringList{"-f", "html", ""} << "empty";
        QTest::newRow("no format") << QStringList{a} << "--format";
        QTest::newRow("suffix is no format") << QStringList{a, "-o", "a.pdf"} << "--format";
        QTest::newRow("suffix of standard output") << QStringList{a, "-o", "-"} << "--format";
        QTest::newRow("unknown format") << QStringList{a, "-f", "pdf"} << "html, xml, json";
        QTest::newRow("unknown option") << QStringList{a, "--frmat", "html"} << "frmat";
        QTest::newRow("empty output") << QStringList{a, "-f", "html", "-o", ""} << "--output";
        QTest::newRow("empty services") << QStringList{a, "-f", "html", "-s", ":"} << "--services";
        QTest::newRow("title without a page") << QStringList{a, "-f", "xml", "--title", "T"} << "--title";
        QTest::newRow("two to standard output")
                << QStringList{a, "sub/b.json", "-f", "xml", "-o", "-"} << "one document";
        QTest::newRow("all to standard output") << QStringList{a, "-f", "all", "-o", "-"} << "one document";
        QTest::newRow("two into a file") << QStringList{a, "sub/b.json", "-f", "xml", "-o", "new"} << "\"/\"";
        QTest::newRow("same name") << QStringList{a, "sub/a.json", "-f", "html", "-o", "out/"}
                                   << "sub/a.json";
        QTest::newRow("same document") << QStringList{a, "./a.json", "-f", "html"} << "./a.json";
        QTest::newRow("itself") << QStringList{a, "-f", "all"} << "overwrite the document a.json";
        QTest::newRow("itself by a link") << QStringList{"link/a.json", "-f", "json"} << "overwrite";
        QTest::newRow("another document")
                << QStringList{a, "sub/b.json", "-f", "json", "-o", "sub"} << "sub/b.json";
        QTest::newRow("what standard input reads") << QStringList{"-", "-o", "a.json"} << "<standard input>";
    }
    /// Each ends with exit status 2 and one line that names the trouble, and leaves the disk as it was.
    void refusedCalls()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, words);
        QVERIFY(QDir(m_folder->path()).mkdir("sub") && QFile::link(m_folder->path(), path("link")));
        for (const char* name : {"a.json", "sub/a.json", "sub/b.json"})
            write(path(name), smallDocument);
        const auto before = snapshot(m_folder->path());

        QProcess process;
        process.setStandardInputFile(path("a.json"));
        const Outcome outcome = run(process, program, arguments);
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY2(outcome.errors.contains(words), qPrintable(outcome.errors));
        QCOMPARE(outcome.errors.count('\n'), 1);
        QVERIFY(outcome.output.isEmpty());
        QCOMPARE(snapshot(m_folder->path()), before);
    }

    void failedWrites_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<QString>("words");
        QTest::newRow("missing folder") << "none/a.html"
                                        << "The folder none does not exist";
        QTest::newRow("file for a folder") << "file/a.html"
                                           << "file is no folder";
        QTest::newRow("file for a folder to be made") << "file/"
                                                      << "file is no folder";
        QTest::newRow("folder for a file") << "full"
                                           << "full/a.html is no regular file";
        QTest::newRow("device") << "/dev/null"
                                << "/dev/null is no regular file";
        QTest::newRow("open descriptor") << "/dev/stdout"
                                         << "/dev/stdout is no regular file";
        // The first 4 KiB are written, so that this one fails in the middle of the file.
        QTest::newRow("no room") << "big.html"
                                 << "Cannot write big.html";
    }
    void failedWrites()
    {
        QFETCH(const QString, output);
        QFETCH(const QString, words);
        write(path("a.json"), smallDocument);
        write(path("file"), "kept");
        write(path("big.html"), "kept");
        QVERIFY(QDir(m_folder->path()).mkpath("full/a.html") && QDir(m_folder->path()).mkdir("root"));
        m_environment.insert("UIUTILS_ROOT", path("root"));
        const auto before = snapshot(m_folder->path());

        QProcess process;
        const Outcome outcome = run(process, "bash",
                {"-c", "ulimit -f 4; exec \"$0\" \"$@\" | cat", program, "-f", "html", "-o", output,
                        "a.json"});
        QVERIFY2(outcome.errors.contains(words), qPrintable(outcome.errors));
        QCOMPARE(snapshot(m_folder->path()), before);
        struct stat status
        {
        };
        QVERIFY(::stat("/dev/null", &status) == 0 && S_ISCHR(status.st_mode));
        QCOMPARE(run({"-f", "html", "-o", output, "a.json"}).exitCode, output == "big.html" ? 0 : 1);
    }

    void failedStandardOutput_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QString>("words");
        QTest::newRow("full") << "exec \"$0\" \"$@\" >/dev/full"
                              << "No space left";
        QTest::newRow("closed") << "exec \"$0\" \"$@\" >&-"
                                << "Bad file descriptor";
        QTest::newRow("reader gone") << "exec 3> >(exit); wait $!; exec \"$0\" \"$@\" >&3"
                                     << "its reader has closed it";
    }
    void failedStandardOutput()
    {
        QFETCH(const QString, shell);
        QFETCH(const QString, words);
        write(path("a.json"), smallDocument);
        for (const QStringList& arguments :
                {QStringList{"-f", "xml", "-o", "-", "a.json"}, QStringList{"--help"}}) {
            QProcess process;
            const Outcome outcome = run(process, "bash", QStringList{"-c", shell, program} + arguments);
            QCOMPARE(outcome.exitCode, 1);
            QVERIFY2(outcome.errors.contains(words), qPrintable(outcome.errors));
        }
    }

    void otherFailures_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("temporary");
        QTest::addColumn<QString>("words");
        QTest::newRow("no services") << QStringList{"-s", "none"} << ""
                                     << "No service could be loaded from none";
        QTest::newRow("strict services")
                << QStringList{"--strict", "-s", testData + "/services", "-s", "none"} << ""
                << "none";
        QTest::newRow("no temporary folder") << QStringList() << "/nowhere"
                                             << "TMPDIR";
    }
    void otherFailures()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, temporary);
        QFETCH(const QString, words);
        write(path("a.json"), smallDocument);
        if (!temporary.isEmpty())
            m_environment.insert("TMPDIR", temporary);
        const Outcome outcome = run(arguments + QStringList{"-f", "html", "a.json"});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.contains(words), qPrintable(outcome.errors));
        QVERIFY(!QFile::exists(path("a.html")));
    }

    void signalBetweenDocuments_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<QString>("trap");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("terminated") << SIGTERM << "" << 128 + SIGTERM;
        QTest::newRow("interrupted") << SIGINT << "" << 128 + SIGINT;
        QTest::newRow("terminal gone") << SIGHUP << "" << 128 + SIGHUP;
        QTest::newRow("ignored by the caller") << SIGHUP << "trap '' HUP;" << 1;
    }
    /// The message about the first document tells that the program is running; then it waits for the second.
    void signalBetweenDocuments()
    {
        QFETCH(const int, signal);
        QFETCH(const QString, trap);
        write(path("broken.json"), "{");
        write(path("c.json"), smallDocument);
        QProcess process;
        prepare(process);
        process.start("bash",
                {"-c", trap + "exec \"$0\" \"$@\"", program, "-f", "html", "broken.json", "-", "c.json"});
        process.setReadChannel(QProcess::StandardError);
        QVERIFY(process.waitForReadyRead());
        QCOMPARE(::kill(pid_t(process.processId()), signal), 0);
        if (!trap.isEmpty()) {
            process.write(smallDocument);
            process.closeWriteChannel();
        }
        Outcome outcome;
        finish(process, &outcome);
        QTEST(outcome.exitCode, "exitCode");
        QCOMPARE(outcome.errors.contains("0 of 3 files were written"), trap.isEmpty());
        QCOMPARE(QDir(m_folder->path()).entryList({"*.html", ".*"}, QDir::Files | QDir::Hidden),
                trap.isEmpty() ? QStringList() : QStringList({"c.html", "report.html"}));
    }

    void progressOnATerminal()
    {
        write(path("a.json"), smallDocument);
        QProcess process;
        const QString call = program + " -f all -o out/ a.json";
        const Outcome terminal = run(process, "script", {"-qec", call, "/dev/null"});
        QCOMPARE(terminal.exitCode, 0);
        QVERIFY2(terminal.output.contains("2 of 3 files written, out/a.json"), terminal.output);
        QVERIFY(terminal.output.endsWith("\r\033[K"));
        QVERIFY(!terminal.output.contains('\n'));
        QCOMPARE(run({"-f", "all", "-o", "out/", "a.json"}).errors, QString());
    }

    void answers()
    {
        const Outcome version = run({"--version"});
        QCOMPARE(version.exitCode, 0);
        QVERIFY(QRegularExpression("^reportconvert \\(uiutils\\) [0-9.]+\n$")
                        .match(version.output)
                        .hasMatch());
        const Outcome help = run({"--help"});
        QCOMPARE(help.exitCode, 0);
        QCOMPARE(help.errors, QString());
        for (const QByteArray& line : help.output.split('\n'))
            QVERIFY2(line.size() <= 80, line);
    }

    /// What is completed is what the program knows.
    void completion()
    {
        QCOMPARE(complaintOf("bash", {"-n", completionScript()}), QString());
        QSet<QString> options;
        auto it = QRegularExpression("^ .*(--[a-z-]+)", QRegularExpression::MultilineOption)
                          .globalMatch(
                                  QString::fromUtf8(run({"--help"}).output).section("Exit status:", 0, 0));
        while (it.hasNext())
            options.insert(it.next().captured(1));
        const QStringList offered = complete("reportconvert --");
        QCOMPARE(QSet<QString>(offered.begin(), offered.end()), options);

        const QStringList formats = complete("reportconvert --format ");
        QVERIFY(formats.size() > 3);
        QVERIFY(run({"-f", "?", "a.json"})
                        .errors.contains(
                                formats.mid(0, formats.size() - 1).join(", ") + " and " + formats.last()));
        QCOMPARE(complete("reportconvert -f x"), QStringList("xml"));
        QCOMPARE(complete("reportconvert --format = h"), QStringList("html"));

        QVERIFY(QDir(m_folder->path()).mkdir("a folder"));
        for (const char* name : {"a 1.json", "a.txt", "b.json"})
            write(path(name), {});
        QCOMPARE(complete("reportconvert a"), QStringList({"a folder", "a 1.json"}));
        QCOMPARE(complete("reportconvert --services a"), QStringList("a folder"));
        QCOMPARE(complete("reportconvert -o a.").value(0), QString("a.txt"));
    }

    void manual()
    {
        const QString page = UIUTILS_CONVERT_MANUAL;
        if (page.isEmpty())
            QSKIP("help2man is not installed");
        const QByteArray text = contentsOf(page);
        for (const char* part : {".SH SYNOPSIS", ".SH OPTIONS", "\\-\\-services", ".SH EXAMPLES", "128+N"})
            QVERIFY2(text.contains(part), part);
    }

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    static QString completionScript()
    {
        return UIUTILS_SOURCE_DIR "/apps/reportconvert/reportconvert.bash-completion";
    }

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
        Outcome outcome;
        finish(process, &outcome);
        return outcome;
    }

    Outcome run(const QStringList& arguments, const QByteArray& input = {})
    {
        QProcess process;
        return run(process, program, arguments, input);
    }

    /// What the completion offers for the last word of a line, words apart by single blanks.
    QStringList complete(const QString& line)
    {
        QProcess process;
        const QStringList words = line.split(' ');
        const Outcome outcome = run(process, "bash",
                QStringList{"-c",
                        "source \"$0\"; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _reportconvert;"
                        "printf '%s\\n' \"${COMPREPLY[@]}\"",
                        completionScript()}
                        + words);
        return QString::fromUtf8(outcome.output).split('\n', Qt::SkipEmptyParts);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QTemporaryDir> m_scratch;
    QProcessEnvironment m_environment;
};

QTEST_GUILESS_MAIN(ReportConvertTest)
#include "tst_reportconvert.moc"
