#pragma once

#include <QPointF>
#include <QVector>

namespace uiutils {

/// Thins a curve out while its points are added, to what columns of a picture can show. Of neighbouring points in one
/// column only the first, the lowest, the highest and the last remain, so that no spike is lost.
///
/// However many points come, in whatever order, and however often they are interrupted, the memory has a maximum that
/// depends on the number of columns only.
class CurvePoints
{
public:
    explicit CurvePoints(int columns);

    /// Adds a point whose distance from the left end is `position`, 0 to 1.
    void add(double position, const QPointF& point);
    /// The column of a position, 0 to the number of columns.
    int columnOf(double position) const;
    /// The curve has no line to the next point.
    void interrupt();

    /// The points that remain, in their order; one that is not a number stands for each interruption.
    QVector<QPointF> take();

    static QPointF interruption();
    static bool isInterruption(const QPointF& point);

private:
    /// Collects the points of one column.
    class Column
    {
    public:
        void take(const QPointF& point);
        void moveTo(QVector<QPointF>& points);

    private:
        struct Entry
        {
            QPointF point;
            int order = 0;
        };
        Entry m_first;
        Entry m_lowest;
        Entry m_highest;
        Entry m_last;
        int m_count = 0;
    };

    void compact();

    int m_columns;
    int m_most;
    int m_current = -1;
    int m_interruptions = 0;
    // Whether the column has had more interruptions than it shows, and no point since.
    bool m_isInterrupted = false;
    Column m_column;
    QVector<QPointF> m_points;
};

} // namespace uiutils
