#include "filesizelimit.h"

#include "base/paths.h"
#include "document/reporttemplate.h"
#include "writers/reportheader.h"
#include "writers/reportimage.h"
#include "writers/reportpdf.h"
#include "writers/reporttable.h"
#include "writers/reporttext.h"
#include "writers/templatetopdfwriter.h"

#include <embedded/embeddedbackend.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

/// What a program that knows nothing of this library prints about a file; null when it fails.
QString output(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool isDone = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    if (!isDone || process.exitCode() != 0) {
        qWarning("%s: %s", qPrintable(program), process.readAllStandardError().constData());
        return {};
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// The text in the order in which it was drawn, page by page.
QStringList pagesOf(const QString& path)
{
    QStringList pages = output("pdftotext", {"-raw", path, "-"}).split('\f');
    pages.removeLast();
    return pages;
}

/// "0 First", "1 Statuses": level and title, with the page that each leads to.
QStringList outlineOf(const QString& path)
{
    const QJsonObject json
            = QJsonDocument::fromJson(output("qpdf", {"--json", "--json-key=outlines", path}).toUtf8()).object();
    QStringList lines;
    const std::function<void(const QJsonArray&, int)> visit = [&](const QJsonArray& entries, int level) {
        for (const QJsonValue& value : entries) {
            const QJsonObject entry = value.toObject();
            lines += QStringLiteral("%1 %2 @%3")
                             .arg(level)
                             .arg(entry.value("title").toString())
                             .arg(entry.value("destpageposfrom1").toInt());
            visit(entry.value("kids").toArray(), level + 1);
        }
    };
    visit(json.value("outlines").toArray(), 0);
    return lines;
}

QString infoOf(const QString& path, const QString& key)
{
    const QRegularExpression line("^" + key + ":\\s+(.*)$", QRegularExpression::MultilineOption);
    return line.match(output("pdfinfo", {path})).captured(1);
}

void addRow(ReportTable& table, const QStringList& cells, int status = 0)
{
    for (const QString& cell : cells)
        table.appendCell({cell, status});
    table.endRow();
}

} // namespace

class ReportPdfTest : public QObject
{
    Q_OBJECT

private:
    /// Prints items and deletes them. The file has passed qpdf's check.
    QString printed(const QList<ReportItem*>& items, const std::function<void(ReportPDF&)>& setUp = [](ReportPDF&) {})
    {
        ReportPDF pdf;
        pdf.setItems(items);
        setUp(pdf);
        QString error;
        const bool isPrinted = pdf.print(m_path, &error);
        qDeleteAll(items);
        if (!isPrinted || output("qpdf", {"--check", m_path}).isEmpty()) {
            qWarning("not printed well: %s", qPrintable(error));
            return {};
        }
        return m_path;
    }

    QByteArray contents() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void writeOld() const
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("old");
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_backend = std::make_unique<kiv::embedded::EmbeddedBackend>();
        QVERIFY(m_backend->loadFolders({UIUTILS_TEST_DATA_DIR "/services"}).isEmpty());
        qputenv("UIUTILS_ROOT", QFile::encodeName(m_root.path()));
        QVERIFY(QDir(m_root.path()).mkpath("base/qml/common/images") && QDir(m_root.path()).mkpath("out")
                && QDir(m_root.path()).mkpath("tmp"));
        for (const char* name : {"pass_icon.png", "fail_icon.png", "marginal_icon.png", "Norda_Color-medium.png"})
            QVERIFY(QFile::copy(UIUTILS_SOURCE_DIR "/assets/" + QString(name),
                    m_root.filePath("base/qml/common/images/" + QString(name))));
        m_path = m_root.filePath("out/report.pdf");
    }

    void cleanup()
    {
        // Whatever happened, nothing is left beside the file.
        QCOMPARE(QDir(m_root.filePath("out")).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot).size(),
                QFile::exists(m_path) ? 1 : 0);
        QFile::remove(m_path);
    }

    void documentBecomesPages()
    {
        ReportTemplate document;
        document.readFile(UIUTILS_TEST_DATA_DIR "/documents/everything.json");
        QList<ReportItem*> items;
        TemplateToPdfWriter writer(document, &items);
        writer.setAttribute("fail", true);
        writer.setAttribute("includeJobInfo", true);
        writer.setAttribute("unitId", "U-17");
        writer.setAttribute("author", QString::fromUtf8("Inès Ω"));
        writer.setAttribute("subject", "Acceptance (final)");
        writer.setAttribute("producer", "uiutils");
        QString error;
        QVERIFY2(writer.write(m_path, &error), qPrintable(error));
        qDeleteAll(items);

        QVERIFY(!output("qpdf", {"--check", m_path}).isEmpty());
        const QStringList pages = pagesOf(m_path);
        QCOMPARE(infoOf(m_path, "Pages").toInt(), pages.size());
        QCOMPARE(infoOf(m_path, "Page size"), QString("612 x 792 pts (letter)"));
        for (const char* text : {"Solvant Report", "Every kind of node", "Overall Status", "Fail", "Job ID",
                     "Started at 10:00.", "Statuses", "So so"})
            QVERIFY2(pages.first().contains(text), text);
        for (int page = 0; page < pages.size(); ++page) {
            QVERIFY(pages.at(page).contains(QString("Page %1 of %2").arg(page + 1).arg(pages.size())));
            QVERIFY(pages.at(page).contains("Unit ID: U-17"));
            QVERIFY(pages.at(page).contains("Every kind of node"));
        }
        QCOMPARE(infoOf(m_path, "Title"), QString("Every kind of node"));
        QCOMPARE(infoOf(m_path, "Author"), QString::fromUtf8("Inès Ω"));
        QCOMPARE(infoOf(m_path, "Subject"), QString("Acceptance (final)"));
        QCOMPARE(infoOf(m_path, "Producer"), QString("uiutils"));
        const QStringList outline = outlineOf(m_path);
        QVERIFY(outline.contains("0 Directly in the report @1"));
        const QString part = outline.mid(outline.indexOf("0 First @1"), 5).join(", ");
        QCOMPARE(part, QString("0 First @1, 1 Configuration Values @1, 1 Statuses @1, 1 Second @1, 2 Third @1"));
    }

    void everyCellIsThereInOrder()
    {
        auto* table = new ReportTable("Levels", {"Point", "Level", "Remark"}, true);
        QString expected;
        for (int i = 0; i < 600; ++i) {
            const QStringList cells {QString("Row%1").arg(i), QString("P%1").arg(i), QString("%1dBm").arg(i * 0.5),
                    i % 7 ? QString("r%1").arg(i) : QString("a remark of many words %1 ").arg(i).repeated(8).trimmed()};
            table->appendCell({cells.at(0), 0, 2, ReportTable::CellKind::RowLabel});
            for (int c = 1; c < cells.size(); ++c)
                table->appendCell({cells.at(c), i % 3 ? 0 : 16});
            table->endRow();
            expected += cells.join(QString());
        }
        const QStringList pages = pagesOf(printed({new ReportHeader(1, "Section"), table}));
        QVERIFY(pages.size() > 10);
        QString all;
        for (int page = 0; page < pages.size(); ++page) {
            QStringList lines = pages.at(page).split('\n', Qt::SkipEmptyParts);
            const int title = lines.indexOf(page ? "Levels - Continued" : "Levels");
            QVERIFY2(title >= 0, qPrintable(pages.at(page)));
            QCOMPARE(lines.at(title + 1), QString("Point Level Remark"));
            lines.removeLast();
            all += lines.mid(title + 2).join(QString());
        }
        all.remove(' ');
        QCOMPARE(all, expected.remove(' '));
    }

    void headingsStayWithTallRows()
    {
        auto* table = new ReportTable("", {""}, false);
        for (int row = 0; row < 4; ++row)
            addRow(*table, {QString("row%1 ").arg(row) + QString("word ").repeated(600)});
        auto* filler = new ReportText(QString("line\n").repeated(30));
        const QStringList pages = pagesOf(printed({filler, new ReportHeader(1, "Heading"), table}));
        QVERIFY(!pages.at(0).contains("Heading"));
        QVERIFY(pages.at(1).contains("Heading") && pages.at(1).contains("row0"));

        // One that has to be torn anyway leaves no page empty.
        auto* taller = new ReportTable("", {""}, false);
        addRow(*taller, {QString("first ") + QString("word ").repeated(3000)});
        QVERIFY(pagesOf(printed({new ReportHeader(1, "Heading"), taller})).at(0).contains("first"));
    }

    void anyScript_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("Greek") << QString::fromUtf8("Μέτρηση ισχύος");
        QTest::newRow("Cyrillic") << QString::fromUtf8("Измерение мощности");
        QTest::newRow("CJK") << QString::fromUtf8("光功率測量結果");
        QTest::newRow("Arabic") << QString::fromUtf8("نتيجة القياس");
        QTest::newRow("combining") << QString::fromUtf8("A\u030Angstro\u0308m");
        QTest::newRow("symbols") << QString::fromUtf8("−20 µW ± 5 % ≤ 3 Ω ∞ €");
    }

    /// Selected and copied, the text is the one that was printed, but for the joined forms of letters.
    void anyScript()
    {
        QFETCH(QString, text);
        auto* table = new ReportTable(text, {}, false);
        addRow(*table, {text});
        const QString path = printed({new ReportText(text), table}, [&](ReportPDF& pdf) { pdf.setTitle(text); });
        QCOMPARE(infoOf(path, "Title"), text);
        // Readers have their own order for right-to-left letters.
        const auto letters = [](const QString& s) {
            QString plain = s.normalized(QString::NormalizationForm_KC).remove(QRegularExpression("[ \\p{Cf}]"));
            std::sort(plain.begin(), plain.end());
            return plain;
        };
        int found = 0;
        const QStringList lines = output("pdftotext", {path, "-"}).split('\n');
        for (const QString& line : lines)
            found += letters(line) == letters(text);
        QCOMPARE(found, 3);
    }

    void landscapeAndBlankSettings()
    {
        const QString path = printed({}, [](ReportPDF& pdf) {
            pdf.setOrientation(ReportPDF::Landscape);
            pdf.setLogo("/base/none.png");
        });
        QCOMPARE(infoOf(path, "Page size"), QString("792 x 612 pts (letter)"));
        QCOMPARE(infoOf(path, "Pages"), QString("1"));
        QCOMPARE(infoOf(path, "Title"), QString("Solvant Report"));
        QVERIFY(!pagesOf(path).first().contains("Unit ID"));
        QVERIFY(outlineOf(path).isEmpty());
    }

    void oddItems_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("pages");
        QTest::newRow("a title of 10,000 characters") << 0 << 3;
        QTest::newRow("hundreds of columns") << 1 << 2;
        QTest::newRow("a row taller than pages") << 2 << 4;
        QTest::newRow("empty tables") << 3 << 1;
        QTest::newRow("an image larger than a page") << 4 << 2;
        QTest::newRow("what is no image") << 5 << 1;
        QTest::newRow("control characters") << 6 << 1;
        QTest::newRow("a heading of pages") << 7 << 4;
        QTest::newRow("an image too large to decode") << 8 << 1;
    }

    void oddItems()
    {
        QFETCH(int, kind);
        QFETCH(int, pages);
        QList<ReportItem*> items;
        QString title = "T";
        QStringList words;
        auto* table = new ReportTable(kind == 0 ? QString("word ").repeated(2000) : QString("Table"),
                kind == 1 ? QVector<QString>(300, QString("Label")).toList() : QStringList {"A"}, false);
        items += table;
        switch (kind) {
        case 0:
            title = QString("l").repeated(10000);
            for (int i = 0; i < 100; ++i)
                addRow(*table, {"cell"});
            words = QStringList {"- Continued", "l\u2026 Solvant Report"};
            break;
        case 1:
            for (int i = 0; i < 300; ++i)
                words += QString("c%1").arg(i);
            addRow(*table, words);
            break;
        case 2:
            for (int i = 0; i < 3000; ++i)
                words += QString("w%1").arg(i);
            addRow(*table, {words.join(' ')});
            break;
        case 3:
            items += new ReportTable("", {}, true);
            items += new ReportTable("Rows of nothing", QVector<QString>(1000, QString()).toList(), true);
            addRow(*static_cast<ReportTable*>(items.last()), {""});
            break;
        case 4: {
            QImage image(5000, 9000, QImage::Format_RGB32);
            image.fill(Qt::yellow);
            QByteArray png;
            QBuffer buffer(&png);
            image.save(&buffer, "PNG");
            items += new ReportImage(png);
            break;
        }
        case 5:
            items += new ReportImage("no image");
            break;
        case 6:
            addRow(*table, {QString("a\x01") + QChar(0xd800) + "\tb\r\nc" + QChar(0) + "\x7f"});
            break;
        case 7:
            items += new ReportHeader(1, QString("heading ").repeated(1500));
            break;
        case 8: {
            // The head of 9,000 by 9,000 pixels.
            const QByteArray bitmap
                    = QByteArray::fromHex("424d00000000000000003600000028000000282300002823000001002000")
                    + QByteArray(24, '\0');
            auto* image = new ReportImage(bitmap);
            items += image;
            QVERIFY(image->end() == ReportItem::Position());
            break;
        }
        }
        const QString path = printed(items, [&](ReportPDF& pdf) { pdf.setTitle(title); });
        QVERIFY(!path.isEmpty());
        QVERIFY2(infoOf(path, "Pages").toInt() >= pages && infoOf(path, "Pages").toInt() < pages + 3,
                qPrintable(infoOf(path, "Pages")));
        const QString text = pagesOf(path).join(' ').simplified();
        for (const QString& word : qAsConst(words))
            QVERIFY2(text.contains(word), qPrintable(word));
    }

    void iconsAreStoredOnce()
    {
        auto* table = new ReportTable("T", {"A"}, false);
        for (int i = 0; i < 300; ++i)
            addRow(*table, {"x"}, i % 2 ? 64 : 16);
        QVERIFY(!printed({table}, [](ReportPDF& pdf) { pdf.setLogo({}); }).isEmpty());
        // Two icons, each with its mask. Behind the annotation, streams and dictionaries stay readable.
        QCOMPARE(contents().count("/Subtype/Image") + contents().count("/Subtype /Image"), 4);
    }

    void progressAndCancel()
    {
        QList<ReportItem*> items {new ReportTable("T", {"A"}, false)};
        for (int i = 0; i < 200; ++i)
            addRow(*static_cast<ReportTable*>(items.first()), {QString::number(i)});
        ReportPDF pdf;
        pdf.setItems(items);
        QVector<QPair<int, int>> told;
        int cancelAt = -1;
        bool printsAgain = true;
        connect(&pdf, &ReportPDF::progressChanged, this, [&](int page, int count) {
            told += {page, count};
            printsAgain = printsAgain && pdf.print(m_path);
            if (page == cancelAt)
                pdf.cancel();
        });
        QVERIFY(pdf.print(m_path));
        QVERIFY(!printsAgain);
        const int pages = infoOf(m_path, "Pages").toInt();
        QVERIFY(pages > 3);
        QCOMPARE(told.last(), qMakePair(pages, pages));
        for (int page = 1; page <= pages; ++page)
            QCOMPARE(told.count({page, pages}), 1);

        for (const int at : {0, 1, pages}) {
            writeOld();
            cancelAt = at;
            QString error = "unset";
            QVERIFY(!pdf.print(m_path, &error));
            QCOMPARE(error, QString());
            QCOMPARE(contents(), QByteArray("old"));
        }
        cancelAt = -1;
        QVERIFY(pdf.print(m_path));
        qDeleteAll(items);
    }

    /// Two that print the same items would take each other's layout away, and a writer deletes those of its last pass.
    void onePrintsAtATime()
    {
        ReportTemplate document;
        document.readFile(UIUTILS_TEST_DATA_DIR "/documents/everything.json");
        QList<ReportItem*> items;
        TemplateToPdfWriter writer(document, &items);
        TemplateToPdfWriter otherWriter(document, &items);
        ReportPDF other;
        int refused = 0;
        connect(&writer.pages(), &ReportPDF::progressChanged, this, [&] {
            QString error;
            other.setItems(items);
            refused += !other.print(m_path, &error) && !error.isEmpty();
            refused += !otherWriter.write(m_path, &error) && !error.isEmpty();
        });
        QVERIFY(writer.write(m_path));
        QVERIFY(refused > 2 * items.size());
        // The items of the last pass go, and as many come.
        const int count = items.size();
        QVERIFY(writer.write(m_path));
        QCOMPARE(items.size(), count);
        QVERIFY(otherWriter.write(m_path));
        other.setItems(items);
        QVERIFY(other.print(m_path));
        qDeleteAll(items);
    }

    void rendererMayGoMeanwhile()
    {
        writeOld();
        auto* pdf = new ReportPDF;
        connect(pdf, &ReportPDF::progressChanged, this, [&](int page, int) {
            if (page == 1)
                delete pdf;
        });
        QVERIFY(!pdf->print(m_path));
        QCOMPARE(contents(), QByteArray("old"));
    }

    void fullDiskIsAnError()
    {
        QList<ReportItem*> items {new ReportTable("T", {"A", "B"}, false)};
        for (int i = 0; i < 2000; ++i)
            addRow(*static_cast<ReportTable*>(items.first()), {QString::number(i * 7919), QString::number(i)});
        ReportPDF pdf;
        pdf.setItems(items);
        QVERIFY(pdf.print(m_path));
        const qint64 size = contents().size();
        QVERIFY(QFile::remove(m_path));

        for (const qint64 room : {qint64(0), qint64(1), qint64(4096), size / 2, size - 3000, size - 1}) {
            writeOld();
            QString error;
            bool isPrinted = true;
            {
                const FileSizeLimit disk {rlim_t(room)};
                isPrinted = pdf.print(m_path, &error);
            }
            QVERIFY2(!isPrinted, qPrintable(QString::number(room)));
            QVERIFY2(error.contains(m_path), qPrintable(error));
            QCOMPARE(contents(), QByteArray("old"));
            QCOMPARE(QDir(m_root.filePath("out")).entryList(QDir::Files | QDir::Hidden).size(), 1);
        }
        qDeleteAll(items);
    }

    void targetsThatCannotBe()
    {
        ReportPDF pdf;
        QVERIFY(QDir(m_root.path()).mkpath("out/folder.pdf"));
        for (const QString& path : {m_root.filePath("none/report.pdf"), m_root.filePath("out/folder.pdf"), QString(),
                     m_root.filePath("out/a") + QChar(0) + ".pdf", m_root.filePath("out/new") + QChar(0) + "/a.pdf"}) {
            QString error;
            QVERIFY(!pdf.print(path, &error));
            QVERIFY(!error.isEmpty());
        }
        QVERIFY(QDir(m_root.filePath("out")).rmdir("folder.pdf"));
    }

private:
    QTemporaryDir m_root;
    QString m_path;
    std::unique_ptr<kiv::embedded::EmbeddedBackend> m_backend;
};

QTEST_MAIN(ReportPdfTest)
#include "tst_reportpdf.moc"
