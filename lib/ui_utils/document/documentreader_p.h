#pragma once

#include "document/reportkeys_p.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVarLengthArray>
#include <QVector>

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace uiutils {

/// The text of a leaf: a string as it is, a number or boolean in its text form, anything else empty.
QString textOf(const QJsonValue& value);

/// A leaf's text as a user sees it: "EMPTY" means no text.
QString shownTextOf(const QJsonValue& value);

/// Reads a report or section node. Only this class knows in which order a document is walked.
///
/// A key belongs to a family when it contains the family's word and holds an object; one that contains the words of
/// several belongs to the family whose word comes first, so that no child is written twice.
class NodeReader
{
public:
    /// In which order children are walked.
    enum Order {
        /// By ascending number, then those without a number in the order of their keys.
        ByNumber,
        /// In the ascending string order of their keys: "row_1", "row_10", "row_2".
        ByKey
    };

    struct LogEntry
    {
        QString key;
        QString text;
    };

    explicit NodeReader(const QJsonObject& node)
        : m_node(node)
    {
    }

    QString text(QLatin1String key) const { return textOf(m_node.value(key)); }
    bool has(QLatin1String key) const { return m_node.contains(key); }
    QString tag() const { return text(keys::tag); }
    QString title() const { return text(keys::title); }

    /// False only if the key "enabled" is false, "false", "0" or the number 0.
    bool isEnabled() const;

    /// Calls visit(QString name, QString value) for each "attr_" key, without that prefix, in key order.
    template<typename Visitor> void forEachAttribute(Visitor visit) const
    {
        for (auto it = m_node.begin(); it != m_node.end(); ++it) {
            const QString key = it.key();
            if (key.startsWith(keys::attributeFamily))
                visit(key.mid(keys::attributeFamily.size()), textOf(it.value()));
            else if (key > keys::attributeFamily)
                return;
        }
    }

    /// The "log_" keys and their texts in key order.
    QVector<LogEntry> logEntries() const;

    /// Calls visit(QJsonObject section) for each section.
    template<typename Visitor> void forEachSection(Order order, Visitor visit) const
    {
        forEachChild(keys::sectionFamily, order, [&](const QString&, QJsonObject child) { visit(std::move(child)); });
    }

    /// Calls visit(QString key, QJsonObject table) for each table.
    template<typename Visitor> void forEachTable(Order order, Visitor visit) const
    {
        forEachChild(keys::tableFamily, order, visit);
    }

    /// The number of the table that has this key; nothing if the key has none.
    static std::optional<quint64> tableNumber(const QString& key) { return numberIn(key, keys::tableFamily); }

protected:
    static bool belongsTo(const QString& key, QLatin1String family);
    static std::optional<quint64> numberIn(const QString& key, QLatin1String family);

    template<typename Visitor> void forEachChild(QLatin1String family, Order order, Visitor visit) const
    {
        QVector<std::pair<quint64, QJsonObject::const_iterator>> numbered;
        for (auto it = m_node.begin(); it != m_node.end(); ++it) {
            const QJsonValue value = it.value();
            if (!value.isObject())
                continue;
            const QString key = it.key();
            if (!belongsTo(key, family))
                continue;
            if (order == ByKey)
                visit(key, value.toObject());
            else
                numbered.append({numberIn(key, family).value_or(std::numeric_limits<quint64>::max()), it});
        }
        std::stable_sort(
                numbered.begin(), numbered.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
        for (const auto& child : qAsConst(numbered))
            visit(child.second.key(), child.second.value().toObject());
    }

    QJsonObject m_node;
};

/// Calls visit(QJsonObject cell) for each cell of a row, in the order of their numbers.
template<typename Visitor> void forEachCell(const QJsonObject& row, Visitor visit)
{
    QVarLengthArray<std::pair<int, QJsonObject>, 16> cells;
    for (auto it = row.begin(); it != row.end(); ++it) {
        const QString key = it.key();
        if (!key.startsWith(keys::cellFamily)) {
            if (key > keys::cellFamily)
                break;
            continue;
        }
        const QJsonValue value = it.value();
        if (value.isObject())
            cells.append({key.midRef(keys::cellFamily.size()).toInt(), value.toObject()});
    }
    // The keys of at most ten cells have the order of their numbers.
    if (cells.size() > 10)
        std::stable_sort(cells.begin(), cells.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& cell : cells)
        visit(cell.second);
}

/// Reads a table node.
class TableReader : public NodeReader
{
public:
    /// A wider table keeps only its first columns, so that a wrong count in a damaged file costs no memory.
    static constexpr int maximumColumns = 1000;

    explicit TableReader(const QJsonObject& table);

    /// The number of value columns.
    int columnCount() const { return m_columnCount; }
    /// One label for each column, empty where the table has none.
    QStringList columnLabels() const;
    bool usesRowLabels() const;
    bool isPlot() const { return text(keys::label) == keys::plot; }
    /// What a plot shows: its own data, or the name of the service that has them.
    QString plotSource() const;

    /// The key of the cell in that column.
    static const QString& cellKey(int column);

    struct Extent
    {
        int rows = 0;
        qint64 cells = 0;
    };
    /// How much there is to write, found quickly. Objects that are not rows or cells may be counted too, but never
    /// columns that the table only claims, or keys without an object.
    Extent extent() const;

    /// Calls visit(QString key, QJsonObject row) for each row.
    template<typename Visitor> void forEachRow(Order order, Visitor visit) const
    {
        forEachChild(keys::rowFamily, order, visit);
    }

    /// Calls visit(int place, QJsonObject row) for each row that HTML and PDF pages show, in the order of their keys.
    template<typename Visitor> void forEachRowOnPage(Visitor visit) const
    {
        int place = 0;
        for (auto it = m_node.begin(); it != m_node.end(); ++it, ++place) {
            const QJsonValue value = it.value();
            if (value.isObject() && it.key().startsWith(keys::rowFamily))
                visit(place, value.toObject());
        }
    }
    /// The places of these rows.
    QVector<int> rowPlaces() const;
    /// The row at a place.
    QJsonObject rowAt(int place) const { return (m_node.begin() + place).value().toObject(); }

    /// Calls visit(int column, QJsonObject cell) for each cell that a row has in a column of the table, in the order of
    /// the columns. The time depends on what the row holds: a table may claim many more columns than it fills.
    template<typename Visitor> void forEachCellOf(const QJsonObject& row, Visitor visit) const
    {
        if (m_columnCount > 2 * row.size())
            return forEachSparseCell(row, visit);
        for (int column = 0; column < m_columnCount; ++column) {
            const QJsonValue value = row.value(cellKey(column));
            if (value.isObject())
                visit(column, value.toObject());
        }
    }

private:
    template<typename Visitor> void forEachSparseCell(const QJsonObject& row, Visitor visit) const
    {
        QVarLengthArray<std::pair<int, QJsonObject>, 16> cells;
        for (auto it = row.begin(); it != row.end(); ++it) {
            const int column = columnOf(it.key());
            const QJsonValue value = column < 0 ? QJsonValue() : it.value();
            if (value.isObject())
                cells.append({column, value.toObject()});
        }
        std::sort(cells.begin(), cells.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
        for (const auto& cell : cells)
            visit(cell.first, cell.second);
    }
    /// The column whose cells have that key; negative if the table has none.
    int columnOf(const QString& key) const;

    int m_columnCount = 0;
};

} // namespace uiutils
