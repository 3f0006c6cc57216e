#include "document/documentreader_p.h"

#include <QVariant>

namespace uiutils {

namespace {

bool isFalse(const QString& text)
{
    return text == QLatin1String("false") || text == QLatin1String("0");
}

QString numberedKey(QLatin1String family, int number)
{
    return family + QString::number(number);
}

} // namespace

QString textOf(const QJsonValue& value)
{
    if (value.isString())
        return value.toString();
    return value.isUndefined() ? QString() : value.toVariant().toString();
}

QString shownTextOf(const QJsonValue& value)
{
    const QString text = textOf(value);
    return text == keys::emptyText ? QString() : text;
}

bool NodeReader::isEnabled() const
{
    return !isFalse(text(keys::enabled));
}

QVector<NodeReader::LogEntry> NodeReader::logEntries() const
{
    QVector<LogEntry> entries;
    for (auto it = m_node.begin(); it != m_node.end(); ++it) {
        const QString key = it.key();
        if (key.startsWith(keys::logFamily))
            entries.append({key, shownTextOf(it.value())});
    }
    return entries;
}

bool NodeReader::belongsTo(const QString& key, QLatin1String family)
{
    const int place = key.indexOf(family);
    if (place <= 0)
        return place == 0;
    const QLatin1String families[] = {keys::sectionFamily, keys::tableFamily, keys::rowFamily};
    return std::none_of(std::begin(families), std::end(families), [&](QLatin1String other) {
        const int otherPlace = key.indexOf(other);
        return otherPlace >= 0 && otherPlace < place;
    });
}

std::optional<quint64> NodeReader::numberIn(const QString& key, QLatin1String family)
{
    bool isNumber = false;
    const quint64 number = key.midRef(key.indexOf(family) + family.size()).toULongLong(&isNumber);
    return isNumber ? std::optional<quint64>(number) : std::nullopt;
}

TableReader::TableReader(const QJsonObject& table)
    : NodeReader(table)
{
    // Read as a double, because the count in a damaged file may not fit an int.
    const double count = table.value(keys::numColumns).toVariant().toDouble();
    m_columnCount = int(qBound(0.0, count, double(maximumColumns)));
}

QStringList TableReader::columnLabels() const
{
    QVector<QString> labels(m_columnCount);
    for (auto it = m_node.begin(); it != m_node.end(); ++it) {
        const QString key = it.key();
        if (!key.startsWith(keys::columnLabelFamily)) {
            if (key > keys::columnLabelFamily)
                break;
            continue;
        }
        const int column = key.midRef(keys::columnLabelFamily.size()).toInt();
        if (column >= 0 && column < m_columnCount && key == numberedKey(keys::columnLabelFamily, column))
            labels[column] = textOf(it.value());
    }
    return labels.toList();
}

TableReader::Extent TableReader::extent() const
{
    const auto isObject = [](const QJsonValue& value) { return value.isObject(); };
    Extent extent;
    for (auto it = m_node.begin(); it != m_node.end(); ++it) {
        const QJsonValue value = it.value();
        if (!value.isObject())
            continue;
        ++extent.rows;
        const QJsonObject row = m_columnCount > 1 ? value.toObject() : QJsonObject();
        extent.cells += m_columnCount > 1
                ? std::min<qint64>(m_columnCount, std::count_if(row.begin(), row.end(), isObject))
                : m_columnCount;
    }
    return extent;
}

QVector<int> TableReader::rowPlaces() const
{
    QVector<int> places;
    forEachRowOnPage([&](int place, const QJsonObject&) { places += place; });
    places.squeeze();
    return places;
}

const QString& TableReader::cellKey(int column)
{
    // Shared permanently, which makes tables that claim a thousand columns and fill two many times cheaper.
    static const QStringList names = [] {
        QStringList names;
        for (int column = 0; column < maximumColumns; ++column)
            names += numberedKey(keys::cellFamily, column);
        return names;
    }();
    return names.at(column);
}

int TableReader::columnOf(const QString& key) const
{
    if (!key.startsWith(keys::cellFamily))
        return -1;
    bool isNumber = false;
    const int column = key.midRef(keys::cellFamily.size()).toInt(&isNumber);
    // "cell_07" and "cell_+7" are not keys of cells.
    return isNumber && column >= 0 && column < m_columnCount && cellKey(column) == key ? column : -1;
}

QString TableReader::plotSource() const
{
    const QString own = text(keys::plotData);
    return own.isEmpty() ? text(keys::service) : own;
}

bool TableReader::usesRowLabels() const
{
    return has(keys::useRowLabels) && !text(keys::useRowLabels).isEmpty() && !isFalse(text(keys::useRowLabels));
}

} // namespace uiutils
