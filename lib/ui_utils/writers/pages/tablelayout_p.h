#pragma once

#include "writers/pages/columnwidths_p.h"
#include "writers/pages/pageflow_p.h"
#include "writers/pages/reporttable.h"

namespace uiutils {

class PageFont;

/// The layout of a table on pages: the widths of its columns, the lines of its rows, what is repeated above them.
///
/// A table whose columns are divided into several bands is a stack of all its rows for each band.
class TableLayout
{
public:
    /// Both must outlive the layout.
    TableLayout(const ReportTable& table, const PageStyle& style, const QSizeF& page);

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
    bool isBetterMoved(const ReportItem::Portion& portion, int bandEnd) const;
    int bandOf(const ReportItem::Position& position) const { return position.row / m_rowsOfABand; }

    const PageFont& fontOf(const ReportTable::Cell& cell) const;
    qreal iconSpace(const ReportTable::Cell& cell) const;
    QString labelOf(int column) const;
    Qt::Alignment alignmentOf(int column) const;

    QVector<ColumnDemand> demands() const;
    void demandFor(const ReportTable::Cell& cell, ColumnDemand& demand) const;
    QString shortTitle(const QString& text) const;
    Title makeTitle(const QString& text) const;
    void measureLabels(int band);
    void measureRows(int band);

    void drawBackground(
            PageCanvas& canvas, const ReportItem::Portion& portion, const QRectF& title, const QRectF& labels) const;
    /// `begins` is false for what is repeated on another page.
    void drawTitle(PageCanvas& canvas, const Title& title, const QRectF& place, bool begins) const;
    void drawLabels(PageCanvas& canvas, int band, const QRectF& place, bool begins) const;
    void drawStripes(PageCanvas& canvas, const ReportItem::Portion& portion, const QPointF& topLeft) const;
    void drawRow(PageCanvas& canvas, int band, int row, int beginLine, int endLine, const QPointF& topLeft) const;
    void drawCell(PageCanvas& canvas, const ReportTable::Cell& cell, int column, const QPointF& topLeft, qreal width,
            int beginLine, int endLine) const;
    /// Calls visit(int row, int beginLine, int endLine, qreal height) for the part of each row that is in a portion.
    template<typename Visitor> void forEachRow(const ReportItem::Portion& portion, Visitor visit) const;

    const ReportTable& m_table;
    const PageStyle& m_style;
    QSizeF m_page;
    RowHeights m_heights;
    QStringList m_labels;
    QVector<ColumnBand> m_bands;
    int m_rowsOfABand = 1;
    Title m_title;
    Title m_continuedTitle;
    // For each band: the number of lines of its column labels, which are repeated on each page.
    QVector<int> m_labelLines;
    QVector<QStringList> m_shownLabels;
    // For each row, one band after the other.
    QVector<int> m_lines;
};

} // namespace uiutils
