#include "writers/emitter/fontcoverage_p.h"

#include "writers/emitter/fonttable_p.h"

#include <algorithm>

namespace uiutils::pdf {

namespace {

/// Of characters up to U+FFFF, in four lists: all ends, then all beginnings.
void addSegments(FontCoverage* coverage, const FontTable& cmap, qint64 at)
{
    const int count = cmap.u16(at + 6) / 2;
    for (int i = 0; i < count; ++i)
        coverage->emplace_back(cmap.u16(at + 16 + count * 2 + i * 2), cmap.u16(at + 14 + i * 2));
}

void addGroups(FontCoverage* coverage, const FontTable& cmap, qint64 at)
{
    const qint64 count = qMin<qint64>(cmap.u32(at + 12), cmap.size() / 12);
    for (qint64 i = 0; i < count; ++i)
        coverage->emplace_back(cmap.u32(at + 16 + i * 12), cmap.u32(at + 20 + i * 12));
}

bool isUnicode(quint16 platform, quint16 encoding)
{
    return platform == 0 || (platform == 3 && (encoding == 1 || encoding == 10));
}

/// Damaged fonts have ranges that overlap.
FontCoverage merged(FontCoverage ranges)
{
    std::sort(ranges.begin(), ranges.end());
    FontCoverage result;
    for (const auto& range : ranges) {
        if (range.first > range.second)
            continue;
        if (!result.empty() && range.first <= result.back().second)
            result.back().second = std::max(result.back().second, range.second);
        else
            result.push_back(range);
    }
    result.shrink_to_fit();
    return result;
}

} // namespace

FontCoverage fontCoverage(const FontTables& tables)
{
    // A sound font has two or three; each may be as long as the table.
    constexpr int maximumSubtables = 16;
    const FontTable cmap(tables("cmap"));
    FontCoverage coverage;
    for (int i = 0; i < qMin<int>(cmap.u16(2), maximumSubtables); ++i) {
        const qint64 at = cmap.u32(8 + i * 8);
        if (!isUnicode(cmap.u16(4 + i * 8), cmap.u16(6 + i * 8)))
            continue;
        if (cmap.u16(at) == 4)
            addSegments(&coverage, cmap, at);
        else if (cmap.u16(at) == 12)
            addGroups(&coverage, cmap, at);
    }
    return merged(std::move(coverage));
}

bool mayShow(const FontCoverage& coverage, quint32 character)
{
    const auto endsBefore = [](const auto& range, quint32 c) { return range.second < c; };
    const auto range = std::lower_bound(coverage.begin(), coverage.end(), character, endsBefore);
    return range != coverage.end() && range->first <= character;
}

} // namespace uiutils::pdf
