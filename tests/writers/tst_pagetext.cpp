#include "archiveform.h"
#include "columns.h"
#include "pdfreading.h"

#include "core/status.h"
#include "writers/pages/fontchoice_p.h"
#include "writers/pages/reportheader.h"
#include "writers/pages/reportimage.h"
#include "writers/pages/reportpdf.h"
#include "writers/pages/reporttable.h"
#include "writers/pages/reporttext.h"
#include "writers/pdffile/pdffile.h"

#include <QBuffer>
#include <QImage>

namespace {

/// As it is written, without the marks by which the reader tells directions.
QString copied(const QString& path)
{
    static const QRegularExpression marks("[\\x{200e}\\x{200f}\\x{202a}-\\x{202e}]");
    return outputOf("pdftotext", {path, "-"}).remove(marks).simplified();
}

QByteArray picture(int number)
{
    QImage image(8, 8, QImage::Format_ARGB32);
    image.fill(QColor::fromRgb(QRgb(number * 97)));
    image.setPixelColor(0, 0, Qt::transparent);
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    image.save(&file, "PNG");
    return file.data();
}

ReportTable* table(const QString& title, const QStringList& labels, const QVector<QStringList>& rows, int status = 0)
{
    // The first column has the rows' labels.
    auto* table = new ReportTable(title, labels, true);
    for (const QStringList& row : rows) {
        table->appendCell({row.first(), 0, 1, ReportTable::CellKind::RowLabel});
        for (const QString& cell : row.mid(1))
            table->appendCell({cell, status, 1});
        table->endRow();
    }
    return table;
}

/// Elements and texts in their order, in one line.
QString structureOf(const QString& path)
{
    QString structure = outputOf("pdfinfo", {"-struct-text", path}).replace('"', '\'').remove(" (block)").simplified();
    return structure.remove("' '").remove(" ''");
}

/// Sorted; letters that are drawn in parts are their parts.
QString lettersOf(const QString& text)
{
    QString letters = text.normalized(QString::NormalizationForm_KD).remove(' ').remove("'");
    std::sort(letters.begin(), letters.end());
    return letters;
}

int imagesIn(const QString& path)
{
    return contentsOf(path).count("/Subtype/Image");
}

QStringList warnings;
void keepWarning(QtMsgType, const QMessageLogContext&, const QString& text)
{
    warnings += text;
}

} // namespace

class PageTextTest : public QObject
{
    Q_OBJECT

private:
    /// Prints items and deletes them.
    void print(const QList<ReportItem*>& items, const std::function<void(ReportPDF&)>& setUp = [](ReportPDF&) {})
    {
        ReportPDF pdf;
        pdf.setTitle("Title");
        pdf.setItems(items);
        setUp(pdf);
        QString error;
        const bool isPrinted = pdf.print(m_path, &error);
        qDeleteAll(items);
        QVERIFY2(isPrinted, qPrintable(error));
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("UIUTILS_ROOT", QFile::encodeName(m_root.path()));
        QVERIFY(QDir(m_root.path()).mkpath("base/qml/common/images"));
        writeFile(m_root.filePath("base/qml/common/images/Norda_Color-medium.png"), picture(1));
        m_path = m_root.filePath("report.pdf");
    }

    void wordsAreCopiedAsWritten_data()
    {
        addColumns<QString>();
        const QPair<const char*, const char*> texts[] {{"kerned", "AVAT To. office: 1 = 0.25 dB"},
                {"accents", "Inès naïve Łódź"},
                {"composed", "e\u0301tude"}, {"cyrillic", "Отчёт о затухании"}, {"greek", "Ωμέγα και άλφα"},
                {"hebrew", "שלום עולם"}, {"arabic", "السلام عليكم"}, {"ligatures", "الأول لا إله"},
                {"ideographs", "测量报告 光纤"}, {"kana", "測定レポート"}, {"hangul", "측정 보고서"}, {"mixed", "dB 测量 и Ω"},
                {"thai", "กำลังไฟ น้ำ ที่นี่"}, {"devanagari", "रिपोर्ट क्षेत्र हिन्दी"}};
        for (const auto& [name, text] : texts)
            QTest::newRow(name) << QString::fromUtf8(text);
    }
    /// In a heading, a paragraph and a cell, the headings in the outline aside. Readers that go by glyphs alone find
    /// every letter too, once, though not all in their order.
    void wordsAreCopiedAsWritten()
    {
        const auto [text] = currentRow<QString>();
        for (const auto structure : {ReportPDF::WithStructure, ReportPDF::WithoutStructure}) {
            print({new ReportHeader(1, text), new ReportText(text), table("T", {"A"}, {{"row", text}})},
                    [s = structure](ReportPDF& pdf) { pdf.setStructure(s); });
            QCOMPARE(copied(m_path).count(text), 3);
            QCOMPARE(faultsOf(m_path), QString());
        }
        print({new ReportText(text)});
        const QString paragraph = structureOf(m_path).section(" P ", 2);
        QCOMPARE(lettersOf(paragraph), lettersOf(text));
    }
    void colouredCharactersArePictures()
    {
        const QString text = QString::fromUtf8("a 🇩🇪 b 👩‍🔧");
        print({new ReportText(text), new ReportText(text)});
        QCOMPARE(copied(m_path).count(text), 2);
        // The logo and two pictures, each with a mask, in whatever place.
        QCOMPARE(imagesIn(m_path), 2 * 3);
    }
    void wordsStayApartAtLineEnds_data()
    {
        addColumns<QString>();
        QTest::newRow("set glyph by glyph") << QString("of the ").repeated(60);
        QTest::newRow("laid out") << QString("o\u0336f the ").repeated(60);
    }
    void wordsStayApartAtLineEnds()
    {
        const auto [text] = currentRow<QString>();
        print({new ReportText(text)});
        for (const QString& read : {copied(m_path), outputOf("pdfinfo", {"-struct-text", m_path})})
            QVERIFY2(!read.contains("fthe") && !read.contains("theo"), qPrintable(read));
        QCOMPARE(copied(m_path).count(text.trimmed()), 1);
    }

    /// Whoever copies a row, or has it read aloud, gets each verdict once.
    void iconsAreWords()
    {
        print({table("Verdicts", {"A", "B", "C"}, {{"row", "0.25 dB", "Pass", "Bypass"}}, uiutils::Status::Pass)},
                [](ReportPDF& pdf) { pdf.setFields({{"Overall", "all", uiutils::Status::Fail}}); });
        for (const QString& read : {copied(m_path), outputOf("pdfinfo", {"-struct-text", m_path})}) {
            const QString words = QString(read).remove('"').simplified();
            QVERIFY2(words.contains("Pass 0.25 dB") && words.contains("Pass Bypass") && words.contains("Fail all"),
                    qPrintable(words));
            QCOMPARE(words.count("Pass"), 3);
        }
    }

    void charactersThatNoFontHasAreNamedOnce()
    {
        const uint codes[] {0x378, 0x1ffe0};
        const QString unknown = QString::fromUcs4(codes, 2);
        QVERIFY(uiutils::embeddableFamily(codes[0]).isEmpty() && uiutils::embeddableFamily(codes[1]).isEmpty());
        warnings.clear();
        const QtMessageHandler previous = qInstallMessageHandler(keepWarning);
        print({new ReportText(unknown), table("T", {unknown}, {{"row", unknown + "x"}, {"row", unknown}})});
        qInstallMessageHandler(previous);
        QCOMPARE(warnings.size(), 1);
        QVERIFY(warnings.first().endsWith(": " + unknown));
        QCOMPARE(copied(m_path).count(unknown), 4);
    }

    void structureOfPages()
    {
        auto* levels = table("Levels", {"A", "B"}, {{"row", "1", QString()}});
        levels->appendCell({"both", 0, 1, ReportTable::CellKind::Value, 3});
        levels->endRow();
        print({new ReportHeader(1, "One"), new ReportHeader(2, "Two"), new ReportHeader(3, "Three"),
                new ReportText("Words"), levels, new ReportImage(picture(2))});
        QCOMPARE(structureOf(m_path),
                QString("Document Figure P 'Solvant Report' H1 'Title' H1 'One' H2 'Two' H3 'Three' P 'Words' "
                        "Table Caption 'Levels' TR TH: /Scope /Column TH: /Scope /Column 'A' TH: /Scope /Column 'B' "
                        "TR TH: /Scope /Row 'row' TD '1' TD TR TD: /ColSpan 3 'both' Figure"));
        const PdfObjects objects(m_path);
        const QJsonObject catalog = objects.catalog();
        QCOMPARE(catalog.value("/Lang").toString(), "u:" + QLocale().bcp47Name());
        QCOMPARE(catalog.value("/PageMode").toString(), QString("/UseOutlines"));
        QCOMPARE(objects.dictionary(catalog.value("/ViewerPreferences")).value("/DisplayDocTitle").toBool(), true);
        QCOMPARE(objects.dictionary(catalog.value("/MarkInfo")).value("/Marked").toBool(), true);
        QStringList figures;
        for (const auto& [reference, dictionary] : objects.all()) {
            if (dictionary.value("/Type") == "/Page")
                QCOMPARE(dictionary.value("/Tabs").toString(), QString("/S"));
            if (dictionary.value("/S") == "/Figure") {
                figures += dictionary.value("/Alt").toString();
            }
        }
        figures.sort();
        QCOMPARE(figures, QStringList({"u:Logo", "u:Three: Plot"}));
    }

    /// Characters without a picture have the blank's glyph.
    void blanksStayBlanks()
    {
        print({new ReportText(QString("a\u200db\ufeff")), new ReportText("one two"),
                new ReportText(QString("o\u0336 x"))});
        QVERIFY2(copied(m_path).contains("one two o\u0336 x"), qPrintable(copied(m_path)));
    }

    /// One cell of one row, whatever the number of its pages; what pages repeat is read once.
    void cellsGoOnOverPages()
    {
        QStringList words;
        for (int i = 0; i < 4000; ++i)
            words += QString("w%1").arg(i);
        print({table("Caption", {"Label"}, {{"row", words.join(' ')}, {"next", "last"}})},
                [](ReportPDF& pdf) { pdf.setUnitId("U-1"); });
        QVERIFY(infoOf(m_path, "Pages").toInt() > 2);
        QVERIFY(copied(m_path).contains("Continued"));
        QCOMPARE(structureOf(m_path),
                "Document Figure P 'Solvant Report' H1 'Title' Table Caption 'Caption' TR TH: /Scope /Column "
                "TH: /Scope /Column 'Label' TR TH: /Scope /Row 'row' TD '" + words.join(' ')
                        + "' TR TH: /Scope /Row 'next' TD 'last'");
    }

    void structureByChoice_data()
    {
        addColumns<int, int, bool, QString>();
        QTest::newRow("few rows") << 20000 << int(ReportPDF::AutomaticStructure) << false << "yes";
        QTest::newRow("many rows") << 20001 << int(ReportPDF::AutomaticStructure) << false << "no";
        QTest::newRow("archive") << 20001 << int(ReportPDF::AutomaticStructure) << true << "yes";
        QTest::newRow("on request") << 20001 << int(ReportPDF::WithStructure) << false << "yes";
        QTest::newRow("not wanted") << 1 << int(ReportPDF::WithoutStructure) << false << "no";
    }
    void structureByChoice()
    {
        const auto [rows, structure, isArchive, tagged] = currentRow<int, int, bool, QString>();
        print({table("T", {"A"}, QVector<QStringList>(rows, {"1", "2"}))}, [&](ReportPDF& pdf) {
            pdf.setStructure(ReportPDF::Structure(structure));
            pdf.setArchive(isArchive);
        });
        QCOMPARE(infoOf(m_path, "Tagged"), tagged);
        QCOMPARE(contentsOf(m_path).contains("/StructTreeRoot"), tagged == "yes");
    }

    void archiveForm_data()
    {
        addColumns<QString>();
        QTest::newRow("words") << "Title";
        QString letters;
        for (ushort c = 0xa1; c < 0x180; ++c)
            letters += QChar(c);
        QTest::newRow("many letters") << letters;
        QTest::newRow("any script") << QString::fromUtf8("Отчёт, שלום, السلام, 测量 & <Ω>");
    }
    void archiveForm()
    {
        const auto [text] = currentRow<QString>();
        for (const bool isArchive : {false, true}) {
            print({new ReportHeader(1, text), new ReportText(text + "\u0378"), new ReportImage(picture(2)),
                          table(text, {text}, {{"row", text}}, uiutils::Status::Marginal)},
                    [&](ReportPDF& pdf) {
                        pdf.setTitle(text);
                        pdf.setAuthor(text);
                        pdf.setSubject(text);
                        pdf.setProducer(text);
                        pdf.setArchive(isArchive);
                    });
            const QString expected = isArchive ? QString() : QString("not declared, no output intent");
            QCOMPARE(faultsOfArchive(m_path), expected);
        }
        PDFFile file;
        file.setFilename(m_path);
        file.setTitle("Another " + text);
        file.setAuthor(QString("a\u0007b") + QChar(0xd800));
        file.setMetaData("Keywords", text);
        file.write(m_path);
        QCOMPARE(infoOf(m_path, "Title"), "Another " + text);
        QCOMPARE(faultsOfArchive(m_path), QString());
    }

    void hostileTexts_data()
    {
        addColumns<QString>();
        QTest::newRow("lone surrogates") << QString("a") + QChar(0xd83d) + " b" + QChar(0xde00) + QChar(0xd83d);
        QTest::newRow("marks on one letter") << "a" + QString(100000, QChar(0x301));
        QTest::newRow("marks of direction") << QString("\u200f\u202b\u2067");
        QTest::newRow("syntax") << QString("(\\) endstream <<]]>> & %PDF ?> \"'");
        QString all;
        for (ushort c = 1; c < 0x20; ++c)
            all += QChar(c);
        QTest::newRow("controls") << all + QChar(0) + "\u007f\u0085\u009f";
        QTest::newRow("no characters") << QString("\ufffe\uffff\ufeff\ufdd0\u2028\u2029\U000effff");
        QTest::newRow("tags and selectors") << QString::fromUtf8("\U000e0041\ufe0f\u20e3\U0001f1e9\U0001f1ea\u200d");
    }
    void hostileTexts()
    {
        const auto [text] = currentRow<QString>();
        auto* const rows = table(text, {text}, {{text, text}});
        print({new ReportHeader(1, text), new ReportText(text), rows}, [&](ReportPDF& pdf) {
            pdf.setTitle(text);
            pdf.setAuthor(text);
            pdf.setArchive(true);
        });
        QCOMPARE(faultsOf(m_path), QString());
        QCOMPARE(faultsOfArchive(m_path), QString());
    }

    /// The same pictures are stored once, and what is stored is in proportion.
    void tenThousandPictures_data()
    {
        addColumns<int, int>();
        QTest::newRow("one") << 1 << 400 * 1000;
        QTest::newRow("different ones") << 10 * 1000 << 5 * 1000 * 1000;
    }
    void tenThousandPictures()
    {
        const auto [different, bytes] = currentRow<int, int>();
        QList<ReportItem*> items;
        for (int i = 0; i < 10 * 1000; ++i)
            items += new ReportImage(picture(i % different));
        print(items);
        QCOMPARE(faultsOf(m_path), QString());
        // With the logo, and each with its mask.
        QCOMPARE(imagesIn(m_path), 2 * (different + 1));
        QVERIFY2(contentsOf(m_path).size() < bytes, qPrintable(QString::number(contentsOf(m_path).size())));
    }

private:
    QTemporaryDir m_root;
    QString m_path;
};

QTEST_MAIN(PageTextTest)
#include "tst_pagetext.moc"
