#include "writers/columnwidths_p.h"
#include "writers/pageflow_p.h"

#include <QTest>

Q_DECLARE_METATYPE(ReportItem::Position)
Q_DECLARE_METATYPE(QVector<uiutils::ColumnDemand>)

namespace {

using Position = ReportItem::Position;
using Portion = ReportItem::Portion;

/// Rows of height 10 below a head that each portion repeats.
class FakeItem final : public ReportItem
{
public:
    FakeItem(int rows, qreal head = 0, bool announces = false)
        : m_lines(rows, 1)
        , m_head(head)
        , m_announces(announces)
    {
    }

    void setLines(int row, int lines) { m_lines[row] = lines; }

    void measure(const uiutils::PageStyle&, const QSizeF&) override {}
    Position end() const override { return {m_lines.size(), 0}; }
    Portion split(const Position& begin, qreal room, bool isWholePage) const override
    {
        if (m_lines.isEmpty())
            qFatal("an item of nothing was split");
        Portion portion = uiutils::takeRows(m_lines, {10, 0}, begin, m_lines.size(), room - m_head, isWholePage);
        if (!portion.isEmpty())
            portion.height += m_head;
        return portion;
    }
    void draw(uiutils::PageCanvas&, const Portion&, const QPointF&) const override {}
    qreal spaceAbove() const override { return 5; }
    bool keepsWithNext() const override { return m_announces; }

private:
    QVector<int> m_lines;
    qreal m_head;
    bool m_announces;
};

/// "0:item@top first-last" for each portion; a torn row is told with its lines.
QStringList flow(const QList<ReportItem*>& items, qreal height)
{
    int pages = 0;
    QStringList lines;
    const QVector<uiutils::PlacedPortion> placed = uiutils::flowOntoPages(items, height, &pages);
    for (const uiutils::PlacedPortion& p : placed) {
        const auto text = [](const Position& at) {
            return at.line ? QStringLiteral("%1.%2").arg(at.row).arg(at.line) : QString::number(at.row);
        };
        lines += QStringLiteral("%1:%2@%3 %4-%5")
                         .arg(p.page)
                         .arg(p.item)
                         .arg(p.top)
                         .arg(text(p.portion.begin), text(p.portion.end));
    }
    lines += QStringLiteral("%1 pages").arg(pages);
    qDeleteAll(items);
    return lines;
}

ReportItem* heading()
{
    return new FakeItem(1, 0, true);
}

} // namespace

class PageFlowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsStayWhole_data()
    {
        QTest::addColumn<QVector<int>>("lines");
        QTest::addColumn<Position>("begin");
        QTest::addColumn<qreal>("room");
        QTest::addColumn<bool>("mayTear");
        QTest::addColumn<Position>("end");
        QTest::addColumn<qreal>("height");

        const QVector<int> rows {1, 3, 2};
        QTest::newRow("all, exactly") << rows << Position {0, 0} << 66.0 << false << Position {3, 0} << 66.0;
        QTest::newRow("a hair too low") << rows << Position {0, 0} << 65.9 << true << Position {2, 0} << 44.0;
        QTest::newRow("rounding is forgiven") << rows << Position {0, 0} << 66 - 1e-9 << false << Position {3, 0} << 66.0;
        QTest::newRow("not the second") << rows << Position {0, 0} << 30.0 << true << Position {1, 0} << 12.0;
        QTest::newRow("nothing") << rows << Position {1, 0} << 31.0 << false << Position {1, 0} << 0.0;
        QTest::newRow("torn") << rows << Position {1, 0} << 31.0 << true << Position {1, 2} << 22.0;
        QTest::newRow("rest of a torn one and on") << rows << Position {1, 2} << 40.0 << true << Position {3, 0} << 34.0;
        QTest::newRow("no room at all") << rows << Position {1, 1} << -5.0 << true << Position {1, 2} << 12.0;
        QTest::newRow("behind the last") << rows << Position {3, 0} << 90.0 << true << Position {3, 0} << 0.0;
    }

    void rowsStayWhole()
    {
        QFETCH(QVector<int>, lines);
        QFETCH(Position, begin);
        QFETCH(qreal, room);
        QFETCH(bool, mayTear);
        QFETCH(Position, end);
        QFETCH(qreal, height);
        const Portion portion = uiutils::takeRows(lines, {10, 2}, begin, lines.size(), room, mayTear);
        QVERIFY(portion.begin == begin);
        QCOMPARE(portion.end.row, end.row);
        QCOMPARE(portion.end.line, end.line);
        QCOMPARE(portion.height, height);
    }

    void noLineStandsAlone_data()
    {
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("begin");
        QTest::addColumn<qreal>("room");
        QTest::addColumn<bool>("isWholePage");
        QTest::addColumn<int>("taken");

        QTest::newRow("all") << 5 << 0 << 50.0 << false << 5;
        QTest::newRow("one would be left") << 5 << 0 << 49.0 << false << 3;
        QTest::newRow("one of three would be left") << 3 << 0 << 25.0 << false << 0;
        QTest::newRow("only one fits") << 5 << 0 << 19.0 << false << 0;
        QTest::newRow("a single line") << 1 << 0 << 10.0 << false << 1;
        QTest::newRow("no page holds two") << 5 << 0 << 19.0 << true << 1;
        QTest::newRow("no page holds one") << 5 << 3 << 9.0 << true << 1;
        QTest::newRow("the rest") << 5 << 3 << 20.0 << false << 2;
    }

    void noLineStandsAlone()
    {
        QFETCH(int, lines);
        QFETCH(int, begin);
        QFETCH(qreal, room);
        QFETCH(bool, isWholePage);
        QFETCH(int, taken);
        const Portion portion = uiutils::takeLines(lines, 10, begin, room, isWholePage);
        QCOMPARE(portion.end.row - begin, taken);
        QCOMPARE(portion.height, taken * 10.0);
    }

    void itemsFlow()
    {
        QCOMPARE(flow({}, 100), (QStringList {"1 pages"}));
        QCOMPARE(flow({new FakeItem(3), new FakeItem(2)}, 100), (QStringList {"0:0@0 0-3", "0:1@35 0-2", "1 pages"}));
        // Each portion has its head again.
        QCOMPARE(flow({new FakeItem(12, 20)}, 60), (QStringList {"0:0@0 0-4", "1:0@0 4-8", "2:0@0 8-12", "3 pages"}));
        // A row is not begun that would be torn, unless no page is high enough.
        auto* tall = new FakeItem(3);
        tall->setLines(1, 7);
        QCOMPARE(flow({tall}, 50), (QStringList {"0:0@0 0-1", "1:0@0 1-1.5", "2:0@0 1.5-3", "3 pages"}));
        // An item of nothing leaves nothing.
        QCOMPARE(flow({new FakeItem(0), new FakeItem(1)}, 50), (QStringList {"0:1@0 0-1", "1 pages"}));
        // Heads that no page can hold leave room for a line each, so that the end is reached.
        QCOMPARE(flow({new FakeItem(2, 500)}, 50), (QStringList {"0:0@0 0-1", "1:0@0 1-2", "2 pages"}));
    }

    void headingsStayWithWhatTheyAnnounce()
    {
        // Heading and first row would need 55.
        QCOMPARE(flow({new FakeItem(7), heading(), new FakeItem(2, 10)}, 100),
                (QStringList {"0:0@0 0-7", "1:1@0 0-1", "1:2@15 0-2", "2 pages"}));
        QCOMPARE(flow({new FakeItem(5), heading(), new FakeItem(2, 10)}, 100),
                (QStringList {"0:0@0 0-5", "0:1@55 0-1", "0:2@70 0-2", "1 pages"}));
        // Several stay together.
        QCOMPARE(flow({new FakeItem(5), heading(), heading(), new FakeItem(2, 10)}, 100),
                (QStringList {"0:0@0 0-5", "1:1@0 0-1", "1:2@15 0-1", "1:3@30 0-2", "2 pages"}));
        // A row that no page holds below its headings is torn there rather than parted from them.
        auto* tall = new FakeItem(1);
        tall->setLines(0, 10);
        QCOMPARE(flow({new FakeItem(5), heading(), tall}, 100),
                (QStringList {"0:0@0 0-5", "1:1@0 0-1", "1:2@15 0-0.8", "2:2@0 0.8-1", "3 pages"}));
        // What shows nothing does not count, and takes no room.
        QCOMPARE(flow({new FakeItem(7), heading(), new FakeItem(0), new FakeItem(2, 10)}, 100),
                (QStringList {"0:0@0 0-7", "1:1@0 0-1", "1:3@15 0-2", "2 pages"}));
        // The last one announces nothing.
        QCOMPARE(flow({new FakeItem(8), heading()}, 100), (QStringList {"0:0@0 0-8", "0:1@85 0-1", "1 pages"}));
        // More of them than a page holds cannot be kept together.
        QList<ReportItem*> many;
        for (int i = 0; i < 8; ++i)
            many += heading();
        QCOMPARE(flow(many, 50).last(), QStringLiteral("3 pages"));
    }

    void columnsShareAPage_data()
    {
        using Demands = QVector<uiutils::ColumnDemand>;
        QTest::addColumn<Demands>("demands");
        QTest::addColumn<int>("labels");
        QTest::addColumn<QString>("bands");

        QTest::newRow("room to spare") << Demands {{50, 20}, {100, 20}} << 0 << "0:200 1:400";
        QTest::newRow("row labels get their share") << Demands {{50, 20}, {50, 20}, {50, 20}} << 1 << "0:180 1:210 2:210";
        QTest::newRow("long row labels") << Demands {{500, 20}, {50, 20}} << 1 << "0:500 1:100";
        QTest::newRow("one long remark") << Demands {{100, 40}, {5000, 90}, {80, 30}} << 0 << "0:100 1:420 2:80";
        QTest::newRow("two of them") << Demands {{100, 40}, {900, 90}, {800, 90}} << 0 << "0:100 1:250 2:250";
        QTest::newRow("words must break") << Demands {{900, 500}, {900, 400}, {100, 100}} << 0 << "0:250 1:250 2:100";
        QTest::newRow("an empty column") << Demands {{0, 0}, {50, 20}, {0, 0}, {50, 20}} << 1 << "1:300 3:300";
        QTest::newRow("nothing at all") << Demands {{0, 0}, {0, 0}} << 1 << "";
        QTest::newRow("labels alone") << Demands {{50, 20}, {0, 0}} << 1 << "0:600";
        QTest::newRow("bands") << Demands(8, {150, 150}) << 1 << "0:150 1:150 2:150 3:150|0:150 4:150 5:150 6:150|0:180 7:420";
    }

    void columnsShareAPage()
    {
        QFETCH(QVector<uiutils::ColumnDemand>, demands);
        QFETCH(int, labels);
        QFETCH(QString, bands);
        QStringList found;
        const QVector<uiutils::ColumnBand> result = uiutils::columnBands(demands, 600, 100, labels);
        for (const uiutils::ColumnBand& band : result) {
            QStringList columns;
            qreal sum = 0;
            for (const uiutils::ColumnWidth& c : band) {
                columns += QStringLiteral("%1:%2").arg(c.column).arg(qRound(c.width));
                sum += c.width;
            }
            QVERIFY(qAbs(sum - 600) < 0.01);
            found += columns.join(' ');
        }
        QCOMPARE(found.join('|'), bands);
    }
};

QTEST_APPLESS_MAIN(PageFlowTest)
#include "tst_pageflow.moc"
