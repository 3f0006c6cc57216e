#include "pdfreading.h"

#include "writers/pages/reportdrawing.h"
#include "writers/pages/reportheader.h"
#include "writers/pages/reportimage.h"
#include "writers/pages/reportpainter.h"
#include "writers/pages/reportpdf.h"
#include "writers/pages/reporttable.h"
#include "writers/pages/reporttext.h"

#include <QBuffer>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int pixelsOfAnInch = 144;
constexpr int pointsOfAnInch = 72;

QImage painted(ReportPainter& pages, int page)
{
    QImage image((pages.pageSize(page) * pixelsOfAnInch / pointsOfAnInch).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(qreal(pixelsOfAnInch) / pointsOfAnInch, qreal(pixelsOfAnInch) / pointsOfAnInch);
    pages.paint(painter, page);
    return image;
}

int layOut(ReportPainter& pages)
{
    while (pages.layOutMore()) { }
    return pages.pageCount();
}

/// How much the pictures differ where they differ most, 0 to 255. Two programs smooth the edges of letters differently,
/// so areas of a few points are compared.
int difference(const QImage& a, const QImage& b)
{
    constexpr int cell = 16;
    const auto coarse = [&](const QImage& image) {
        return image.convertToFormat(QImage::Format_Grayscale8)
                .scaled(a.size() / cell, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage x = coarse(a), y = coarse(b);
    int most = 0;
    for (int row = 0; row < x.height(); ++row) {
        for (int column = 0; column < x.width(); ++column)
            most = qMax(most, qAbs(qGray(x.pixel(column, row)) - qGray(y.pixel(column, row))));
    }
    return most;
}

class Cross final : public ReportDrawing
{
    qreal height(const QSizeF&) const override { return 120; }
    void paint(QPainter& painter, const QSizeF& size) const override
    {
        painter.setPen(QPen(Qt::red, 8));
        painter.drawLine(QPointF(-50, 0), QPointF(size.width(), size.height()));
        painter.drawText(QPointF(20, 100), "Drawn");
    }
};

} // namespace

class ReportPainterTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_root;
    QList<ReportItem*> m_items;
    ReportTable* m_table = nullptr;
    ReportPDF m_pages;

    QVector<QImage> picturesOfFile()
    {
        QString error;
        if (!m_pages.print(m_root.filePath("report.pdf"), &error))
            qWarning("%s", qPrintable(error));
        outputOf("pdftoppm", {"-r", QString::number(pixelsOfAnInch), "-png", m_root.filePath("report.pdf"), m_root.filePath("p")});
        QVector<QImage> pictures;
        for (const QString& name : QDir(m_root.path()).entryList({"p-*.png"}, QDir::Files, QDir::Name)) {
            pictures += QImage(m_root.filePath(name));
            QFile::remove(m_root.filePath(name));
        }
        return pictures;
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("UIUTILS_ROOT", QFile::encodeName(m_root.path()));
        QImage plot(300, 200, QImage::Format_RGB32);
        plot.fill(Qt::darkGreen);
        QByteArray encoded;
        QBuffer buffer(&encoded);
        plot.save(&buffer, "PNG");
        m_table = new ReportTable("Measurements", {"Level", "Remark"}, true);
        for (int row = 0; row < 70; ++row) {
            m_table->appendCell({QString("AVAVA %1").arg(row), 0, 1, ReportTable::CellKind::RowLabel});
            m_table->appendCell({QString::number(row), row % 3 == 0 ? 64 : 0});
            m_table->appendCell({row == 30 ? QString("torn ").repeated(2000) : row % 4 ? "Plain" : "\u05e9\u05dc\u05d5\u05dd"});
            m_table->endRow();
        }
        m_items = {new ReportHeader(1, "Heading"), new ReportText(QString("AV").repeated(40)), new ReportImage(encoded), new Cross, m_table};
        m_pages.setItems(m_items);
        m_pages.setTitle("Title");
        m_pages.setFields({{"Verdict", "Fail", 64}});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Built-in status icons are printed"));
        QVERIFY(!m_pages.toPdf().isEmpty());
    }
    void cleanupTestCase() { qDeleteAll(m_items); }

    /// Every kind of content, at its place, on every page.
    void pagesAreThoseOfTheFile()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Built-in status icons are printed"));
        const QVector<QImage> file = picturesOfFile();
        ReportPainter pages(m_pages);
        QCOMPARE(pages.pageCount(), 0);
        QVERIFY(layOut(pages) > 3);
        QCOMPARE(pages.pageCount(), file.size());
        for (int page = file.size() - 1; page >= 0; --page) {
            const QImage own = painted(pages, page);
            QCOMPARE(own.size(), file.at(page).size());
            QVERIFY2(difference(own, file.at(page)) < 25,
                    qPrintable(QString("page %1 differs by %2").arg(page).arg(difference(own, file.at(page)))));
        }
        QCOMPARE(painted(pages, file.size()), QImage(painted(pages, -1)));
    }

    /// The items have one layout at a time, but several painters and a file may take turns.
    void takesTurnsWithOthers()
    {
        ReportPainter letter(m_pages);
        ReportPainter small(m_pages, {300, 400});
        const int pageCount = layOut(letter);
        QVERIFY(layOut(small) > pageCount);
        const QImage first = painted(letter, 1), other = painted(small, 1);
        QCOMPARE(other.size(), QSize(600, 800));
        QCOMPARE(painted(letter, 1), first);
        const auto paintInBetween = connect(&m_pages, &ReportPDF::progressChanged, [&] { painted(small, 1); });
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Built-in status icons are printed"));
        QCOMPARE(picturesOfFile().size(), pageCount);
        disconnect(paintInBetween);
        {
            ReportPainter another(m_pages);
            layOut(another);
            QCOMPARE(painted(small, 1), other);
        }
        QCOMPARE(painted(small, 1), other);
        QCOMPARE(painted(letter, 1), first);

        // A table that has grown meanwhile is shown as it is now.
        for (int row = 0; row < 100; ++row) {
            m_table->appendCell({"More"});
            m_table->endRow();
        }
        painted(small, 0);
        painted(letter, 0);
        QVERIFY(letter.pageCount() > pageCount);
        QVERIFY(painted(letter, letter.pageCount() - 1) != painted(letter, letter.pageCount()));
    }

    void paperOfAnySize()
    {
        const ReportPainter none(m_pages, {0, 500}), tiny(m_pages, {1, 1}), tall(m_pages, {500, 5000});
        QCOMPARE(none.pageSize(0), QSizeF(612, 792));
        QCOMPARE(tiny.pageSize(0), QSizeF(200, 200));
        QCOMPARE(tall.pageSize(0), QSizeF(500, 5000));
        ReportPainter smallest(m_pages, {1, 1});
        QVERIFY(layOut(smallest) > 10);
        painted(smallest, 5);
    }
};

QTEST_MAIN(ReportPainterTest)
#include "tst_reportpainter.moc"
