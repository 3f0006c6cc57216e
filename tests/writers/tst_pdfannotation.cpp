#include "columns.h"
#include "pdfsamples.h"

#include "writers/pdffile/pdfannotation_p.h"
#include "writers/pdffile/podofo/pdfdocument_p.h"
#include "writers/pdffile/wholepdf_p.h"

#include <cmath>

using namespace uiutils::pdf;

namespace {

using PoDoFo::PdfObject;

/// The outline as a reader finds it, following first and next: one line for each entry, indented, with page and height.
class OutlineText
{
public:
    explicit OutlineText(const QByteArray& contents)
    {
        QString error;
        m_document = uiutils::podofo::load(contents, &error);
        if (!m_document)
            qFatal("%s", qPrintable(error));
        const PdfObject* outline = m_document->GetCatalog()->GetIndirectKey("Outlines");
        if (outline)
            walk(*outline, 0);
    }

    QStringList lines() const { return m_lines; }
    /// Links that do not lead back to their origin, and wrong numbers of children.
    int faults() const { return m_faults; }

private:
    void walk(const PdfObject& parent, int depth)
    {
        const PdfObject* previous = nullptr;
        int children = 0;
        for (const PdfObject* entry = parent.GetIndirectKey("First"); entry;
                entry = entry->GetIndirectKey("Next")) {
            m_faults += entry->GetIndirectKey("Parent") != &parent;
            m_faults += entry->GetIndirectKey("Prev") != previous;
            m_lines += QString(2 * depth, ' ') + uiutils::podofo::textOf(entry->GetIndirectKey("Title")) + placeOf(*entry);
            walk(*entry, depth + 1);
            previous = entry;
            ++children;
        }
        m_faults += parent.GetIndirectKey("Last") != previous;
        m_faults += std::abs(parent.GetDictionary().GetKeyAsLong("Count")) != children;
    }

    QString placeOf(const PdfObject& entry) const
    {
        const PdfObject* place = entry.GetIndirectKey("Dest");
        if (!place)
            return QString();
        const PoDoFo::PdfArray& array = place->GetArray();
        PoDoFo::PdfPage* page = m_document->GetPagesTree()->GetPage(array[0].GetReference());
        return QString(" @%1 %2 %3")
                .arg(page->GetPageNumber())
                .arg(QString::fromStdString(array[1].GetName().GetName()))
                .arg(array[3].GetReal());
    }

    std::unique_ptr<PoDoFo::PdfMemDocument> m_document;
    QStringList m_lines;
    int m_faults = 0;
};

} // namespace

Q_DECLARE_METATYPE(QVector<OutlineEntry>)

class PdfAnnotationTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString& name) const { return m_folder.filePath(name); }

    /// Two pages of 200 x 100 points; the second is higher, belongs to a tree of its own and does not begin at zero.
    QString twoPages() const
    {
        samples::Sketch sketch;
        sketch.add("<</Type/Catalog/Pages 2 0 R>>");
        sketch.add("<</Type/Pages/Kids[3 0 R 4 0 R]/Count 2/MediaBox[0 0 200 100]>>");
        sketch.add("<</Type/Page/Parent 2 0 R>>");
        sketch.add("<</Type/Pages/Parent 2 0 R/Kids[5 0 R]/Count 1>>");
        sketch.add("<</Type/Page/Parent 4 0 R/MediaBox[10 20 200 320]>>");
        writeFile(path("two.pdf"), sketch.finished());
        return path("two.pdf");
    }

private Q_SLOTS:
    void outlines_data()
    {
        addColumns<QVector<OutlineEntry>, QStringList>();
        QTest::newRow("none") << QVector<OutlineEntry>{} << QStringList{};
        QTest::newRow("places") << QVector<OutlineEntry>{{"a", 0, 0, 0}, {"b", 0, 0, 30}, {"c", 0, 1, 30}}
                                << QStringList{"a @1 XYZ 100", "b @1 XYZ 70", "c @2 XYZ 290"};
        QTest::newRow("off the pages")
                << QVector<OutlineEntry>{{"a", 0, -1, -5}, {"b", 0, 7, 1e9}, {"c", 0, 0, std::nan("")}}
                << QStringList{"a @1 XYZ 100", "b @2 XYZ 20", "c @1 XYZ 100"};
        QTest::newRow("jumps") << QVector<OutlineEntry>{{"a", 3, 0, 0}, {"b", 5, 0, 0}, {"c", 5, 0, 0},
                {"d", -2, 0, 0}}
                               << QStringList{"a @1 XYZ 100", "  b @1 XYZ 100", "    c @1 XYZ 100",
                                          "d @1 XYZ 100"};
        QTest::newRow("titles") << QVector<OutlineEntry>{{"a\nb\tc\x7f", 0, 0, 0},
                {QString(300, 'x'), 0, 0, 0}, {QString(199, 'x') + QString::fromUtf8("😀"), 0, 0, 0},
                {"", 0, 0, 0}}
                                << QStringList{"a b c  @1 XYZ 100", QString(200, 'x') + " @1 XYZ 100",
                                           QString(199, 'x') + " @1 XYZ 100", " @1 XYZ 100"};
    }
    void outlines()
    {
        const auto [entries, lines] = currentRow<QVector<OutlineEntry>, QStringList>();
        Annotation annotation;
        annotation.outline = entries;
        QString error;
        const QByteArray contents = annotated(twoPages(), annotation, &error);
        QVERIFY2(!contents.isEmpty(), qPrintable(error));
        const OutlineText outline(contents);
        QCOMPARE(outline.lines(), lines);
        QCOMPARE(outline.faults(), 0);
        writeFile(path("outlined.pdf"), contents);
        QCOMPARE(samples::faultsOf(path("outlined.pdf")), QString());
    }

    void tornFilesAreIncomplete_data()
    {
        addColumns<QByteArray, bool>();
        samples::print(path("whole.pdf"), 2);
        const QByteArray whole = contentsOf(path("whole.pdf"));
        const int table = whole.lastIndexOf("startxref");
        outputOf("qpdf", {"--object-streams=generate", path("whole.pdf"), path("streams.pdf")});
        QTest::newRow("printed") << whole << true;
        QTest::newRow("with a stream for a table") << contentsOf(path("streams.pdf")) << true;
        QTest::newRow("blank lines behind") << whole + "\r\n\n" << true;
        QTest::newRow("empty") << QByteArray() << false;
        QTest::newRow("header only") << QByteArray("%PDF-1.4\n") << false;
        QTest::newRow("no header") << whole.mid(1) << false;
        for (const int size : {whole.size() / 2, table, table + 12, whole.size() - 2})
            QTest::newRow(qPrintable(QString("cut at %1").arg(size))) << whole.left(size) << false;
        QTest::newRow("a block missing") << QByteArray(whole).remove(1000, 512) << false;
        QTest::newRow("a tail of another file") << whole.left(4000) + whole.mid(table) << false;
        QTest::newRow("zeros in place of the end")
                << whole.left(whole.size() - 512) + QByteArray(512, '\0') << false;
        QTest::newRow("table at zero") << QByteArray("%PDF-1.4\nxref\nstartxref\n0\n%%EOF\n") << false;
        QTest::newRow("table far behind")
                << QByteArray("%PDF-1.4\nxref\nstartxref\n999999999999999999\n%%EOF\n") << false;
        QTest::newRow("table before the start")
                << QByteArray("%PDF-1.4\nxref\nstartxref\n-9\n%%EOF\n") << false;
    }
    void tornFilesAreIncomplete()
    {
        auto [contents, whole] = currentRow<QByteArray, bool>();
        QBuffer device(&contents);
        QVERIFY(device.open(QIODevice::ReadOnly));
        QString error;
        QCOMPARE(isWholePdf(device, &error), whole);
        QCOMPARE(error.isEmpty(), whole);
        writeFile(path("torn.pdf"), contents);
        error.clear();
        QCOMPARE(annotated(path("torn.pdf"), Annotation(), &error).isEmpty(), !whole);
        QCOMPARE(error.isEmpty(), whole);
    }
};

QTEST_MAIN(PdfAnnotationTest)
#include "tst_pdfannotation.moc"
