#include "columns.h"
#include "filesizelimit.h"
#include "pdfsamples.h"
#include "signallog.h"

#include "writers/pdffile/pdfdate_p.h"
#include "writers/pdffile/pdffile.h"

#include <sys/stat.h>

using samples::described;

namespace {

const char loadFailure[] = "^Unable to write PDF report: .";
const char writeFailure[] = "^Unable to write file: .";

void expectMessage(const char* pattern)
{
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(pattern));
}

} // namespace

class PdfFileTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString made(const QString& name, const QByteArray& contents) const { return writeFile(path(name), contents); }

private Q_SLOTS:
    void readsTextsInEveryEncoding_data()
    {
        addColumns<QByteArray, QString>();
        QTest::newRow("plain") << QByteArray("(Fiber \\(7\\) \\\\ end)") << "Fiber (7) \\ end";
        QTest::newRow("hex") << QByteArray("<46 69 62 65 72>") << "Fiber";
        QTest::newRow("UTF-16") << QByteArray("<FEFF 03BB 0020 D83D DE00>") << QString::fromUtf8("λ 😀");
        QTest::newRow("UTF-16, odd") << QByteArray("<FEFF 0041 00>") << "A";
        QTest::newRow("UTF-16, the other order") << QByteArray("<FFFE 4100 BB03>") << QString::fromUtf8("Aλ");
        QTest::newRow("UTF-16, the other order, not in hex") << QByteArray("(\\377\\376A\\000\\273\\003)") << QString::fromUtf8("Aλ");
        QTest::newRow("UTF-8") << QByteArray("<EFBBBF CEBB>") << QString::fromUtf8("λ");
        QTest::newRow("accents") << QByteArray("<18 19 1a 1b 1c 1d 1e 1f>") << QString::fromUtf8("˘ˇˆ˙˝˛˚˜");
        QTest::newRow("marks") << QByteArray("<80 84 85 8c 8d 92 93 9b 9e a0>") << QString::fromUtf8("•—–„“™ﬁłž€");
        QTest::newRow("Latin-1") << QByteArray("<a1 b5 c4 ff>") << QString::fromUtf8("¡µÄÿ");
        QTest::newRow("nothing") << QByteArray("()") << "";
        QTest::newRow("only a mark") << QByteArray("<FEFF>") << "";
        QTest::newRow("a number") << QByteArray("12") << "";
        QTest::newRow("a name") << QByteArray("/Fiber") << "";
        QTest::newRow("elsewhere") << QByteArray("5 0 R") << "Referred";
        QTest::newRow("nowhere") << QByteArray("99 0 R") << "";
        QTest::newRow("itself") << QByteArray("4 0 R") << "";
    }
    void readsTextsInEveryEncoding()
    {
        const auto [string, text] = currentRow<QByteArray, QString>();
        samples::Sketch sketch;
        sketch.addPage().add("<</Title " + string + "/Other " + string + ">>");
        sketch.add("(Referred)");
        for (const QByteArray& contents : {sketch.finished("/Info 4 0 R"), sketch.finishedByStream("/Info 4 0 R")}) {
            PDFFile file;
            file.setFilename(made("strings.pdf", contents));
            QCOMPARE(file.getTitle(), text);
            QCOMPARE(file.getMetaData("Other"), text);
            QCOMPARE(file.getAuthor(), QString());
        }
    }

    void keepsTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("lone surrogate") << QString("a") + QChar(0xd83d);
        QTest::newRow("unbalanced") << ")))((\\";
        QTest::newRow("lines") << "one\ntwo\rthree\r\nfour";
        QTest::newRow("Latin-1") << QString::fromUtf8("Größe µm þÿ");
        QTest::newRow("looks marked") << QString::fromUtf8("þÿAB");
        QTest::newRow("scripts") << QString::fromUtf8("λ 光纤 😀");
        QTest::newRow("controls") << QString("a\x18z\x7f");
        QTest::newRow("NUL") << QString("a") + QChar(QChar::Null) + "b";
        QTest::newRow("nothing") << "";
        QTest::newRow("long") << QString(100'000, QChar(0x3bb));
    }
    void keepsTexts()
    {
        QFETCH(QString, text);
        for (const QByteArray& contents : {described(""), samples::describedByStream("")}) {
            const QString name = made("texts.pdf", contents);
            PDFFile file;
            file.setFilename(name);
            file.setTitle(text);
            file.setMetaData("Job number", text);
            file.write(QString());
            PDFFile again;
            again.setFilename(name);
            const QString whole = QString::fromUtf8(text.toUtf8().constData(), text.toUtf8().size());
            QCOMPARE(again.getTitle(), whole);
            QCOMPARE(again.getMetaData("Job number"), whole);
            QCOMPARE(faultsOf(name), QString());
        }
    }

    void otherReadersSeeTheTexts()
    {
        const QString name = made("readers.pdf", described("/Creator(Kept)"));
        PDFFile file;
        file.setFilename(name);
        file.setTitle(QString::fromUtf8("Größe λ 😀"));
        file.setAuthor("A (b)");
        file.setSubject("S");
        file.setProducer("P");
        file.write(QString());
        const QString output = outputOf("pdfinfo", {"-enc", "UTF-8", name}).simplified();
        for (const char* line : {"Title: Größe λ 😀 ", "Author: A (b) ", "Subject: S ", "Producer: P ", "Creator: Kept ", "Pages: 1 "})
            QVERIFY2(output.contains(line), qPrintable(output));
    }

    void dates_data()
    {
        addColumns<QString, QDateTime>();
        const auto at = [](int y, int mo, int d, int h, int mi, int s) { return QDateTime({y, mo, d}, {h, mi, s}, Qt::UTC); };
        // Local time is five hours earlier.
        QTest::newRow("year") << "D:2026" << at(2026, 1, 1, 5, 0, 0);
        QTest::newRow("month") << "D:202603" << at(2026, 3, 1, 5, 0, 0);
        QTest::newRow("day") << "D:20260314" << at(2026, 3, 14, 5, 0, 0);
        QTest::newRow("hour") << "D:2026031407" << at(2026, 3, 14, 12, 0, 0);
        QTest::newRow("minute") << "D:202603140730" << at(2026, 3, 14, 12, 30, 0);
        QTest::newRow("second") << "D:20260314073015" << at(2026, 3, 14, 12, 30, 15);
        QTest::newRow("unmarked") << "20260314073015Z" << at(2026, 3, 14, 7, 30, 15);
        QTest::newRow("UTC") << "D:20260314073015Z" << at(2026, 3, 14, 7, 30, 15);
        QTest::newRow("UTC with zeros") << "D:20260314073015Z00'00'" << at(2026, 3, 14, 7, 30, 15);
        QTest::newRow("east") << "D:20260314073015+01'30'" << at(2026, 3, 14, 6, 0, 15);
        QTest::newRow("west") << "D:20260314233015-01'30'" << at(2026, 3, 15, 1, 0, 15);
        QTest::newRow("one quote") << "D:20260314073015+01'30" << at(2026, 3, 14, 6, 0, 15);
        QTest::newRow("no quote") << "D:20260314073015+0130" << at(2026, 3, 14, 6, 0, 15);
        QTest::newRow("hours only") << "D:20260314073015+01'" << at(2026, 3, 14, 6, 30, 15);
        QTest::newRow("leap day") << "D:20240229Z" << at(2024, 2, 29, 0, 0, 0);
        for (const char* text : {"", "D:", "D:26", "D:20261", "D:20261301", "D:20260230", "D:20260314250000",
                     "D:20260314076000", "D:20260314073015+24'00'", "D:20260314073015+01'60'",
                     "D:20260314073015 nonsense", "yesterday"})
            QTest::newRow(qPrintable(QString("no date: %1").arg(text))) << text << QDateTime();
    }
    void dates()
    {
        const auto [text, utc] = currentRow<QString, QDateTime>();
        qputenv("TZ", "XYZ5");
        tzset();
        const QDateTime date = uiutils::pdf::dateTime(text).toUTC();
        PDFFile file;
        file.setFilename(made("dates.pdf", described("/CreationDate(" + text.toLatin1() + ")")));
        const QString shown = file.getCreationDate();
        const QString expected = utc.isValid() ? QLocale().toString(utc.toLocalTime(), QLocale::LongFormat) : QString();
        qputenv("TZ", "UTC");
        tzset();
        QCOMPARE(date.isValid(), utc.isValid());
        QCOMPARE(date, utc);
        QCOMPARE(shown, expected);
    }

    void nothingIsInvented()
    {
        samples::Sketch sketch;
        sketch.addPage();
        PDFFile file;
        file.setFilename(made("bare.pdf", sketch.finished()));
        QCOMPARE(file.getProducer(), QString());
        QCOMPARE(file.getCreationDate(), QString());
        file.setTitle("T");
        file.write(path("bare2.pdf"));
        file.setFilename(path("bare2.pdf"));
        QCOMPARE(file.getTitle(), QString("T"));
        QCOMPARE(file.getProducer(), QString());
    }

    void signalsAreCounted()
    {
        const QString name = made("signals.pdf", described("/Title(Old)"));
        PDFFile file;
        SignalLog log(&file);
        file.setTitle("lost");
        file.setMetaData("Title", "lost");
        file.write(path("lost.pdf"));
        QCOMPARE(log.take(), QStringList());
        QVERIFY(!QFile::exists(path("lost.pdf")));

        file.setFilename(name);
        file.setFilename(name);
        QCOMPARE(log.take(), (QStringList{"filenameChanged", "filenameChanged"}));
        file.setTitle("New");
        file.setTitle("New");
        file.setAuthor("A");
        file.setSubject("S");
        file.setProducer("P");
        QCOMPARE(log.take(), (QStringList{"titleChanged", "titleChanged", "authorChanged", "subjectChanged", "producerChanged"}));
        // A reload discards changes, and a missing file everything.
        file.setFilename(name);
        QCOMPARE(file.getTitle(), QString("Old"));
        expectMessage(loadFailure);
        file.setFilename(path("absent.pdf"));
        QCOMPARE(file.getFilename(), path("absent.pdf"));
        QCOMPARE(file.getTitle(), QString());
        file.setTitle("lost");
        QCOMPARE(log.take(), (QStringList{"filenameChanged", "filenameChanged"}));
    }

    void writesOverItsOwnFile_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"a.pdf", "b.pdf.pdf", "c.pdf.bak", "d", "E.PDF", ".pdf"})
            QTest::newRow(name) << QString(name);
        QTest::newRow("longest name") << QString(251, 'f') + ".pdf";
    }
    void writesOverItsOwnFile()
    {
        QFETCH(QString, name);
        const QString inside = path("over/own.pdf");
        const QString whole = writeFile(inside + '/' + name, described("/Title(Old)"));
        QFile::setPermissions(whole, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
        const auto permissions = QFile::permissions(whole);
        PDFFile file;
        file.setFilename(whole);
        for (const QString& title : {QString("First"), QString("Second")}) {
            file.setTitle(title);
            file.write(title == "First" ? QString() : whole);
            QCOMPARE(file.getTitle(), title);
            PDFFile again;
            again.setFilename(whole);
            QCOMPARE(again.getTitle(), title);
        }
        QCOMPARE(namesIn(inside), QStringList{name});
        QCOMPARE(QFile::permissions(whole), permissions);
        QVERIFY(QDir(path("over")).removeRecursively());
    }

    /// A folder has the temporary name: overwriting the own file cannot begin, writing elsewhere needs no such name.
    void ownFileIsWrittenThroughItsTemporaryName()
    {
        QVERIFY(QDir().mkpath(path("temporary/link")));
        const QByteArray old = described("/Title(Old)");
        writeFile(path("temporary/a.pdf"), old);
        QVERIFY(QDir().mkpath(path("temporary/a_tmp.pdf")));
        PDFFile file;
        file.setFilename(path("temporary/a.pdf"));
        file.setTitle("New");
        for (const QString& target : {QString(), path("temporary/./a.pdf"), path("temporary/link/../a.pdf")}) {
            expectMessage(writeFailure);
            file.write(target);
            QCOMPARE(contentsOf(path("temporary/a.pdf")), old);
        }
        file.write(path("temporary/b.pdf"));
        QVERIFY(!contentsOf(path("temporary/b.pdf")).isEmpty());
        QVERIFY(QDir().rmdir(path("temporary/a_tmp.pdf")));
        // A file that a power cut left is no obstacle, and does not stay.
        writeFile(path("temporary/a_tmp.pdf"), "torn");
        file.write(QString());
        QVERIFY(contentsOf(path("temporary/a.pdf")) != old);
        QCOMPARE(namesIn(path("temporary")), (QStringList{"a.pdf", "b.pdf", "link"}));
    }

    void aWrittenFileDoesNotDependOnTheOldOne()
    {
        const QString name = path("gone.pdf");
        samples::print(name, 3);
        PDFFile file;
        file.setFilename(name);
        QCOMPARE(file.getTitle(), QString("Printed"));
        QVERIFY(!file.getCreationDate().isEmpty());
        // The present file is not the one that was loaded, and shorter.
        writeFile(name, "something else");
        file.setTitle("Kept");
        file.write(path("kept.pdf"));
        QVERIFY(QFile::remove(name));
        file.write(QString());
        for (const QString& written : {path("kept.pdf"), name}) {
            QCOMPARE(faultsOf(written), QString());
            QVERIFY(outputOf("pdftotext", {written, "-"}).contains("Page 2, line 39"));
        }
    }

    void aFileSizeLimitLeavesTheFile()
    {
        QVERIFY(QDir().mkpath(path("full")));
        samples::print(path("full/a.pdf"), 2);
        const QByteArray before = contentsOf(path("full/a.pdf"));
        PDFFile file;
        file.setFilename(path("full/a.pdf"));
        file.setTitle("New");
        {
            const FileSizeLimit disk(2000);
            expectMessage(writeFailure);
            file.write(QString());
            expectMessage(writeFailure);
            file.write(path("full/b.pdf"));
        }
        QCOMPARE(contentsOf(path("full/a.pdf")), before);
        QCOMPARE(namesIn(path("full")), QStringList{"a.pdf"});
        // It is as usable as before.
        file.write(QString());
        file.setFilename(path("full/a.pdf"));
        QCOMPARE(file.getTitle(), QString("New"));
    }

    void whatIsNotAFileIsRejected_data()
    {
        QTest::addColumn<QString>("name");
        QVERIFY(QDir().mkpath(path("odd/folder.pdf")));
        QVERIFY(::mkfifo(qPrintable(path("odd/pipe.pdf")), 0600) == 0);
        writeFile(path("odd/empty.pdf"), "");
        writeFile(path("odd/text.pdf"), "Not a PDF file, but a text of some length that says so.");
        QFile large(path("odd/large.pdf"));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(64 * 1024 * 1024 + 1));
        for (const char* name : {"folder.pdf", "pipe.pdf", "empty.pdf", "text.pdf", "large.pdf", "absent.pdf"})
            QTest::newRow(name) << path(QString("odd/") + name);
        QTest::newRow("device") << "/dev/zero";
        QTest::newRow("NUL") << path("bare.pdf") + QChar(QChar::Null) + "x";
        QTest::newRow("no name") << "";
    }
    void whatIsNotAFileIsRejected()
    {
        QFETCH(QString, name);
        PDFFile file;
        QSignalSpy loaded(&file, &PDFFile::filenameChanged);
        expectMessage(loadFailure);
        file.setFilename(name);
        QCOMPARE(loaded.count(), 1);
        QCOMPARE(file.getFilename(), name);
        QCOMPARE(file.getTitle(), QString());
    }

    void hostileKeysDoNoHarm_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("a table") << described("/Title(Kept)/Number 5");
        QTest::newRow("a table in a stream") << samples::describedByStream("/Title(Kept)/Number 5");
    }
    void hostileKeysDoNoHarm()
    {
        QFETCH(QByteArray, contents);
        const QString name = made("keys.pdf", contents);
        PDFFile file;
        file.setFilename(name);
        const QString fits(127, 'k');
        for (const QString& key : {QString(), QString("a") + QChar(QChar::Null) + "b", QString("line\nbreak"), fits + "k"}) {
            file.setMetaData(key, "value");
            QCOMPARE(file.getMetaData(key), QString());
        }
        const QStringList keys{fits, "Trapped", "with blank", "a/b(c)<d>[e]{f}%g#h", QString::fromUtf8("λ 😀"), "Number"};
        for (const QString& key : keys)
            file.setMetaData(key, "value of " + key);
        file.write(QString());
        file.setFilename(name);
        for (const QString& key : keys)
            QCOMPARE(file.getMetaData(key), "value of " + key);
        QCOMPARE(file.getTitle(), QString("Kept"));
        QCOMPARE(faultsOf(name), QString());
    }

    /// Files of other programs are read, changed and written twice.
    void otherKindsOfFiles_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("object streams") << QStringList{"--object-streams=generate"};
        QTest::newRow("linearized") << QStringList{"--linearize"};
        QTest::newRow("both") << QStringList{"--linearize", "--object-streams=generate"};
    }
    void otherKindsOfFiles()
    {
        QFETCH(QStringList, options);
        samples::print(path("plain.pdf"), 3);
        const QString name = path("kind.pdf");
        const QString made = outputOf("qpdf", options + QStringList{path("plain.pdf"), name});
        QVERIFY2(QFile::exists(name), qPrintable(made));
        PDFFile file;
        file.setFilename(name);
        QCOMPARE(file.getTitle(), QString("Printed"));
        for (const QString& title : {QString("First"), QString::fromUtf8("Zweiter, λ")}) {
            file.setTitle(title);
            file.write(QString());
            QCOMPARE(faultsOf(name), QString());
            PDFFile again;
            again.setFilename(name);
            QCOMPARE(again.getTitle(), title);
            QVERIFY(outputOf("pdftotext", {name, "-"}).contains("Page 2, line 39"));
        }
        QVERIFY(QFile::remove(name));
    }

    /// Those that open without a password are read. They are not written: PoDoFo would add to their other texts.
    void encryptedFiles_data()
    {
        addColumns<QString, QStringList>();
        QTest::newRow("40 bits") << "" << QStringList{"40", "--"};
        QTest::newRow("128 bits") << "" << QStringList{"128", "--use-aes=n", "--"};
        QTest::newRow("128 bits, blocks") << "" << QStringList{"128", "--use-aes=y", "--"};
        QTest::newRow("256 bits") << "" << QStringList{"256", "--"};
        QTest::newRow("256 bits, older") << "" << QStringList{"256", "--force-R5", "--"};
        QTest::newRow("256 bits, packed") << "" << QStringList{"256", "--", "--object-streams=generate"};
        QTest::newRow("with a password") << "user" << QStringList{"256", "--"};
    }
    void encryptedFiles()
    {
        const auto [password, options] = currentRow<QString, QStringList>();
        // A text that fills blocks, one with two bytes for each letter that does and seems to end in padding, one in
        // another place.
        samples::Sketch sketch;
        sketch.addPage().add("<</Title(Sixteen letters.)/Author<FEFF03BB006200630064006500660101>/Subject 5 0 R/Producer(P)>>");
        sketch.add("(Referred)");
        writeFile(path("open.pdf"), sketch.finished("/Info 4 0 R"));
        const QString locked = path("locked.pdf");
        outputOf("qpdf", QStringList{"--allow-weak-crypto", "--encrypt", password, "owner"} + options
                        + QStringList{path("open.pdf"), locked});
        const QByteArray before = contentsOf(locked);
        QVERIFY(before.contains("/Encrypt") && !before.contains("letters"));
        PDFFile file;
        if (!password.isEmpty())
            expectMessage(loadFailure);
        file.setFilename(locked);
        const QStringList texts{file.getTitle(), file.getAuthor(), file.getSubject(), file.getProducer()};
        if (!password.isEmpty()) {
            QCOMPARE(texts.join(QString()), QString());
            return;
        }
        QCOMPARE(texts, (QStringList{"Sixteen letters.", QString::fromUtf8("λbcdefā"), "Referred", "P"}));
        file.setTitle("New");
        QCOMPARE(file.getTitle(), QString("New"));
        for (const QString& target : {QString(), path("copy.pdf")}) {
            expectMessage("^Unable to write file: The file is encrypted");
            file.write(target);
        }
        QCOMPARE(contentsOf(locked), before);
        QVERIFY(!QFile::exists(path("copy.pdf")));
    }
};

QTEST_MAIN(PdfFileTest)
#include "tst_pdffile.moc"
