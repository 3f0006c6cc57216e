#include "columns.h"
#include "pdfsamples.h"

#include "writers/pdffile/pdffile.h"
#include "writers/pdffile/pdfprobe_p.h"

#include <cerrno>
#include <csignal>
#include <dlfcn.h>
#include <random>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

using samples::Sketch;
using uiutils::PdfProbe;

namespace {

/// The input of the filter FlateDecode, after Qt's four bytes of length.
QByteArray deflated(const QByteArray& data)
{
    return qCompress(data, 9).mid(4);
}

Sketch page()
{
    return Sketch().addPage();
}

/// A file whose table of objects is this stream.
QByteArray withTableStream(const QByteArray& keys, const QByteArray& data)
{
    Sketch sketch = page();
    const int table = sketch.size();
    sketch.addStream("/Type/XRef/Root 1 0 R" + keys, data);
    return sketch.finishedAt(table);
}

using SetUp = void (*)();

void ignoreChildren()
{
    ::signal(SIGCHLD, SIG_IGN);
}
void reapAll(int)
{
    while (::waitpid(-1, nullptr, WNOHANG) > 0) { }
}
void stealChildren()
{
    ::signal(SIGCHLD, reapAll);
}
void blockAll()
{
    sigset_t all;
    ::sigfillset(&all);
    ::sigprocmask(SIG_SETMASK, &all, nullptr);
}

bool noProcess = false;

} // namespace

/// Replaces the system's function.
extern "C" int posix_spawn(pid_t* pid, const char* path, const posix_spawn_file_actions_t* actions,
        const posix_spawnattr_t* attributes, char* const arguments[], char* const environment[])
{
    return noProcess ? EAGAIN
                     : reinterpret_cast<decltype(&posix_spawn)>(::dlsym(RTLD_NEXT, "posix_spawn"))(
                             pid, path, actions, attributes, arguments, environment);
}

Q_DECLARE_METATYPE(SetUp)

/// Files that are made to harm, and the helper that reads them first.
class PdfProbeTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString& name) const { return m_folder.filePath(name); }

    QString script(const QString& name, const QByteArray& text) const
    {
        writeFile(path(name), "#!/bin/sh\n" + text + '\n');
        QFile::setPermissions(path(name), QFile::ReadOwner | QFile::ExeOwner);
        return path(name);
    }

    /// Uses a file as an application does. Returns whether it was loaded.
    bool use(const QString& name)
    {
        PDFFile file;
        file.setFilename(name);
        file.getCreationDate();
        file.setTitle("Changed");
        const bool loaded = file.getTitle() == "Changed";
        file.write(path("used.pdf"));
        QFile::remove(path("used.pdf"));
        return loaded;
    }

private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"); }

    /// Files that would crash this process, or make it hang, must not pass; what PoDoFo does with the others does not
    /// matter.
    void hostileFiles_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("not hostile at all") << withTableStream("/Size 4/W[1 2 1]", page().binaryTable());
        const auto object = [](const QByteArray& body) {
            Sketch sketch = page();
            sketch.add(body);
            return sketch.finished("/Info 4 0 R");
        };
        for (const int depth : {300, 100'000}) {
            const QByteArray name = QByteArray::number(depth);
            QTest::newRow("dictionaries within each other, " + name) << object(QByteArray("<</A").repeated(depth));
            QTest::newRow("dictionaries, closed, " + name)
                    << object(QByteArray("<</A").repeated(depth) + "1" + QByteArray(">>").repeated(depth));
            QTest::newRow("arrays within each other, " + name)
                    << object("<</Title" + QByteArray("[").repeated(depth) + QByteArray("]").repeated(depth) + ">>");
            QTest::newRow("arrays in the trailer, " + name) << page().finished("/X" + QByteArray("[").repeated(depth));
        }
        QTest::newRow("dictionaries and nothing else")
                << "%PDF-1.4\n1 0 obj" + QByteArray("<<").repeated(330) + "\nstartxref\n9\n%%EOF";
        const QByteArray filters = "/Filter[" + QByteArray("/FlateDecode ").repeated(200'000) + "]";
        QTest::newRow("filters of a table") << withTableStream("/Size 4/W[1 2 1]" + filters, deflated("x"));
        QTest::newRow("filters of text") << withTableStream(
                "/Size 4/W[1 2 1]/Filter[" + QByteArray("/ASCIIHexDecode ").repeated(50'000) + "]", "00>");

        const QByteArray bomb = deflated(deflated(QByteArray(96 << 20, '\0')));
        QTest::newRow("bomb for a table") << withTableStream(
                "/Size 4/W[1 2 1]/Index[0 25000000]/Filter[/FlateDecode/FlateDecode]", bomb);
        {
            Sketch sketch = page();
            sketch.addStream("/Type/ObjStm/N 1/First 4/Filter[/FlateDecode/FlateDecode]", bomb);
            const int table = sketch.size();
            const QByteArray rows = sketch.binaryTable() + QByteArray("\2\0\4\0", 4);
            sketch.addStream("/Type/XRef/Size 6/W[1 2 1]/Root 1 0 R/Info 5 0 R", rows);
            QTest::newRow("bomb for objects") << sketch.finishedAt(table);
        }
        for (const QByteArray widths : {"[1 2]", "[-1 2 1]", "[1 99999999 1]", "[0 0 0]", "[9223372036854775807 2 1]", "[8 8 8]", "(a)"})
            QTest::newRow("widths " + widths) << withTableStream("/Size 4/W" + widths, page().binaryTable());
        for (const QByteArray index : {"[0 2147483647]", "[-5 4]", "[1]", "[/a/b]", "[9223372036854775807 4]"})
            QTest::newRow("index " + index) << withTableStream("/Size 4/W[1 2 1]/Index" + index, page().binaryTable());

        const QByteArray id = "/ID[<00><00>]";
        int number = 0;
        for (const QByteArray keys : {"", "/Filter/Standard", "/Filter/Standard/V 1/R 2/O()/U()/P 0",
                     "/Filter/Standard/V 5/R 6/O(a)/U(b)/OE(c)/UE(d)/Perms(e)/P -4", "/Filter/Standard/V 5/R 5/O(a)/U(b)/P -4",
                     "/Filter/Standard/V 2/R 3/Length -8/O(a)/U(b)/P -4", "/Filter/Standard/V 2/R 3/Length 99999999/O(a)/U(b)/P -4",
                     "/Filter/Standard/V 4/R 4/Length 128/O(a)/U(b)/P -4/CF<</StdCF<</CFM/AESV2/Length 9999>>>>/StmF/StdCF",
                     "/Filter/Standard/V 2/R 3/Length 128/O 5/U[1]/P(x)", "/Filter 3/V/a/R(b)"}) {
            QTest::addRow("encryption %d", number) << page().finished("/Encrypt<<" + keys + ">>" + id);
            QTest::addRow("encryption without an id %d", number++) << page().finished("/Encrypt<<" + keys + ">>");
        }
        QTest::newRow("encryption that is a page") << page().finished("/Encrypt 3 0 R" + id);
        QTest::newRow("encryption that is not there") << page().finished("/Encrypt 99 0 R" + id);

        Sketch loop;
        loop.add("<</Type/Catalog/Pages 2 0 R>>");
        loop.add("<</Type/Pages/Kids[2 0 R 3 0 R]/Parent 3 0 R/Count 2147483647>>");
        loop.add("<</Type/Pages/Kids[2 0 R 3 0 R]/Parent 2 0 R/Count -1>>");
        QTest::newRow("pages within themselves") << loop.finished();
        QTest::newRow("a catalog that is its pages") << [] {
            Sketch sketch;
            sketch.add("<</Type/Catalog/Pages 1 0 R/Kids[1 0 R]/Count 1>>");
            return sketch.finished("/Info 1 0 R");
        }();
        QTest::newRow("a length that is the stream's own") << object("<</Length 4 0 R>>stream\nabc\nendstream");
        QTest::newRow("lengths of each other") << [] {
            Sketch sketch = page();
            sketch.add("<</Length 5 0 R>>stream\nabc\nendstream");
            sketch.add("<</Length 4 0 R>>stream\nabc\nendstream");
            return sketch.finished();
        }();
        for (const QByteArray length : {"-1", "9223372036854775807", "2147483648", "1e9", "(a)"})
            QTest::newRow("length " + length) << object("<</Length " + length + ">>stream\nabc\nendstream");
        for (const QByteArray key : {"Prev", "XRefStm"}) {
            const int table = page().size();
            QTest::newRow(key + ", itself") << page().finished("/" + key + " " + QByteArray::number(table));
            for (const QByteArray offset : {"-1", "0", "9", "9223372036854775807"})
                QTest::newRow(key + " " + offset) << page().finished("/" + key + " " + offset);
        }
        for (const QByteArray size : {"9223372036854775807", "-1", "8388607", "0"})
            QTest::newRow("size " + size)
                    << page().finishedWith(page().table() + "trailer\n<</Root 1 0 R/Size " + size + ">>\n");
        for (const QByteArray section : {"0 99999999", "4294967295 2", "-1 4", "0 -4"})
            QTest::newRow("section " + section) << page().finishedWith(
                    "xref\n" + section + page().table().mid(8) + "trailer\n<</Root 1 0 R/Size 4>>\n");
        QTest::newRow("offset of the table, negative") << page().finished().replace("startxref\n", "startxref\n-");
        QTest::newRow("information that is itself") << object("4 0 R");
        QTest::newRow("information that is a number") << object("5");
        QTest::newRow("information that is the pages") << page().finished("/Info 2 0 R");
        QTest::newRow("root that is not there") << Sketch().finished();
        QTest::newRow("a text without an end") << object("<</Title(" + QByteArray("(").repeated(1'000'000));
        QTest::newRow("a name without an end") << object("<</" + QByteArray("a").repeated(1'000'000));
        QTest::newRow("a long comment") << object("%" + QByteArray("a").repeated(1'000'000));
    }
    void hostileFiles()
    {
        QFETCH(QByteArray, contents);
        const QString name = path("hostile.pdf");
        writeFile(name, contents);
        const bool loaded = use(name);
        QString error;
        const bool passes = PdfProbe().passes(contents, &error);
        QVERIFY(passes || !loaded);
        QCOMPARE(error.isEmpty(), passes);
    }

    /// 1,000 files with some bytes changed, cut out, doubled or cut off, always in the same places; dates and keys in
    /// them differ from run to run.
    void damagedFiles()
    {
        samples::print(path("printed.pdf"), 2);
        outputOf("qpdf", {"--object-streams=generate", path("printed.pdf"), path("packed.pdf")});
        outputOf("qpdf", {"--encrypt", "", "owner", "256", "--", path("printed.pdf"), path("locked.pdf")});
        const QVector<QByteArray> bases{samples::described("/Title(A)/Author<FEFF0041>"), contentsOf(path("packed.pdf")),
                contentsOf(path("printed.pdf")), contentsOf(path("locked.pdf")),
                samples::describedByStream("/Title(A)/Author<FEFF0041>")};
        std::mt19937 random(20260314);
        const auto below = [&random](int limit) { return int(random() % unsigned(qMax(1, limit))); };
        int loaded = 0;
        for (int round = 0; round < 1000; ++round) {
            QByteArray contents = bases.at(round % bases.size());
            QVERIFY(!contents.isEmpty());
            for (int change = below(4); change >= 0; --change) {
                const int at = below(contents.size());
                const int size = 1 + below(40);
                const QByteArray other = contents.mid(below(contents.size()), size);
                const int kind = below(6);
                if (kind < 2)
                    contents[at] = kind ? "0123456789<>[]()/ \n"[below(19)] : char(below(256));
                else if (kind < 5)
                    contents.replace(at, kind == 3 ? 0 : size, kind == 2 ? QByteArray() : other);
                else if (below(8) == 0)
                    contents.truncate(qMax(1, at));
            }
            writeFile(path("damaged.pdf"), contents);
            loaded += use(path("damaged.pdf"));
        }
        // Both happen, or the damage was not of the right kind.
        QVERIFY2(loaded > 100 && loaded < 900, qPrintable(QString::number(loaded)));
    }

    void helpersThatFail_data()
    {
        addColumns<QByteArray, QString>();
        const QString harm = "The file is not safe to read";
        const QString hangs = "Reading the file takes too long";
        QTest::newRow("dies") << QByteArray("printf S; kill -SEGV $$") << harm;
        QTest::newRow("says nothing more") << QByteArray("printf S") << harm;
        QTest::newRow("hangs") << QByteArray("printf S; exec sleep 1000") << hangs;
        QTest::newRow("hangs when it has loaded") << QByteArray("printf 'S\\376'; exec sleep 1000") << hangs;
        QTest::newRow("hangs at once") << QByteArray("exec sleep 1000") << hangs;
        QTest::newRow("finds a fault") << QByteArray("printf 'S\\012'") << "Error 10";
    }
    void helpersThatFail()
    {
        const auto [text, error] = currentRow<QByteArray, QString>();
        const PdfProbe probe(script("helper", text), 300);
        QString actual;
        QVERIFY(!probe.passes("%PDF-", &actual));
        if (error == "Error 10")
            QVERIFY(!actual.isEmpty() && !actual.contains("harm"));
        else
            QCOMPARE(actual, error);
        // Nothing of it is left.
        QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
        QCOMPARE(errno, ECHILD);
    }

    void theHelperSeesTheFileAndNoSecrets()
    {
        qputenv("UIUTILS_SECRET", "x");
        const QByteArray text = "(cat /proc/self/fd/0; env) >" + path("seen").toUtf8() + "\nprintf 'S\\000'";
        QString error;
        QVERIFY(PdfProbe(script("spy", text), 10000).passes("bytes", &error));
        qunsetenv("UIUTILS_SECRET");
        const QByteArray seen = contentsOf(path("seen"));
        QVERIFY(seen.startsWith("bytesLD_LIBRARY_PATH="));
        QVERIFY(!seen.contains("SECRET"));
    }

    void whereNoHelperWasInstalledFilesPass()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^PDF files are loaded without being tried first"));
        QString error;
        QVERIFY(PdfProbe(QString(), 1000).passes("%PDF-", &error));
        QCOMPARE(error, QString());
        for (const QString& helper : {path("absent"), m_folder.path(), script("broken", "exit 127")}) {
            QVERIFY(!PdfProbe(helper, 1000).passes("%PDF-", &error));
            QVERIFY2(error.startsWith("The file cannot be tried first: "), qPrintable(error));
        }
    }

    /// A process that uses up descriptors and processes must not get a file past the helper.
    void withoutDescriptorsOrProcessesNoFilePasses()
    {
        rlimit before {};
        QVERIFY(::getrlimit(RLIMIT_NOFILE, &before) == 0);
        const int firstFree = ::dup(0);
        ::close(firstFree);
        const QByteArray good = samples::described("/Title(A)");
        QString error;
        const auto passesWith = [&](int free) {
            const rlimit few {rlim_t(firstFree + free), before.rlim_max};
            ::setrlimit(RLIMIT_NOFILE, &few);
            const bool passes = PdfProbe(10'000).passes(good, &error);
            ::setrlimit(RLIMIT_NOFILE, &before);
            return passes;
        };
        int refused = 0;
        for (; refused < 100 && !passesWith(refused); ++refused)
            QVERIFY(!error.isEmpty());
        QVERIFY2(refused >= 3 && refused < 100, qPrintable(QString::number(refused)));
        noProcess = true;
        const bool passes = PdfProbe(10'000).passes(good, &error);
        noProcess = false;
        QVERIFY(!passes);
        QVERIFY2(error.contains(qt_error_string(EAGAIN)), qPrintable(error));
    }

    void whateverTheHostDoesWithChildren_data()
    {
        QTest::addColumn<SetUp>("setUp");
        QTest::newRow("ignores them") << SetUp(ignoreChildren);
        QTest::newRow("takes the end of all") << SetUp(stealChildren);
        QTest::newRow("blocks signals") << SetUp(blockAll);
    }
    void whateverTheHostDoesWithChildren()
    {
        QFETCH(SetUp, setUp);
        sigset_t mask;
        ::sigprocmask(SIG_SETMASK, nullptr, &mask);
        setUp();
        QString error;
        const bool good = PdfProbe().passes(samples::described("/Title(A)"), &error);
        const bool bad = PdfProbe().passes(samples::described("/Title(A)").left(200), &error);
        const bool hanging = PdfProbe(script("hanging", "printf S; exec sleep 1000"), 300).passes("x", &error);
        ::signal(SIGCHLD, SIG_DFL);
        ::sigprocmask(SIG_SETMASK, &mask, nullptr);
        QVERIFY(good);
        QVERIFY(!bad);
        QVERIFY(!hanging);
    }
};

QTEST_MAIN(PdfProbeTest)
#include "tst_pdfprobe.moc"
