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
/// Of the width of a page: a longer word is torn, instead of taking the space of other columns.
constexpr qreal longWordShare = 1.0 / 3;
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

/// Gives each column its greater width as far as a common limit, and at least the lesser one: a long remark does not
/// make other columns break their short texts.
template<typename Lesser, typename Greater>
void fillBetween(ColumnBand& band, qreal total, Lesser lesser, Greater greater)
{
    const auto limited = [&](const ColumnWidth& c, qreal limit) { return qMax(lesser(c), qMin(greater(c), limit)); };
    qreal low = 0;
    qreal high = total;
    for (int i = 0; i < bisections; ++i) {
        const qreal limit = (low + high) / 2;
        (sumOf(band, [&](const ColumnWidth& c) { return limited(c, limit); }) > total ? high : low) = limit;
    }
    for (ColumnWidth& c : band)
        c.width = limited(c, low);
}

/// Sets the widths of columns that are side by side.
void share(ColumnBand& band, const QVector<ColumnDemand>& demands, qreal total, qreal comfortable, int labels)
{
    const auto of = [&](const ColumnWidth& c) -> const ColumnDemand& { return demands.at(c.column); };
    const auto natural = [&](const ColumnWidth& c) { return of(c).natural; };
    const auto besideLongWords
            = [&](const ColumnWidth& c) { return qMax(of(c).word, qMin(of(c).natural, comfortable)); };
    const qreal longest = sumOf(band, besideLongWords) <= total ? total : total * longWordShare;
    const auto word = [&](const ColumnWidth& c) { return qMin(of(c).word, longest); };
    const auto piece = [&](const ColumnWidth& c) { return qMin(of(c).piece, longest); };
    if (sumOf(band, natural) <= total) {
        spread(band, labels, total, natural);
    } else if (sumOf(band, word) <= total) {
        fillBetween(band, total, word, natural);
    } else if (sumOf(band, piece) <= total) {
        fillBetween(band, total, piece, word);
    } else {
        std::vector<qreal> widths;
        for (const ColumnWidth& c : band)
            widths.push_back(piece(c));
        const qreal limit = commonLimit(widths, total);
        for (ColumnWidth& c : band)
            c.width = qMin(piece(c), limit);
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

/// The same number of bands, as even as possible.
template<typename Need>
QVector<ColumnBand> balanced(const QVector<ColumnDemand>& demands, qreal total, int labels, Need need)
{
    QVector<ColumnBand> bands = dealt(demands, total, labels, need);
    qreal low = 0;
    qreal high = total;
    for (int i = 0; i < bisections; ++i) {
        const qreal limit = (low + high) / 2;
        const QVector<ColumnBand> tried = dealt(demands, limit, labels, need);
        const bool isEnough = tried.size() <= bands.size();
        (isEnough ? high : low) = limit;
        if (isEnough)
            bands = tried;
    }
    return bands;
}

} // namespace

QVector<ColumnBand> columnBands(const QVector<ColumnDemand>& demands, qreal total, qreal comfortable, int labels)
{
    const qreal longest = total * longWordShare;
    const auto scarce = [&](const ColumnDemand& d) { return qMin(d.piece, longest); };
    // If there have to be several bands, every column has enough space in one of them.
    const auto ample = [&](const ColumnDemand& d) { return qMin(d.natural, qMax(comfortable, qMin(d.word, longest))); };
    QVector<ColumnBand> bands = dealt(demands, total, labels, scarce);
    if (bands.size() > 1)
        bands = balanced(demands, total, labels, ample);
    for (ColumnBand& band : bands)
        share(band, demands, total, comfortable, labels);
    return bands;
}

} // namespace uiutils
