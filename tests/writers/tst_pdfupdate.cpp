#include "columns.h"
#include "pdfsamples.h"

#include "writers/emitter/documentinformation_p.h"
#include "writers/emitter/xmp_p.h"
#include "writers/pdffile/pdffile.h"
#include "writers/pdffile/pdfupdate_p.h"

#include <QXmlStreamReader>

namespace pdf = uiutils::pdf;
using samples::Sketch;

namespace {

const QByteArray info = "/Title(Old)/Author<FEFF03BB>/CreationDate(D:20260314073015+01'00')/Pages 5";
const QByteArray trailer = "/Info 4 0 R/ID[<0011><0022>]";
const QByteArray deflate = "/Size 7/W[1 2 1]/Filter/FlateDecode";

QByteArray ownPacket()
{
    pdf::DocumentInformation information;
    information.title = "Old";
    information.archivePart = 2;
    information.archiveConformance = "U";
    return pdf::xmpPacket(information);
}

/// Catalog, pages, one page, document information, XMP packet.
Sketch sketchWith(const QByteArray& entries, const QByteArray& packet,
        const QByteArray& packetKeys = "/Type/Metadata/Subtype/XML")
{
    Sketch sketch;
    sketch.add("<</Type/Catalog/Pages 2 0 R/Metadata 5 0 R>>");
    sketch.add("<</Type/Pages/Kids[3 0 R]/Count 1/MediaBox[0 0 200 100]>>");
    sketch.add("<</Type/Page/Parent 2 0 R>>");
    sketch.add("<<" + entries + ">>");
    sketch.addStream(packetKeys, packet);
    return sketch;
}

QByteArray sample(const QByteArray& entries = info, const QByteArray& trailerKeys = trailer)
{
    return sketchWith(entries, ownPacket()).finishedByStream(trailerKeys);
}

QByteArray retitled(const QByteArray& contents, const QString& title)
{
    QString error;
    const auto file = pdf::openForUpdate(contents);
    return file && file->setEntry("Title", title, &error) ? file->save(&error) : QByteArray();
}

QString titleOf(const QByteArray& contents)
{
    const auto file = pdf::openForUpdate(contents);
    return file ? file->entry("Title") : "none";
}

/// The texts of a packet by the names of the elements around them; lists and languages are left out.
QMap<QString, QString> textsIn(const QByteArray& packet)
{
    QMap<QString, QString> texts;
    QStringList path;
    QXmlStreamReader reader(packet);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement())
            path += reader.qualifiedName().toString();
        else if (reader.isEndElement())
            path.removeLast();
        else if (reader.isCharacters() && !reader.isWhitespace())
            texts[path.filter(QRegularExpression("^(?!rdf)")).constLast()] += reader.text();
    }
    return reader.hasError() ? QMap<QString, QString>{{"error", reader.errorString()}} : texts;
}

/// A change as another program may add it: an object and the table, which has this number.
QByteArray added(const QByteArray& contents, int object, int number, const QByteArray& keys = "/Root 1 0 R/Info 4 0 R")
{
    const auto place = [](int offset) { return QByteArray("\1", 1) + char(offset >> 8) + char(offset); };
    const int before = contents.lastIndexOf(" 0 obj") - 1;
    const QByteArray start = contents + QByteArray::number(object) + " 0 obj\n<</Title(Old)>>\nendobj\n";
    const QByteArray numbers = QByteArray::number(object) + " 1 " + QByteArray::number(number);
    return start + QByteArray::number(number) + " 0 obj\n<</Type/XRef" + keys + "/Prev " + QByteArray::number(before)
            + "/Size " + QByteArray::number(number + 1) + "/Index[" + numbers + " 1]/W[1 2 0]/Length 6>>stream\n"
            + place(contents.size()) + place(start.size()) + "\nendstream\nendobj\nstartxref\n"
            + QByteArray::number(start.size()) + "\n%%EOF\n";
}

/// The rows of a table, deflated as libraries do: each row is the difference from the one above.
QByteArray predicted(const QByteArray& rows, int width)
{
    QByteArray result;
    for (int i = 0; i < rows.size(); ++i) {
        if (i % width == 0)
            result += '\2';
        result += char(rows.at(i) - (i < width ? 0 : rows.at(i - width)));
    }
    return result;
}

/// The sample with its table in other words.
QByteArray withTable(const QByteArray& keys, const QByteArray& rows)
{
    Sketch sketch = sketchWith(info, ownPacket());
    const int table = sketch.size();
    sketch.addStream("/Type/XRef/Root 1 0 R" + trailer + keys, rows);
    return sketch.finishedAt(table);
}

/// What its table holds.
QByteArray rows()
{
    const QByteArray contents = sample();
    const int begin = contents.lastIndexOf(">>stream\n") + 9;
    return contents.mid(begin, 7 * 4);
}

QByteArray deflated(const QByteArray& data)
{
    return qCompress(data, 1).mid(4);
}

} // namespace

/// Files that are changed by adding to their end.
class PdfUpdateTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString& name) const { return m_folder.filePath(name); }

private Q_SLOTS:
    void aChangeIsAddedAndEveryReaderSeesIt()
    {
        const QByteArray old = sample();
        const QString name = writeFile(path("a.pdf"), old);
        const QString title = QString::fromUtf8("Größe <λ> & \"😀\"");
        PDFFile file;
        for (const QString& next : {title, QString("Second"), title}) {
            file.setFilename(name);
            file.setTitle(next);
            file.setSubject("S\x01\r");
            file.setMetaData("Keywords", "one, two");
            file.write(QString());
        }
        const QByteArray now = contentsOf(name);
        // Nothing that was there has changed, and earlier changes have left nothing.
        QVERIFY(now.startsWith(old));
        QCOMPARE(now.count("startxref"), 2);
        const QByteArray added = now.mid(old.size());
        QCOMPARE(added.count("/ID [<0011> <"), 1);
        QVERIFY(!added.contains("<0022>"));

        QCOMPARE(faultsOf(name), QString());
        const QString output = outputOf("pdfinfo", {"-enc", "UTF-8", name}).simplified();
        QVERIFY2(output.contains("Title: " + title + " Subject: S"), qPrintable(output));
        QString error;
        const auto parsed = pdf::load(now, &error);
        QVERIFY2(parsed, qPrintable(error));
        QCOMPARE(parsed->entry("Title"), title);
        QCOMPARE(parsed->entry("Author"), QString::fromUtf8("λ"));
        QCOMPARE(parsed->entry("CreationDate"), QString("D:20260314073015+01'00'"));
        QVERIFY(added.contains("/Pages 5"));

        const QByteArray packet = outputOf("pdfinfo", {"-meta", name}).toUtf8();
        const QMap<QString, QString> expected{{"dc:format", "application/pdf"}, {"dc:title", title},
                {"dc:creator", QString::fromUtf8("λ")}, {"dc:description", "S\r"}, {"pdf:Keywords", "one, two"},
                {"xmp:CreateDate", "2026-03-14T07:30:15+01:00"}, {"pdfaid:part", "2"}, {"pdfaid:conformance", "U"}};
        QCOMPARE(textsIn(packet), expected);
    }

    void formsThatAreChanged_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("deflated") << withTable(deflate, deflated(rows()));
        QTest::newRow("predicted") << withTable(
                deflate + "/DecodeParms<</Columns 4/Predictor 12>>", deflated(predicted(rows(), 4)));
        QTest::newRow("packet of another program") << sketchWith(info, "<?xpacket?>").finishedByStream(trailer);
        QTest::newRow("packet that is deflated")
                << sketchWith(info, deflated(ownPacket()), "/Filter/FlateDecode").finishedByStream(trailer);
        QTest::newRow("no packet, no id") << samples::describedByStream(info);
        QTest::newRow("blanks after the end") << samples::describedByStream(info) + "\r\n \n";
        QTest::newRow("no line end after the end") << sample().chopped(1);
        Sketch packed = sketchWith(info, ownPacket());
        packed.addStream("/Type/ObjStm/N 1/First 4", "8 0 (a)");
        QTest::newRow("a packed object") << packed.finishedByStream(trailer, QByteArray("\2\0\6\0", 4));
        QTest::newRow("added by another program") << added(sample(), 4, 7);
        QTest::newRow("other entries of the trailer") << sample(info, trailer + "/Own[(a)]");
    }
    void formsThatAreChanged()
    {
        QFETCH(QByteArray, contents);
        QCOMPARE(titleOf(contents), QString("Old"));
        const QByteArray base = contents.startsWith(sample()) ? sample() : contents;
        const QByteArray first = retitled(contents, "First");
        QVERIFY(first.startsWith(base));
        const QByteArray second = retitled(first, "Other");
        QVERIFY(second.startsWith(base));
        QCOMPARE(second.size(), first.size());
        const int id = first.lastIndexOf("/ID [");
        QVERIFY(id < 0 || first.mid(id, 50) != second.mid(id, 50));
        QCOMPARE(titleOf(second), QString("Other"));
        const QByteArray end = second.mid(base.size());
        QCOMPARE(end.count("%%EOF"), 1);
        QCOMPARE(end.contains("xpacket"), contents.contains("uiutils"));
        QCOMPARE(end.contains("/Own [(a)]"), contents.contains("/Own"));
        QCOMPARE(faultsOf(writeFile(path("b.pdf"), second)), QString());
    }

    /// Each differs in one thing from what the library writes.
    void otherFilesTakeTheOtherRoad_data()
    {
        QTest::addColumn<QByteArray>("contents");
        const Sketch sketch = sketchWith(info, ownPacket());
        const QByteArray good = sample();
        const auto changed = [good](const QByteArray& before, const QByteArray& after) {
            return QByteArray(good).replace(before, after);
        };
        const auto length = [](int more) { return "/XML/Length " + QByteArray::number(ownPacket().size() + more); };
        const auto rowChanged = [](int row, const QByteArray& bytes) {
            return withTable("/Size 7/W[1 2 1]", rows().replace(row * 4, 4, bytes));
        };
        QTest::newRow("a table that is no stream") << sketch.finished(trailer);
        QTest::newRow("encrypted") << sample(info, trailer + "/Encrypt 3 0 R");
        QTest::newRow("hybrid") << sketch.finishedByStream(trailer + "/XRefStm 9");
        QTest::newRow("no information") << sketch.finishedByStream("");
        QTest::newRow("information that is a page") << sketch.finishedByStream("/Info 3 0 R");
        QTest::newRow("information of another type") << sample("/Type/Filespec");
        QTest::newRow("information that is the catalog") << sample(info, "/Info 1 0 R");
        QTest::newRow("an entry elsewhere") << sample("/Title 5 0 R");
        QTest::newRow("an entry twice") << sample("/Title(A)/Title(B)");
        QTest::newRow("arrays too deep") << sample("/A" + QByteArray("[").repeated(17) + QByteArray("]").repeated(17));
        QTest::newRow("dictionaries too deep") << sample(QByteArray("/A<<").repeated(17) + QByteArray(">>").repeated(17));
        QTest::newRow("root that is no catalog") << changed("/Root 1", "/Root 2");
        QTest::newRow("packet that is no stream") << changed("/Metadata 5", "/Metadata 3");
        QTest::newRow("packet with a wrong length") << changed(length(0), length(-1));
        QTest::newRow("packed information") << rowChanged(4, QByteArray("\2\0\5\0", 4));
        QTest::newRow("object of another number") << rowChanged(3, rows().mid(2 * 4, 4));
        QTest::newRow("object beyond the end") << rowChanged(3, QByteArray("\1\xff\xff\0", 4));
        QTest::newRow("object of a later generation") << rowChanged(3, rows().mid(3 * 4, 3) + '\1');
        QTest::newRow("object in a stream that is not there") << rowChanged(3, QByteArray("\2\0\7\0", 4));
        QTest::newRow("object of an unknown kind") << rowChanged(3, QByteArray("\3\0\1\0", 4));
        QTest::newRow("table without itself") << rowChanged(6, QByteArray(4, '\0'));
        QTest::newRow("table without the first objects") << withTable("/Size 7/W[1 2 1]/Index[1 6]", rows().mid(4));
        QTest::newRow("shorter than its size") << withTable("/Size 8/W[1 2 1]", rows());
        QTest::newRow("much shorter than its size")
                << withTable(deflate + "/Index[0 999999]", deflated(rows())).replace("/Size 7", "/Size 999999");
        QTest::newRow("longer than its size") << withTable(deflate, deflated(rows() + "abcd"));
        QTest::newRow("larger than 64 MiB")
                << withTable(deflate + "/Index[0 16777223]", deflated(rows() + QByteArray(64 << 20, '\0')))
                           .replace("/Size 7", "/Size 16777223");
        for (const char* widths : {"[1 2]", "[0 2 1]", "[1 0 1]", "[1 9 1]", "[1 2 1 1]", "[-1 2 1]", "5"})
            QTest::addRow("widths %s", widths) << withTable(QByteArray("/Size 7/W") + widths, rows());
        for (const char* index : {"[0]", "[0 8]", "[0 7 0 7]", "[0 999999999999999]", "[0 -7]"})
            QTest::addRow("index %s", index) << withTable(QByteArray("/Size 7/W[1 2 1]/Index") + index, rows());
        QTest::newRow("other filter") << withTable("/Size 7/W[1 2 1]/Filter/ASCIIHexDecode", rows().toHex());
        QTest::newRow("not deflated") << withTable(deflate, rows());
        QTest::newRow("something after the end") << good + "1 0 obj";
        QTest::newRow("two ends") << good + good.mid(good.indexOf("startxref"));
        QTest::newRow("an object after the table") << changed("startxref", "7 0 obj 5 endobj startxref");
        QTest::newRow("an earlier table that is not there") << sketch.finishedByStream(trailer + "/Prev 600");
        QTest::newRow("an earlier table that is this one")
                << sketch.finishedByStream(trailer + "/Prev " + QByteArray::number(sketch.size()));
        // One thing in what was added is different from what formsThatAreChanged() has.
        QTest::newRow("added to what was added") << added(added(good, 4, 7), 4, 8);
        QTest::newRow("another object added") << added(good, 3, 7);
        QTest::newRow("a table of another size") << added(good, 4, 7).replace("/Size 8/Index", "/Size 9/Index");
        QTest::newRow("a table of another number") << added(good, 4, 6).replace("/Size 7/Index", "/Size 8/Index");
        QTest::newRow("a gap before what was added") << added(good + "5", 4, 7);
        QTest::newRow("another root added") << added(good, 4, 7, "/Root 2 0 R/Info 4 0 R");
        const QByteArray prev = "/Prev " + QByteArray::number(sketch.size());
        QTest::newRow("the earlier table is another") << added(good, 4, 7).replace(prev, "/Prev 600");
    }
    void otherFilesTakeTheOtherRoad()
    {
        QFETCH(QByteArray, contents);
        QVERIFY(!pdf::openForUpdate(contents));
    }

    /// Wherever a byte is wrong, the file takes the other road, or what is added is what the intact file would get,
    /// unless the byte is part of what is read.
    void everyByteMayBeWrong_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("new") << sample();
        QTest::newRow("changed") << retitled(sample(), "Earlier");
    }
    void everyByteMayBeWrong()
    {
        QFETCH(QByteArray, contents);
        const QByteArray good = sample();
        const QByteArray added = retitled(contents, "New").mid(good.size());
        QVERIFY(!added.isEmpty());
        // All but what precedes the first object, the pages and the page.
        const auto isRead = [&contents](int at) {
            const int number = contents.lastIndexOf(" 0 obj", at) - 1;
            return number >= 0 && !QByteArray("23").contains(contents.at(number));
        };
        int opened = 0;
        for (int at = 0; at < contents.size(); ++at) {
            for (const char change : {'\1', '\x90'}) {
                QByteArray damaged = contents;
                damaged[at] = char(damaged.at(at) ^ change);
                const QByteArray result = retitled(damaged, "New");
                if (result.isEmpty())
                    continue;
                ++opened;
                QCOMPARE(titleOf(result), QString("New"));
                QVERIFY2(result.startsWith(damaged.left(good.size())), qPrintable(QString::number(at)));
                QVERIFY2(isRead(at) || result.mid(good.size()) == added, qPrintable(QString::number(at)));
            }
            // A file that was cut short has no end, or not this one.
            const QByteArray cut = contents.left(at);
            QVERIFY(!pdf::openForUpdate(cut) || cut == contents.chopped(1) || cut == good || cut == good.chopped(1));
        }
        QVERIFY2(opened > contents.size() / 2 && opened < 2 * contents.size(), qPrintable(QString::number(opened)));
    }
};

QTEST_MAIN(PdfUpdateTest)
#include "tst_pdfupdate.moc"
