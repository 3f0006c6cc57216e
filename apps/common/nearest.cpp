#include "common/nearest.h"

#include <QVector>

#include <algorithm>
#include <numeric>
#include <utility>

namespace uiutils::apps {

namespace {

constexpr int mostDifferences = 3;
constexpr int mostProposals = 3;
/// More is no typing error, and would take its time.
constexpr int longestId = 500;

/// Characters to be added, removed or replaced to get from one to the other.
int differences(const QString& a, const QString& b)
{
    QVector<int> row(b.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < a.size(); ++i) {
        int diagonal = std::exchange(row[0], i + 1);
        for (int j = 0; j < b.size(); ++j) {
            const int replaced = diagonal + (a.at(i) == b.at(j) ? 0 : 1);
            diagonal = row.at(j + 1);
            row[j + 1] = std::min({replaced, row.at(j) + 1, diagonal + 1});
        }
    }
    return row.constLast();
}

/// The one that is no mark of an array.
QString lastWord(const QString& id)
{
    const QStringList words = id.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    const bool isMarked = words.size() > 1 && words.constLast().endsWith(QLatin1String("ARRAY"));
    return words.value(words.size() - (isMarked ? 2 : 1)).toLower();
}

/// Characters may be wrong, unless the word is so short that this made it another one.
bool isSameWord(const QString& a, const QString& b)
{
    const int allowed = std::min((a.size() - 1) / 2, 2);
    return !a.isEmpty() && std::abs(a.size() - b.size()) <= allowed && differences(a, b) <= allowed;
}

} // namespace

QStringList nearest(const QString& wanted, const QStringList& known)
{
    if (wanted.size() > longestId)
        return {};
    const QString word = lastWord(wanted);
    QVector<std::pair<int, QString>> found;
    for (const QString& id : known) {
        const bool endsAlike = isSameWord(word, lastWord(id));
        if (!endsAlike && std::abs(id.size() - wanted.size()) > mostDifferences)
            continue;
        const int distance = differences(wanted, id);
        if (endsAlike || distance <= mostDifferences)
            found.append({distance, id});
    }
    std::sort(found.begin(), found.end());
    QStringList ids;
    for (int i = 0; i < std::min(int(found.size()), mostProposals); ++i)
        ids += found.at(i).second;
    return ids;
}

} // namespace uiutils::apps
