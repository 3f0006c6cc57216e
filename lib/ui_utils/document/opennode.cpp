#include "document/opennode_p.h"

#include "document/reportkeys_p.h"

#include <algorithm>
#include <utility>

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

/// A number by which the decimal texts of numbers are ordered: 1, 10, 100, 11, 2. Those of 1, 10 and 100 are equal.
qint64 decimalOrder(int number)
{
    qint64 order = number;
    while (order != 0 && order < 1000 * 1000 * 1000)
        order *= 10;
    return order;
}

} // namespace

OpenNode::OpenNode(const QJsonObject& fields, int level)
    : m_level(level)
    , m_nodeType(fields.value(keys::nodeType).toString())
    , m_keys(fields)
{
    for (auto it = fields.begin(); it != fields.end(); ++it)
        count(it.key());
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
    if (key == keys::nodeType)
        m_nodeType = value.toString();
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
    children.waiting.push_back({number, child});
    ++children.keyCount;
}

QJsonObject OpenNode::take()
{
    for (int family = 0; family < FamilyCount; ++family) {
        Children children;
        std::swap(children, m_children[family]);
        if (children.isNumberedByArrival)
            renumber(children.waiting);
        insertByKey(familyWord(family), children.waiting);
    }
    QJsonObject node;
    node.swap(m_keys);
    return node;
}

/// In the order of the keys, so that none that is stored already has to move.
void OpenNode::insertByKey(QLatin1String word, const std::vector<Child>& children)
{
    std::vector<std::pair<qint64, const Child*>> ordered;
    ordered.reserve(children.size());
    for (const Child& child : children)
        ordered.emplace_back(decimalOrder(child.number), &child);
    // The children's places in memory have the order of their numbers.
    std::sort(ordered.begin(), ordered.end());
    for (const auto& entry : ordered)
        m_keys.insert(childKey(word, entry.second->number), entry.second->value);
}

void OpenNode::renumber(std::vector<Child>& children)
{
    int number = 1;
    // There are nine numbers of one digit, 90 of two, 900 of three.
    while (9 * number < int(children.size()))
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
        std::vector<Child>& waiting = m_children[family].waiting;
        const auto it = std::lower_bound(
                waiting.begin(), waiting.end(), number, [](const Child& child, int n) { return child.number < n; });
        return it != waiting.end() && it->number == number ? &it->value : nullptr;
    }
    return nullptr;
}

} // namespace uiutils
