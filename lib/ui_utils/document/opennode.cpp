#include "document/opennode_p.h"

#include "document/reportkeys_p.h"

#include <algorithm>

namespace uiutils {

namespace {

QLatin1String familyWord(int family)
{
    static const QLatin1String words[OpenNode::FamilyCount] = {keys::rowFamily, keys::sectionFamily, keys::tableFamily};
    return words[family];
}

QString childKey(QLatin1String word, int number)
{
    return word + QString::number(number);
}

/// The number in `key` after the family's word, or -1 if it is not the key of a child.
int childNumber(const QString& key, QLatin1String word)
{
    if (!key.startsWith(word))
        return -1;
    bool isNumber = false;
    const int number = key.midRef(word.size()).toInt(&isNumber);
    return isNumber && number >= 0 && childKey(word, number) == key ? number : -1;
}

/// Orders numbers as their decimal texts: 1, 10, 100, 11, 2.
struct DecimalText
{
    explicit DecimalText(int n)
        : padded(n)
        , number(n)
    {
        while (padded != 0 && padded < 1000 * 1000 * 1000)
            padded *= 10;
    }
    bool operator<(const DecimalText& other) const
    {
        return padded != other.padded ? padded < other.padded : number < other.number;
    }

    qint64 padded;
    int number;
};

} // namespace

OpenNode::OpenNode(const QJsonObject& keys, int level)
    : m_level(level)
    , m_keys(keys)
{
    for (auto it = keys.begin(); it != keys.end(); ++it)
        count(it.key());
}

QString OpenNode::nodeType() const
{
    return m_keys.value(keys::nodeType).toString();
}

void OpenNode::set(const QString& key, const QJsonValue& value)
{
    if (QJsonValue* child = waitingChild(key)) {
        *child = value;
        return;
    }
    if (!m_keys.contains(key))
        count(key);
    m_keys.insert(key, value);
}

void OpenNode::append(Family family, const QJsonValue& child, int height)
{
    m_height = std::max(m_height, height + 1);
    Children& children = m_children[family];
    const int number = children.keyCount;
    if (children.hasNumberedKey && !children.isNumberedByArrival) {
        const QString key = childKey(familyWord(family), number);
        // A key of that name was set: it is replaced. The count stays, and so does the next number.
        if (m_keys.contains(key)) {
            m_keys.insert(key, child);
            return;
        }
    }
    children.waiting.append({number, child});
    ++children.keyCount;
}

QJsonObject OpenNode::take()
{
    for (int family = 0; family < FamilyCount; ++family) {
        Children children;
        std::swap(children, m_children[family]);
        QVector<Child>& waiting = children.waiting;
        if (children.isNumberedByArrival)
            renumber(waiting);
        else
            std::sort(waiting.begin(), waiting.end(),
                    [](const Child& a, const Child& b) { return DecimalText(a.number) < DecimalText(b.number); });
        for (const Child& child : qAsConst(waiting))
            m_keys.insert(childKey(familyWord(family), child.number), child.value);
    }
    QJsonObject node;
    node.swap(m_keys);
    return node;
}

void OpenNode::renumber(QVector<Child>& children)
{
    int number = 1;
    // There are nine numbers of one digit, 90 of two, 900 of three.
    while (9 * number < children.size())
        number *= 10;
    for (Child& child : children)
        child.number = number++;
}

void OpenNode::count(const QString& key)
{
    for (int family = 0; family < FamilyCount; ++family) {
        const QLatin1String word = familyWord(family);
        if (!key.contains(word))
            continue;
        ++m_children[family].keyCount;
        m_children[family].hasNumberedKey |= childNumber(key, word) >= 0;
    }
}

QJsonValue* OpenNode::waitingChild(const QString& key)
{
    for (int family = 0; family < FamilyCount; ++family) {
        const int number = childNumber(key, familyWord(family));
        if (number < 0 || m_children[family].isNumberedByArrival)
            continue;
        QVector<Child>& waiting = m_children[family].waiting;
        const auto it = std::lower_bound(
                waiting.begin(), waiting.end(), number, [](const Child& child, int n) { return child.number < n; });
        return it != waiting.end() && it->number == number ? &it->value : nullptr;
    }
    return nullptr;
}

} // namespace uiutils
