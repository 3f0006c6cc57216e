#pragma once

#include "writers/pages/pageflow_p.h"
#include "writers/pages/reporttable.h"
#include "writers/pages/tablecolumns_p.h"

#include <memory>

namespace uiutils {

/// The layout of a table on pages: the widths of its columns, the lines of its rows, what is repeated above them.
///
/// A table whose columns are divided into several bands is a stack of all its rows for each band. A single row would be
/// hard to read so: it is laid out as a table of labels and values.
class TableLayout
{
public:
    /// Both must outlive the layout.
    static std::unique_ptr<TableLayout> of(const ReportTable& table, const PageStyle& style, const QSizeF& page);

    TableLayout(const ReportTable& table, const PageStyle& style, const QSizeF& page);

    bool isWide() const { return !m_list && m_columns.isWide(); }
    int rowCount() const { return m_lines.size(); }
    ReportItem::Portion split(const ReportItem::Position& begin, qreal room, bool isWholePage) const;
    void draw(PageCanvas& canvas, const ReportItem::Portion& portion, const QPointF& topLeft) const;
    qreal spaceAbove() const;

private:
    struct Title
    {
        QString text;
        int lines = 0;
    };

    const Title& titleAt(const ReportItem::Position& begin) const;
    qreal titleHeight(const Title& title) const;
    qreal labelsHeight(int band) const;
    qreal headHeight(const ReportItem::Position& begin) const;
    bool isFirstRowTornAnyway(qreal room) const;
    bool isLastOfBand(const ReportItem::Portion& portion) const;
    void keepLastRowsTogether(ReportItem::Portion& portion) const;
    bool isBetterMoved(const ReportItem::Portion& portion, int bandEnd) const;
    int bandOf(const ReportItem::Position& position) const { return position.row / m_rowsOfABand; }

    QString shortTitle(const QString& text) const;
    Title makeTitle(const QString& text) const;
    void measureLabels(int band);
    void measureRows(int band);
    int linesOf(const ReportTable::Cell* cell, qreal width) const;

    void drawBackground(
            PageCanvas& canvas, const ReportItem::Portion& portion, const QRectF& title, const QRectF& labels) const;
    /// `begins` is false for what is repeated on another page.
    void drawTitle(PageCanvas& canvas, const Title& title, const QRectF& place, bool begins) const;
    void drawLabels(PageCanvas& canvas, int band, const QRectF& place, bool begins) const;
    void drawStripes(PageCanvas& canvas, const ReportItem::Portion& portion, const QPointF& topLeft) const;
    void drawRow(PageCanvas& canvas, int band, int row, int beginLine, int endLine, const QPointF& topLeft) const;
    void drawCell(PageCanvas& canvas, const ReportTable::Cell& cell, int column, const TableColumns::Place& place,
            const QPointF& topLeft, int beginLine, int endLine) const;
    void drawJudged(PageCanvas& canvas, const ReportTable::Cell& cell, int column, const TableColumns::Place& place,
            const QPointF& topLeft, int beginLine, int endLine) const;
    bool drawAgain(PageCanvas& canvas, const ReportTable::Cell& cell, const TableColumns::Place& place,
            const QPointF& topLeft, int beginLine, int endLine) const;
    /// Calls visit(int row, int beginLine, int endLine, qreal height) for the part of each row that is in a portion.
    template<typename Visitor> void forEachRow(const ReportItem::Portion& portion, Visitor visit) const;

    const ReportTable& m_table;
    const PageStyle& m_style;
    QSizeF m_page;
    TableColumns m_columns;
    TableType m_type;
    RowHeights m_heights;
    int m_rowsOfABand = 1;
    Title m_title;
    Title m_continuedTitle;
    // For each band: the number of lines of its column labels, which are repeated on each page.
    QVector<int> m_labelLines;
    QVector<QStringList> m_shownLabels;
    // For each row, one band after the other.
    QVector<int> m_lines;
    // What is laid out in place of a table of a single row.
    std::unique_ptr<ReportTable> m_list;
};

} // namespace uiutils
