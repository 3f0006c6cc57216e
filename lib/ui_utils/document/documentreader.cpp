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
    return value.isString() ? value.toString() : value.toVariant().toString();
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

TableReader::TableReader(const QJsonObject& table)
    : NodeReader(table)
{
    // Read as a double: the count of a damaged file need not fit an int.
    const double count = table.value(keys::numColumns).toVariant().toDouble();
    const int columns = int(qBound(0.0, count, double(maximumColumns)));
    m_cellKeys.reserve(columns);
    for (int column = 0; column < columns; ++column)
        m_cellKeys += numberedKey(keys::cellFamily, column);
}

QStringList TableReader::columnLabels() const
{
    QStringList labels;
    labels.reserve(columnCount());
    for (int column = 0; column < columnCount(); ++column)
        labels += textOf(m_node.value(numberedKey(keys::columnLabelFamily, column)));
    return labels;
}

bool TableReader::usesRowLabels() const
{
    return has(keys::useRowLabels) && !text(keys::useRowLabels).isEmpty() && !isFalse(text(keys::useRowLabels));
}

} // namespace uiutils
