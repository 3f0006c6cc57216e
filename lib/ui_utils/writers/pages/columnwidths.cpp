#include "writers/pages/columnwidths_p.h"

#include <QtGlobal>

#include <algorithm>
#include <functional>
#include <vector>

namespace uiutils {

namespace {

/// The share of the width that row labels get, if possible, beside a few values, so that the columns of successive
/// tables of labels and values are aligned.
constexpr qreal labelShare = 0.3;
constexpr int fewValues = 2;
/// Enough halvings of a width to make the rest invisible.
constexpr int bisections = 40;

template<typename Measure> qreal sumOf(const ColumnBand& band, Measure measure)
{
    qreal sum = 0;
    for (const ColumnWidth& column : band)
        sum += measure(column);
    return sum;
}

/// The maximum width of a column with which all of `widths` fit into `total`: the widest ones are reduced first.
qreal commonLimit(std::vector<qreal> widths, qreal total)
{
    std::sort(widths.begin(), widths.end());
    qreal left = total;
    for (size_t i = 0; i < widths.size(); ++i) {
        const qreal share = left / qreal(widths.size() - i);
        if (widths[i] > share)
            return share;
        left -= widths[i];
    }
    return widths.empty() ? total : widths.back();
}

/// Gives the columns the width that they need, and their share of the remaining space.
void spread(ColumnBand& band, int labels, qreal total, const std::function<qreal(const ColumnWidth&)>& natural)
{
    qreal labelSum = 0;
    qreal valueSum = 0;
    int values = 0;
    for (const ColumnWidth& c : qAsConst(band)) {
        (c.column < labels ? labelSum : valueSum) += natural(c);
        values += c.column < labels ? 0 : 1;
    }
    const qreal labelShareOfAll = values > fewValues ? labelSum / (labelSum + valueSum) : labelShare;
    const bool hasBoth = labelSum > 0 && valueSum > 0;
    const qreal labelTotal = hasBoth ? qBound(labelSum, total * labelShareOfAll, total - valueSum) : total;
    const qreal valueTotal = hasBoth ? total - labelTotal : total;
    for (ColumnWidth& c : band) {
        const bool isLabel = c.column < labels;
        c.width = natural(c) * (isLabel ? labelTotal / labelSum : valueTotal / valueSum);
    }
}

/// Sets the widths of columns that are side by side.
void share(ColumnBand& band, const QVector<ColumnDemand>& demands, qreal total, int labels)
{
    const auto natural = [&](const ColumnWidth& c) { return demands.at(c.column).natural; };
    const auto minimal = [&](const ColumnWidth& c) { return qMin(demands.at(c.column).minimal, natural(c)); };
    const qreal naturalSum = sumOf(band, natural);
    const qreal minimalSum = sumOf(band, minimal);
    if (naturalSum <= total) {
        spread(band, labels, total, natural);
    } else if (minimalSum <= total) {
        // One long remark does not make the other columns break their short texts.
        const auto limited
                = [&](const ColumnWidth& c, qreal limit) { return qMax(minimal(c), qMin(natural(c), limit)); };
        qreal low = 0;
        qreal high = total;
        for (int i = 0; i < bisections; ++i) {
            const qreal limit = (low + high) / 2;
            (sumOf(band, [&](const ColumnWidth& c) { return limited(c, limit); }) > total ? high : low) = limit;
        }
        for (ColumnWidth& c : band)
            c.width = limited(c, low);
    } else {
        std::vector<qreal> widths;
        for (const ColumnWidth& c : band)
            widths.push_back(minimal(c));
        const qreal limit = commonLimit(widths, total);
        for (ColumnWidth& c : band)
            c.width = qMin(minimal(c), limit);
    }
}

/// Divides the columns into bands; each column needs the width that `need` gives.
template<typename Need>
QVector<ColumnBand> dealt(const QVector<ColumnDemand>& demands, qreal total, int labels, Need need)
{
    QVector<ColumnBand> bands;
    ColumnBand common;
    ColumnBand band;
    qreal commonNeed = 0;
    qreal bandNeed = 0;
    for (int column = 0; column < demands.size(); ++column) {
        const ColumnDemand& demand = demands.at(column);
        if (demand.isEmpty())
            continue;
        if (column < labels) {
            common.append({column, 0});
            commonNeed += need(demand);
            continue;
        }
        if (!band.isEmpty() && commonNeed + bandNeed + need(demand) > total) {
            bands += common + band;
            band.clear();
            bandNeed = 0;
        }
        band.append({column, 0});
        bandNeed += need(demand);
    }
    if (!band.isEmpty() || (bands.isEmpty() && !common.isEmpty()))
        bands += common + band;
    return bands;
}

} // namespace

QVector<ColumnBand> columnBands(const QVector<ColumnDemand>& demands, qreal total, qreal least, int labels)
{
    const auto scarce = [&](const ColumnDemand& d) { return qMin(qMin(d.minimal, d.natural), least); };
    // If there have to be several bands, every column has enough space in one of them.
    const auto ample = [&](const ColumnDemand& d) { return qMin(d.natural, qMax(2 * least, scarce(d))); };
    QVector<ColumnBand> bands = dealt(demands, total, labels, scarce);
    if (bands.size() > 1)
        bands = dealt(demands, total, labels, ample);
    for (ColumnBand& band : bands)
        share(band, demands, total, labels);
    return bands;
}

} // namespace uiutils
