#include "check/wording.h"

#include "common/nearest.h"

#include <algorithm>
#include <iterator>

namespace uiutils::check {

QString proposal(const QStringList& names)
{
    if (names.isEmpty())
        return QString();
    QString list = names.mid(0, names.size() - 1).join(QLatin1String(", "));
    if (!list.isEmpty())
        list += QLatin1String(" or ");
    return QLatin1String(" Did you mean ") + list + names.constLast() + QLatin1Char('?');
}

QString proposal(const QString& wanted, const QStringList& known)
{
    QStringList slips;
    std::copy_if(known.cbegin(), known.cend(), std::back_inserter(slips),
            [&wanted](const QString& name) { return isSlip(wanted, name); });
    std::sort(slips.begin(), slips.end());
    return proposal(slips.isEmpty() ? apps::nearest(wanted, known) : slips.mid(0, 3));
}

QString enumeration(QStringList names)
{
    constexpr int most = 8;
    std::sort(names.begin(), names.end());
    const int more = names.size() - most;
    const QString list = names.mid(0, most).join(QLatin1String(", "));
    return more > 0 ? QStringLiteral("%1 and %2 more").arg(list, QString::number(more)) : list;
}

bool isSlip(const QString& a, const QString& b)
{
    int begin = 0;
    while (begin < a.size() && begin < b.size() && a.at(begin) == b.at(begin))
        ++begin;
    int end = 0;
    while (end < a.size() - begin && end < b.size() - begin && a.at(a.size() - 1 - end) == b.at(b.size() - 1 - end))
        ++end;
    const QString fromA = a.mid(begin, a.size() - begin - end);
    const QString fromB = b.mid(begin, b.size() - begin - end);
    const bool areSwapped
            = fromA.size() == 2 && fromB.size() == 2 && fromA.at(0) == fromB.at(1) && fromA.at(1) == fromB.at(0);
    return (fromA.size() <= 1 && fromB.size() <= 1) || areSwapped;
}

} // namespace uiutils::check
