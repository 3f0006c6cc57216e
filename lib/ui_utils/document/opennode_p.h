#pragma once

#include <QJsonObject>

#include <array>
#include <vector>

namespace uiutils {

/// A node of a report document that is being built: the keys set so far and its numbered children.
///
/// A child's number is the count of keys that contain its family's word when it arrives. That count is kept as keys
/// arrive, and children wait in arrival order until take(), because inserting "row_10" after "row_9" into a QJsonObject
/// moves every key that sorts after it.
class OpenNode
{
public:
    /// In the order of their words, in which children are inserted into the node.
    enum Family { Row, Section, Table, FamilyCount };

    /// `level` is the number of nodes of its report that enclose it.
    explicit OpenNode(const QJsonObject& fields = QJsonObject(), int level = 0);

    int level() const { return m_level; }
    /// How deep its nodes and rows are nested; 0 if it has none.
    int height() const { return m_height; }

    /// The value of the key "node_type".
    const QString& nodeType() const { return m_nodeType; }

    /// Sets a key. Replaces what was stored under it, a child included.
    void set(const QString& key, const QJsonValue& value);

    /// Stores a child, itself `height` nodes deep, under the next number of its family. Replaces what was stored under
    /// that key.
    void append(Family family, const QJsonValue& child, int height = 0);

    /// From now on the family's children, those that it has included, stay in the order in which they arrive: take()
    /// numbers them so that all numbers have the same count of digits, and the smallest is 1, 10, 100 and so on.
    void numberByArrival(Family family) { m_children[family].isNumberedByArrival = true; }

    /// The finished node; this one is then empty.
    QJsonObject take();

private:
    struct Child
    {
        int number;
        QJsonValue value;
    };
    struct Children
    {
        /// Keys of the node that contain the family's word, children included.
        int keyCount = 0;
        /// Whether a key of m_keys is named like a child of the family.
        bool hasNumberedKey = false;
        /// Whether the numbers of the waiting children are provisional.
        bool isNumberedByArrival = false;
        /// In ascending order of their numbers, without duplicates, none of them a key of m_keys.
        std::vector<Child> waiting;
    };

    void insertByKey(QLatin1String word, const std::vector<Child>& children);
    static void renumber(std::vector<Child>& children);
    void count(const QString& key);
    QJsonValue* waitingChild(const QString& key);

    int m_level;
    int m_height = 0;
    QString m_nodeType;
    QJsonObject m_keys;
    std::array<Children, FamilyCount> m_children;
};

} // namespace uiutils
