#include "columns.h"

#include "documentbytes.h"
#include "inputplugins.h"
#include "options.h"
#include "pdfpages.h"
#include "viewersamples.h"

#include <sys/stat.h>

using namespace uiutils::viewer;

/// How the viewer reads command lines and files.
class FilesTest : public QObject
{
    Q_OBJECT

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase()
    {
        const QByteArray pdf = samples::barred(3);
        writeFile(path("good.pdf"), pdf);
        writeFile(path("noise.pdf"), QByteArray(200, '-') + pdf);
        writeFile(path("text.pdf"), "no report");
        writeFile(path("empty.pdf"), "");
        writeFile(path("torn.pdf"), pdf.left(pdf.size() - 300));
        writeFile(path("bent.pdf"), QByteArray(pdf).replace("startxref\n", "startxref\n9"));
        writeFile(path("stump.pdf"), pdf.left(40));
        writeFile(path("nopages.pdf"), "%PDF-1.4\n1 0 obj\n<</Type/Catalog/Pages 2 0 R>>\nendobj\n2 0 obj\n"
                "<</Type/Pages/Kids[]/Count 0>>\nendobj\nxref\n0 3\n0000000000 65535 f \n0000000009 00000 n \n"
                "0000000054 00000 n \ntrailer<</Size 3/Root 1 0 R>>\nstartxref\n100\n%%EOF\n");
        QVERIFY(QFile::resize(writeFile(path("bomb"), "%PDF-1.4\n"), 65 * 1024 * 1024));
        for (const char* name : {"good.pdf", "bomb"})
            QCOMPARE(outputOf("gzip", {"-k", path(name)}), QString());
        const QByteArray gzip = contentsOf(path("good.pdf.gz"));
        writeFile(path("torn.pdf.gz"), gzip.left(gzip.size() / 2));
        writeFile(path("padded.pdf.gz"), gzip + QByteArray(100, '\0'));
        writeFile(path("misnamed.pdf"), gzip);
        const auto encrypt = [this](const QString& password, const QString& name) {
            return outputOf("qpdf", {"--encrypt", password, "owner", "256", "--", path("good.pdf"), path(name)});
        };
        QCOMPARE(encrypt("secret", "locked.pdf") + encrypt("", "readable.pdf"), QString());
        QCOMPARE(::mkfifo(qPrintable(path("pipe.pdf")), 0600), 0);
    }

    void loading_data()
    {
        addColumns<QString, int, bool>();
        const auto row = [](const char* what, const char* name, Problem problem, bool repaired = false) {
            QTest::newRow(what) << QString(name) << int(problem) << repaired;
        };
        row("good", "good.pdf", Problem::None);
        row("compressed", "good.pdf.gz", Problem::None);
        row("compressed under another name", "misnamed.pdf", Problem::None);
        row("compressed, padded", "padded.pdf.gz", Problem::None);
        row("something before the signature", "noise.pdf", Problem::None);
        row("encrypted for changes only", "readable.pdf", Problem::None);
        row("table of objects not where it should be", "bent.pdf", Problem::None, true);
        row("missing", "none.pdf", Problem::Missing);
        row("folder", ".", Problem::NoFile);
        row("pipe that nobody writes into", "pipe.pdf", Problem::NoFile);
        row("text", "text.pdf", Problem::NotPdf);
        row("empty", "empty.pdf", Problem::NotPdf);
        row("hardly begun", "stump.pdf", Problem::Damaged);
        row("end torn off", "torn.pdf", Problem::Damaged);
        row("compressed, torn", "torn.pdf.gz", Problem::Damaged);
        row("no pages", "nopages.pdf", Problem::NoPages);
        row("encrypted", "locked.pdf", Problem::Locked);
        row("too large", "bomb", Problem::TooLarge);
        row("too large once inflated", "bomb.gz", Problem::TooLarge);
    }
    void loading()
    {
        const auto [name, expected, repaired] = currentRow<QString, int, bool>();
        Problem problem = Problem::None;
        const QByteArray bytes = readDocument(path(name), &problem);
        const auto pages = problem == Problem::None ? PdfPages::open(bytes, &problem) : nullptr;
        QCOMPARE(int(problem), expected);
        QCOMPARE(pages != nullptr, problem == Problem::None);
        QCOMPARE(descriptionOf(problem).isEmpty(), problem == Problem::None);
        QCOMPARE(adviceOn(problem).isEmpty(), problem == Problem::None);
        if (!pages)
            return;
        QCOMPARE(pages->sizes(), QVector<QSizeF>(3, QSizeF(612, 792)));
        QCOMPARE(pages->isRepaired(), repaired);
    }

    void drawing()
    {
        Problem problem = Problem::None;
        const auto pages = PdfPages::open(samples::barred(3), &problem);
        QVERIFY(pages);
        const auto isWanted = [] { return false; };
        const QImage image = pages->render(2, QSize(306, 396), isWanted);
        QCOMPARE(image.size(), QSize(306, 396));
        QCOMPARE(image.pixelColor(150, 90), QColor(Qt::black));
        QCOMPARE(image.pixelColor(150, 40), QColor(Qt::white));
        QVERIFY(pages->render(2, QSize(306, 396), [] { return true; }).isNull());
        QVERIFY(pages->render(7, QSize(306, 396), isWanted).isNull());
    }

    void renderedSizes()
    {
        // The requested size, too many pixels, too long, the largest numbers, nothing.
        const std::pair<QSize, QSize> rows[] {{{996, 1289}, {996, 1289}}, {{4000, 4000}, {2549, 2549}}, {{10, 40960}, {1, 4096}},
                {{INT_MAX, INT_MAX}, {2549, 2549}}, {{0, 10}, {}}};
        for (const auto& [asked, given] : rows)
            QCOMPARE(PdfPages::renderedSize(asked), given);
    }

    void commandLines_data()
    {
        addColumns<QStringList, int, QString>();
        const auto shown = [](const char* what, const QStringList& arguments, const char* told) {
            QTest::newRow(what) << arguments << int(Options::Run) << QString(told);
        };
        const auto misused = [](const char* what, const QStringList& arguments, const char* told) {
            QTest::newRow(what) << arguments << int(Options::Misused) << QString(told);
        };
        shown("as the library starts it", {"-plugin", "EvdevTouch:/dev/input/event1", "--dpy", "85", "-s", "/c/a b.pdf", "-t",
                "View Report"}, "/c/a b.pdf|View Report|85|whole|EvdevTouch:/dev/input/event1");
        shown("file alone", {"/c/a.pdf"}, "/c/a.pdf|a.pdf|85||");
        shown("no title", {"-s", "/c/a.pdf", "-t", ""}, "/c/a.pdf|a.pdf|85|whole|");
        shown("title like an option", {"/c/a.pdf", "-t", "-platform"}, "/c/a.pdf|-platform|85||");
        shown("title of several lines", {"/c/a.pdf", "-t", "a\nb\t c"}, "/c/a.pdf|a b c|85||");
        shown("densest", {"--dpy", "600", "a.pdf"}, "a.pdf|a.pdf|600||");
        misused("too dense", {"--dpy", "601", "a.pdf"}, "--dpy needs a number from 1 to 600");
        misused("no density", {"--dpy", "0", "a.pdf"}, "--dpy needs a number");
        misused("no number", {"--dpy", "many", "a.pdf"}, "--dpy needs a number");
        misused("nothing", {}, "Name one PDF file");
        misused("empty name", {""}, "Name one PDF file");
        misused("two files", {"a.pdf", "b.pdf"}, "Name one PDF file");
        misused("unknown option", {"--colour", "a.pdf"}, "colour");
        QTest::newRow("help") << QStringList {"--help"} << int(Options::Answered) << "--dpy";
    }
    void commandLines()
    {
        const auto [arguments, outcome, told] = currentRow<QStringList, int, QString>();
        const Options options = readOptions(QStringList("pdf_viewer") + arguments);
        QCOMPARE(int(options.outcome), outcome);
        if (options.outcome != Options::Run) {
            QVERIFY2(options.message.contains(told), qPrintable(options.message));
            return;
        }
        QCOMPARE(QStringList({options.file, options.title, QString::number(options.dotsPerInch),
                         options.isFullScreen ? "whole" : "", options.plugins.join(',')}).join('|'), told);
    }

    void plugins()
    {
        // An existing device, a missing one, one that finds its own, and a window system, which provides touches
        // itself.
        const std::tuple<const char*, const char*, bool> rows[] {{"linuxfb", "EvdevTouch:/dev/null:rotate=90", true},
                {"linuxfb", "EvdevTouch:/dev/input/event-none", false}, {"eglfs", "EvdevTouch", true},
                {"xcb;offscreen", "EvdevTouch:/dev/null", false}};
        for (const auto& [platforms, plugin, isUsable] : rows)
            QVERIFY2((usablePlugins({plugin}, platforms) == QStringList(plugin)) == isUsable, plugin);
    }
};

QTEST_GUILESS_MAIN(FilesTest)
#include "tst_files.moc"
