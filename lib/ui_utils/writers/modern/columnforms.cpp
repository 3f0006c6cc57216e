#include "writers/modern/columnforms_p.h"

#include "core/numbertext_p.h"
#include "core/status.h"
#include "core/statusword_p.h"
#include "document/documentreader_p.h"
#include "writers/modern/markupwords_p.h"
#include "writers/text/reportcontent_p.h"

#include <algorithm>
#include <array>

namespace uiutils {

namespace {

constexpr int rowsLookedAt = 50;
/// In letters: icon and word.
constexpr int verdictWidth = 10;
constexpr int alignments = Alignment::Right + 1;

/// How many letters of a text are on one line.
int longestPieceOf(const QString& text)
{
    if (isUnbroken(text))
        return text.size();
    int longest = 0;
    const QVector<QStringRef> words = text.splitRef(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QStringRef& word : words)
        longest = qMax(longest, word.size());
    return qMin(longest, longestPiece);
}

/// What the first cells of a column are like.
struct ColumnCount
{
    int texts = 0;
    int numbers = 0;
    int narrowest = 0;
    std::array<int, alignments> named {};

    void add(const QJsonObject& cell)
    {
        const int alignment = alignmentNamed(textOf(cell.value(keys::alignAttribute)));
        const QString text = shownTextOf(cell.value(keys::label));
        const bool isJudged = !statusWord(textOf(cell.value(keys::statusAttribute)).toInt()).isEmpty();
        narrowest = qMax(narrowest, longestPieceOf(text) + (isJudged ? verdictWidth : 0));
        if (alignment >= 0)
            ++named[size_t(alignment)];
        else if (!text.isEmpty()) {
            ++texts;
            numbers += isNumber(text) ? 1 : 0;
        }
    }

    QLatin1String side() const
    {
        const auto most = std::max_element(named.begin(), named.end());
        if (*most > texts)
            return alignmentClass(int(most - named.begin()));
        // A remark or two among the numbers change nothing.
        return numbers > 0 && 3 * numbers >= 2 * texts ? alignmentClass(Alignment::Right) : QLatin1String();
    }
};

} // namespace

QLatin1String alignmentClass(int alignment)
{
    switch (alignment) {
    case Alignment::Center:
        return QLatin1String("c");
    case Alignment::Left:
        return QLatin1String("l");
    case Alignment::Right:
        return QLatin1String("r");
    default:
        return QLatin1String();
    }
}

int alignmentNamed(const QString& attribute)
{
    const int code = attribute.size() == 1 ? attribute.at(0).unicode() - '0' : -1;
    return code < alignments ? code : -1;
}

bool isUnbroken(const QString& text)
{
    constexpr int longest = 24;
    const bool isShort
            = text.size() <= longest && text.count(QLatin1Char(' ')) <= 1 && !text.contains(QLatin1Char('\n'));
    const QStringView digits
            = isShort ? QStringView(text).mid(text.startsWith(QLatin1Char('-')) ? 1 : 0) : QStringView();
    return (!digits.isEmpty() && digits.front().isDigit()) || isNumber(text);
}

QVector<ColumnForm> columnForms(const TableReader& table)
{
    QVector<ColumnCount> counts(table.columnCount());
    const QStringList labels = table.columnLabels();
    for (int column = 0; column < counts.size(); ++column)
        counts[column].narrowest = longestPieceOf(labels.at(column));
    int rows = 0;
    table.forEachRow(NodeReader::ByKey, [&](const QString&, const QJsonObject& row) {
        if (++rows > rowsLookedAt)
            return;
        table.forEachCellOf(row, [&](int column, const QJsonObject& cell) { counts[column].add(cell); });
    });
    QVector<ColumnForm> forms;
    forms.reserve(counts.size());
    for (const ColumnCount& count : qAsConst(counts))
        forms += ColumnForm {count.side(), count.narrowest};
    return forms;
}

} // namespace uiutils
