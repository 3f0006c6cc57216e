#pragma once

#include <QLineF>
#include <QPointF>
#include <QSize>
#include <QVector>

#include <vector>

namespace uiutils {

/// The pixels that lines cross, each counted once however often it is crossed: all that can be seen of a curve that
/// covers itself.
class CurveInk
{
public:
    explicit CurveInk(const QSize& size);

    /// Marks the pixels from one point to another. A pixel outside the size counts as the nearest one inside.
    void mark(QPointF from, QPointF to);

    /// Vertical lines along the middles of the pixel columns, one for each run of marked pixels. Runs that are at most
    /// `gap` pixels apart become one line.
    QVector<QLineF> lines(int gap) const;

private:
    void markColumn(int column, double y1, double y2);
    bool isMarked(int column, int row) const;
    void addLines(QVector<QLineF>& lines, int column, int gap) const;

    QSize m_size;
    int m_wordsOfAColumn;
    std::vector<quint64> m_words;
};

} // namespace uiutils
