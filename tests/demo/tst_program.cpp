#include "columns.h"
#include "files.h"

#include <QImage>
#include <QLibraryInfo>
#include <QStandardPaths>

namespace {

/// Runs a program without a display, unless `variables` name one.
Outcome run(const QString& program, const QStringList& arguments, const QMap<QString, QString>& variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_QUICK_BACKEND", "XDG_RUNTIME_DIR"})
        environment.remove(name);
    for (auto it = variables.begin(); it != variables.end(); ++it)
        environment.insert(it.key(), it.value());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    return ended(process);
}

/// What a program complained of. That there is no on-screen keyboard is a note.
QString complaints(const Outcome& outcome)
{
    QStringList lines = outcome.errors.split('\n', Qt::SkipEmptyParts);
    lines.removeAll("qml: There is no on-screen keyboard: Qt Virtual Keyboard is not installed, or QT_IM_MODULE is not "
                    "\"qtvirtualkeyboard\".");
    return lines.join('\n');
}

Outcome runDemo(const QStringList& arguments, const QMap<QString, QString>& variables = {})
{
    return run(UIUTILS_DEMO_PROGRAM, arguments, variables);
}

QStringList filesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        files += it.next();
    files.sort();
    return files;
}

/// The text of the page, with single blanks between words.
QString wordsOf(const QByteArray& html)
{
    return QString::fromUtf8(html).remove(QRegularExpression("<[^>]*>")).simplified();
}

/// "Sample 1 0.05 ms Sample 2 ..." of a section's table.
QStringList samplesOf(const QJsonObject& section)
{
    const QJsonObject table = section["table_1"].toObject();
    QMap<int, QString> rows;
    for (auto it = table.begin(); it != table.end(); ++it) {
        const QJsonObject row = it.value().toObject();
        if (it.key().startsWith("row_"))
            rows[it.key().mid(4).toInt()]
                    = row["label"].toString() + ' ' + row["cell_0"].toObject()["label"].toString();
    }
    return rows.values();
}

} // namespace

class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    void tour_data()
    {
        addColumns<QByteArray>();
        QTest::newRow("keys") << QByteArray("none");
        QTest::newRow("on-screen keyboard") << QByteArray("qtvirtualkeyboard");
    }

    /// What is typed is the same, wherever the keyboard is.
    void tour()
    {
        const auto [keyboard] = currentRow<QByteArray>();
        const bool isOnScreen = keyboard != "none";
        if (isOnScreen && !QFile::exists(QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/platforminputcontexts/libqtvirtualkeyboardplugin.so"))
            QSKIP("Qt Virtual Keyboard is not installed");
        // Numbers of three digits must be in order, too.
        const int samples = 100;
        const QString root = m_folder->filePath("a new/root");
        const Outcome outcome = runDemo({"--tour", "--root", root, "--samples", QString::number(samples)}, {{"QT_IM_MODULE", keyboard}});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        QCOMPARE(complaints(outcome), QString());
        QCOMPARE(outcome.output.contains("Texts were typed on the on-screen keyboard."), isOnScreen);

        const QStringList reports = filesBelow(root + "/cust/public/reports");
        const QStringList pictures = filesBelow(root + "/pictures");
        QCOMPARE(reports.size(), 5);
        QCOMPARE(QFileInfo(reports.constFirst()).fileName(), QString("lindhof.html"));
        QCOMPARE(pictures.size(), 19);
        const QStringList screenshots = filesBelow(root + "/cust/public/screenshots");
        QCOMPARE(screenshots.size(), 1);
        for (const QString& file : reports + pictures + screenshots)
            QVERIFY2(outcome.output.split('\n').contains(file.toUtf8()), qPrintable(outcome.output));
        checkReport(reports.at(0), reports.at(1), samples);
        checkPages(reports.at(2));
        for (const QString& picture : pictures + screenshots)
            checkPicture(picture);
    }

    /// The results of a program that was killed are kept until they are saved, and no longer.
    void killed_data()
    {
        addColumns<QString, bool>();
        QTest::newRow("measured") << QString("07-measured") << true;
        QTest::newRow("saved") << QString("12-question") << false;
    }
    void killed()
    {
        const auto [picture, isKept] = currentRow<QString, bool>();
        const QString root = m_folder->filePath("root");
        QProcess demo;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("DISPLAY");
        demo.setProcessEnvironment(environment);
        demo.start(UIUTILS_DEMO_PROGRAM, {"--tour", "--root", root});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(root + "/pictures/" + picture + ".png"), 60000);
        demo.kill();
        QVERIFY(demo.waitForFinished());
        const QStringList kept = filesBelow(root + "/cust/private/drafts").filter(".draft");
        QCOMPARE(kept.size(), isKept ? 1 : 0);
        QCOMPARE(filesBelow(root + "/cust/public/reports").size(), isKept ? 0 : 5);
    }

    /// Without a display, or with one that does not answer, the tour starts without being requested.
    void runsByItself()
    {
        for (const char* display : {"", "127.0.0.1:9999"}) {
            const QString root = m_folder->filePath("root" + QString(display));
            const Outcome outcome = runDemo({}, {{"UIUTILS_ROOT", root}, {"DISPLAY", display}});
            QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
            QCOMPARE(filesBelow(root + "/cust/public/reports").size(), 5);
        }
    }

    void secondTourBesideTheFirst()
    {
        const QString root = m_folder->path();
        QCOMPARE(runDemo({"--tour", "--root", root}).exitCode, 0);
        const QString viewer = root + "/base/bin/pdf_viewer";
        QFile::remove(viewer);
        QVERIFY(QDir().mkpath(root + "/base/bin") && QFile::link("/nowhere/pdf_viewer", viewer));

        QCOMPARE(runDemo({"--tour", "--root", root}).exitCode, 0);
#ifdef UIUTILS_PDF_VIEWER
        QCOMPARE(QFileInfo(viewer).canonicalFilePath(), QFileInfo(UIUTILS_PDF_VIEWER).canonicalFilePath());
        QVERIFY(QFileInfo(root + "/base/qml/pdf_viewer").isDir());
#endif
    }

    /// The second one sees what the first one changes, and the process of the services end and return. The tour puts the
    /// user's name back, and that survives.
    void twoApplicationsOnABus()
    {
        if (QStandardPaths::findExecutable("dbus-run-session").isEmpty())
            QSKIP("there is no dbus-run-session");
        const QString folder = m_folder->path();
        writeFile(folder + "/services/cust/private/lastconfigs/services/basemgr.state.json",
                R"({ "service": "basemgr", "values": { ":config:basemgr:system:userInfo_lastName:": "Dahl" } })");
        const Outcome outcome = run("dbus-run-session",
                {"--", UIUTILS_SOURCE_DIR "/tools/demo-bus", QFileInfo(UIUTILS_DEMO_PROGRAM).path(), "--tour"},
                {{"UIUTILS_ROOT", folder}, {"XDG_RUNTIME_DIR", folder}});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        const QString said = QString::fromUtf8(outcome.output);
        const QRegularExpression story("second application: Another application has changed it to \"Solheim\"[.]\n"
                                       ".*is killed.*"
                                       "second application: The services have ended; it stays \"Dahl\"[.]\n"
                                       ".*is started again.*"
                                       "second application: The services have returned, and nothing is lost[.]\n",
                QRegularExpression::DotMatchesEverythingOption);
        QVERIFY2(story.match(said).hasMatch(), qPrintable(said));
        QCOMPARE(filesBelow(folder + "/first/cust/public/reports").size(), 5);
        const QStringList pictures = filesBelow(folder + "/second/pictures");
        QCOMPARE(pictures.size(), 3);
        for (const QString& picture : pictures)
            checkPicture(picture);
    }

    void failures_data()
    {
        addColumns<QStringList, QString>();
        QTest::newRow("root is a file") << QStringList{"--tour", "--root", "%1/file"} << "%1/file is a file";
        QTest::newRow("root below a file") << QStringList{"--tour", "--root", "%1/file/root"} << "%1/file is a file";
        QTest::newRow("icon folder is a file") << QStringList{"--tour", "--root", "%1/blocked"} << "%1/blocked/base is a file";
        QTest::newRow("no service folder") << QStringList{"--tour", "--root", "%1/root", "--services", "%1/none"}
                                           << "No service could be loaded from %1/none";
        QTest::newRow("broken service") << QStringList{"--tour", "--root", "%1/root", "--services", "%1/broken"} << "bad.service.json";
    }

    /// Each ends with exit status 1 and a sentence, and leaves the disk unchanged.
    void failures()
    {
        auto [arguments, sentence] = currentRow<QStringList, QString>();
        QDir folder(m_folder->path());
        for (const char* name : {"file", "blocked/base", "broken/bad.service.json"})
            writeFile(folder.filePath(name), "{ no service");
        const QStringList before = filesBelow(folder.path());

        const Outcome outcome = runDemo(arguments.replaceInStrings("%1", folder.path()));
        QCOMPARE(outcome.exitCode, 1);
        sentence.replace("%1", folder.path());
        QVERIFY2(outcome.errors.contains(sentence), qPrintable(outcome.errors));
        QCOMPARE(filesBelow(folder.path()), before);
        QVERIFY(!folder.exists("root"));
    }

    /// Settings of an earlier run are used; the tour's own settings appear only in its report.
    void settingsSurviveARestart()
    {
        const QString kept = m_folder->filePath("cust/private/lastconfigs/services/");
        const QString basemgr = writeFile(kept + "basemgr.state.json",
                R"({ "service": "basemgr", "values": { ":config:basemgr:system:userInfo_firstName:": "Signe",
                ":config:basemgr:system:userInfo_lastName:": "Dahl" } })");
        writeFile(kept + "loopback.state.json",
                R"({ "service": "loopback", "values": { ":config:loopback:test:rttSamples:": 22 } })");

        for (int run = 0; run < 2; ++run) {
            const Outcome outcome = runDemo({"--tour", "--root", m_folder->path()});
            QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
            QCOMPARE(complaints(outcome), QString());
            const QString words = wordsOf(contentsOf(filesBelow(m_folder->filePath("cust/public/reports")).at(5 * run)));
            QVERIFY2(words.contains("Signe"), qPrintable(words));
            QVERIFY2(words.contains("Solheim") && !words.contains("Dahl"), qPrintable(words));
            QVERIFY2(words.contains("at most 2.00 ms"), qPrintable(words));
            QVERIFY2(words.contains("Sample 22") && words.contains("Sample 40"), qPrintable(words));
        }
        const QJsonObject values = QJsonDocument::fromJson(contentsOf(basemgr)).object()["values"].toObject();
        QCOMPARE(values[":config:basemgr:system:userInfo_lastName:"].toString(), QString("Dahl"));
        const QByteArray report = contentsOf(m_folder->filePath("cust/private/lastconfigs/reportSettings/loopback.json"));
        QCOMPARE(QJsonDocument::fromJson(report).object()["reportFormat"].toInt(-1), 0);
    }

    /// A folder is in the place of the last picture: everything that was finished before stays, and is named. A viewer
    /// that a user put there stays.
    void pictureThatCannotBeWritten()
    {
        QVERIFY(QDir(m_folder->path()).mkpath("pictures/10-report.png"));
        const QString viewer = writeFile(m_folder->filePath("base/bin/pdf_viewer"), "own");
        const Outcome outcome = runDemo({"--tour", "--root", m_folder->path()});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.contains("10-report.png"), qPrintable(outcome.errors));
        QCOMPARE(filesBelow(m_folder->filePath("pictures")).size(), 9);
        QVERIFY(outcome.output.contains("09-failures.png"));
        QVERIFY(!outcome.output.contains("10-report.png"));
        QCOMPARE(contentsOf(viewer), QByteArray("own"));
    }

    void commandLine_data()
    {
        addColumns<QStringList, int>();
        QTest::newRow("help") << QStringList{"--help"} << 0;
        QTest::newRow("version") << QStringList{"--version"} << 0;
        QTest::newRow("unknown option") << QStringList{"--rot", "x"} << 2;
        QTest::newRow("argument") << QStringList{"x"} << 2;
        QTest::newRow("no root") << QStringList{"--root"} << 2;
        QTest::newRow("empty root") << QStringList{"--root", ""} << 2;
        QTest::newRow("too few samples") << QStringList{"--samples", "19"} << 2;
        QTest::newRow("too many samples") << QStringList{"--samples", "201"} << 2;
        QTest::newRow("no number") << QStringList{"--samples", "many"} << 2;
    }

    void commandLine()
    {
        const auto [arguments, exitCode] = currentRow<QStringList, int>();
        const Outcome outcome = runDemo(arguments);
        QCOMPARE(outcome.exitCode, exitCode);
        // An answer is written to standard output, an error to standard error.
        QCOMPARE(outcome.output.isEmpty(), outcome.exitCode != 0);
        QCOMPARE(outcome.errors.isEmpty(), outcome.exitCode == 0);
    }

private:
    void checkReport(const QString& page, const QString& document, int samples)
    {
        QVERIFY(page.endsWith(".html") && document.endsWith(".json"));
        const QJsonObject report = QJsonDocument::fromJson(contentsOf(document)).object();
        const QJsonObject section = report["section_0"].toObject();
        const QStringList roundTrips = samplesOf(section["section_0"].toObject());
        const QStringList throughputs = samplesOf(section["section_1"].toObject());
        QCOMPARE(roundTrips.size(), samples);
        QCOMPARE(throughputs.size(), samples);
        QCOMPARE(section["attr_samples"].toString(), QString::number(samples));

        // All samples are on the page in the order in which they were taken.
        const QByteArray html = contentsOf(page);
        const QString words = wordsOf(html);
        QVERIFY2(words.contains(roundTrips.join(' ')), qPrintable(words));
        QVERIFY2(words.contains(throughputs.join(' ')), qPrintable(words));
        QVERIFY(QRegularExpression("report_status=(pass|marginal|fail)").match(html).hasMatch());

        // Each quantity is plotted.
        QRegularExpressionMatchIterator plots
                = QRegularExpression("<p>\\s*<img src=\"data:image/png;base64,([^\"]+)\"").globalMatch(html);
        int curves = 0;
        while (plots.hasNext()) {
            const QImage plot = QImage::fromData(QByteArray::fromBase64(plots.next().captured(1).toLatin1()));
            QCOMPARE(plot.size(), QSize(640, 320));
            ++curves;
        }
        QCOMPARE(curves, 2);

        // The page needs no other file.
        QVERIFY(html.contains("src=\"data:image/png;base64,"));
        QVERIFY(!QRegularExpression("src=\"(?!data:)").match(html).hasMatch());
    }

    void checkPages(const QString& file)
    {
        QVERIFY(file.endsWith(".pdf"));
        const QString words = outputOf("pdftotext", {file, "-"}).simplified();
        for (const char* text : {"Solvant Report", "Overall Status", "Job ID", "Unit ID: ", "Page 1 of "})
            QVERIFY2(words.contains(text), text);
    }

    /// A page has far more than one colour; a window that drew nothing does not.
    void checkPicture(const QString& path)
    {
        const QImage image(path);
        QCOMPARE(image.size(), QSize(1024, 600));
        QSet<QRgb> colors;
        for (int y = 0; y < image.height(); y += 2) {
            for (int x = 0; x < image.width(); x += 2)
                colors.insert(image.pixel(x, y));
        }
        QVERIFY2(colors.size() > 20, qPrintable(path));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "tst_program.moc"
