#include "writers/columnwidths_p.h"

#include <QtGlobal>

#include <algorithm>
#include <functional>
#include <vector>

namespace uiutils {

namespace {

/// What the columns of row labels get of the width if they can, so that tables below each other are parted alike.
constexpr qreal labelShare = 0.3;

template<typename Measure> qreal sumOf(const ColumnBand& band, Measure measure)
{
    qreal sum = 0;
    for (const ColumnWidth& column : band)
        sum += measure(column);
    return sum;
}

/// The width that no column exceeds when the wider of `widths` give way until all keep to `total`.
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

/// Gives the columns what they ask for and their share of what is left.
void spread(ColumnBand& band, int labels, qreal total, const std::function<qreal(const ColumnWidth&)>& natural)
{
    qreal labelSum = 0;
    qreal valueSum = 0;
    for (const ColumnWidth& c : qAsConst(band))
        (c.column < labels ? labelSum : valueSum) += natural(c);
    const bool hasBoth = labelSum > 0 && valueSum > 0;
    const qreal labelTotal = hasBoth ? qBound(labelSum, total * labelShare, total - valueSum) : total;
    const qreal valueTotal = hasBoth ? total - labelTotal : total;
    for (ColumnWidth& c : band) {
        const bool isLabel = c.column < labels;
        c.width = natural(c) * (isLabel ? labelTotal / labelSum : valueTotal / valueSum);
    }
}

/// Fills in the widths of columns that stand side by side.
void share(ColumnBand& band, const QVector<ColumnDemand>& demands, qreal total, int labels)
{
    const auto natural = [&](const ColumnWidth& c) { return demands.at(c.column).natural; };
    const auto minimal = [&](const ColumnWidth& c) { return qMin(demands.at(c.column).minimal, natural(c)); };
    const qreal naturalSum = sumOf(band, natural);
    const qreal minimalSum = sumOf(band, minimal);
    if (naturalSum <= total) {
        spread(band, labels, total, natural);
    } else if (minimalSum <= total) {
        const qreal part = (total - minimalSum) / (naturalSum - minimalSum);
        for (ColumnWidth& c : band)
            c.width = minimal(c) + (natural(c) - minimal(c)) * part;
    } else {
        std::vector<qreal> widths;
        for (const ColumnWidth& c : band)
            widths.push_back(minimal(c));
        const qreal limit = commonLimit(widths, total);
        for (ColumnWidth& c : band)
            c.width = qMin(minimal(c), limit);
    }
}

} // namespace

QVector<ColumnBand> columnBands(const QVector<ColumnDemand>& demands, qreal total, qreal least, int labels)
{
    // What a column cannot do with less than.
    const auto needed = [&](int column) {
        const ColumnDemand& demand = demands.at(column);
        return qMin(qMin(demand.minimal, demand.natural), least);
    };
    ColumnBand common;
    qreal commonNeed = 0;
    for (int column = 0; column < qMin(labels, demands.size()); ++column) {
        if (demands.at(column).isEmpty())
            continue;
        common.append({column, 0});
        commonNeed += needed(column);
    }

    QVector<ColumnBand> bands;
    ColumnBand band = common;
    qreal need = commonNeed;
    for (int column = labels; column < demands.size(); ++column) {
        if (demands.at(column).isEmpty())
            continue;
        if (need + needed(column) > total && band.size() > common.size()) {
            bands += band;
            band = common;
            need = commonNeed;
        }
        band.append({column, 0});
        need += needed(column);
    }
    if (band.size() > common.size() || bands.isEmpty())
        bands += band;
    if (bands.constFirst().isEmpty())
        return {};
    for (ColumnBand& each : bands)
        share(each, demands, total, labels);
    return bands;
}

} // namespace uiutils
