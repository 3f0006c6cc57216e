#include "writers/plots/curveink_p.h"

#include <algorithm>

namespace uiutils {

namespace {

constexpr int bitsOfAWord = 64;

/// The bits from `first` to `last` of a word, both included.
quint64 bitRange(int first, int last)
{
    return (~quint64(0) >> (bitsOfAWord - 1 - (last - first))) << first;
}

} // namespace

CurveInk::CurveInk(const QSize& size)
    : m_size(size.expandedTo(QSize(1, 1)))
    , m_wordsOfAColumn((m_size.height() + bitsOfAWord - 1) / bitsOfAWord)
    , m_words(size_t(m_size.width()) * size_t(m_wordsOfAColumn))
{
}

void CurveInk::mark(QPointF from, QPointF to)
{
    if (from.x() > to.x())
        std::swap(from, to);
    const double last = m_size.width() - 1;
    const int firstColumn = int(qBound(0.0, from.x(), last));
    const int lastColumn = int(qBound(0.0, to.x(), last));
    if (firstColumn == lastColumn) {
        markColumn(firstColumn, from.y(), to.y());
        return;
    }
    const double slope = (to.y() - from.y()) / (to.x() - from.x());
    double y = from.y();
    for (int column = firstColumn; column < lastColumn; ++column) {
        const double next = from.y() + (column + 1 - from.x()) * slope;
        markColumn(column, y, next);
        y = next;
    }
    markColumn(lastColumn, y, to.y());
}

void CurveInk::markColumn(int column, double y1, double y2)
{
    const double lastRow = m_size.height() - 1;
    const int top = int(qBound(0.0, std::min(y1, y2), lastRow));
    const int bottom = int(qBound(0.0, std::max(y1, y2), lastRow));
    quint64* words = &m_words[size_t(column) * size_t(m_wordsOfAColumn)];
    for (int word = top / bitsOfAWord; word <= bottom / bitsOfAWord; ++word) {
        const int start = word * bitsOfAWord;
        words[word] |= bitRange(std::max(top - start, 0), std::min(bottom - start, bitsOfAWord - 1));
    }
}

bool CurveInk::isMarked(int column, int row) const
{
    return m_words[size_t(column * m_wordsOfAColumn + row / bitsOfAWord)] >> (row % bitsOfAWord) & 1;
}

QVector<QLineF> CurveInk::lines(int gap) const
{
    QVector<QLineF> lines;
    for (int column = 0; column < m_size.width(); ++column)
        addLines(lines, column, gap);
    return lines;
}

void CurveInk::addLines(QVector<QLineF>& lines, int column, int gap) const
{
    const double x = column + 0.5;
    int top = -1;
    int bottom = -1;
    // A quarter of a pixel short at each end; a line without length would not be drawn.
    const auto endLine = [&] {
        if (top >= 0)
            lines += QLineF(x, top + 0.25, x, bottom + 0.75);
    };
    for (int row = 0; row < m_size.height(); ++row) {
        if (!isMarked(column, row))
            continue;
        if (top < 0 || row - bottom - 1 > gap) {
            endLine();
            top = row;
        }
        bottom = row;
    }
    endLine();
}

} // namespace uiutils
