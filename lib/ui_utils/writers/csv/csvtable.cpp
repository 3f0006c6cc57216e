#include "writers/csv/csvtable_p.h"

#include "base/plaintext_p.h"
#include "core/status.h"
#include "core/statusword_p.h"
#include "writers/text/reportcontent_p.h"

namespace uiutils {

namespace {

/// The place of a status among the words; negative if it is none.
int statusIndex(int status)
{
    switch (status) {
    case Status::Pass:
        return 0;
    case Status::Marginal:
        return 1;
    case Status::Fail:
        return 2;
    default:
        return -1;
    }
}

/// A unit of its own may be repeated in the text.
Quantity withUnit(QStringView text, QStringView unit)
{
    Quantity value = quantityOf(text);
    if (value.number.isEmpty() && text.endsWith(unit))
        value = quantityOf(text.chopped(unit.size()).trimmed());
    return {value.number.isEmpty() ? text : value.number, unit};
}

} // namespace

CsvTable::CsvTable(const QString& rowLabel, const QStringList& columnLabels)
    : m_columns(columnLabels.size() + 1)
    , m_statusWords {statusWord(Status::Pass), statusWord(Status::Marginal), statusWord(Status::Fail)}
{
    m_columns[0].label = rowLabel;
    for (int i = 0; i < columnLabels.size(); ++i)
        m_columns[i + 1].label = plainText(columnLabels.at(i)).trimmed();
}

void CsvTable::startRow(const QString& label)
{
    m_rowIsOpen = false;
    addText(-1, label);
}

void CsvTable::addText(int column, const QString& text)
{
    const QString plain = plainText(text);
    append(column + 1, {QStringView(plain).trimmed(), {}}, false, -1);
}

void CsvTable::addCell(int column, const QString& text, int status, const QString& unit)
{
    const QString plain = plainText(text);
    const QString plainUnit = unit.isEmpty() ? QString() : plainText(unit).trimmed();
    const QStringView shown = QStringView(plain).trimmed();
    Quantity value = plainUnit.isEmpty() ? quantityOf(shown) : withUnit(shown, plainUnit);
    const bool isNumber = !value.number.isEmpty() && quantityOf(value.number).number.size() == value.number.size();
    if (value.number.isEmpty())
        value.number = shown;
    append(column + 1, value, isNumber, statusIndex(status));
}

void CsvTable::append(int index, Quantity value, bool isNumber, int word)
{
    if (value.number.isEmpty() && word < 0)
        return;
    Column& column = m_columns[index];
    column.hasCells = true;
    column.hasUnits |= !value.unit.isEmpty();
    column.hasStatuses |= word >= 0;
    m_cells.append(
            {m_text.size(), int(value.number.size()), int(value.unit.size()), qint16(index), qint8(word), isNumber});
    m_text.append(value.number.data(), int(value.number.size()));
    m_text.append(value.unit.data(), int(value.unit.size()));
    if (m_rowIsOpen)
        m_rowEnds.last() = m_cells.size();
    else
        m_rowEnds.append(m_cells.size());
    m_rowIsOpen = true;
}

void CsvTable::write(CsvLines& lines) const
{
    const QVector<int> columns = usedColumns();
    if (columns.isEmpty())
        return;
    writeHeader(lines, columns);
    int begin = 0;
    for (const int end : m_rowEnds) {
        writeRow(lines, columns, begin, end);
        begin = end;
    }
}

/// A table may claim many more columns than it has.
QVector<int> CsvTable::usedColumns() const
{
    QVector<int> columns;
    for (int i = 0; i < m_columns.size(); ++i) {
        if (m_columns.at(i).hasCells || !m_columns.at(i).label.isEmpty())
            columns += i;
    }
    return columns;
}

/// With a single value column nobody has to be told whose unit it is.
void CsvTable::writeHeader(CsvLines& lines, const QVector<int>& columns) const
{
    const bool isSingle = m_columns.size() <= 2;
    for (const int index : columns) {
        const Column& column = m_columns.at(index);
        const QString& label = column.label;
        const bool isPlain = isSingle || label.isEmpty();
        lines.putText(label);
        if (column.hasUnits)
            lines.putText(isPlain ? ReportWords::tr("Unit") : ReportWords::tr("%1 unit").arg(label));
        if (column.hasStatuses)
            lines.putText(isPlain ? ReportWords::tr("Status") : ReportWords::tr("%1 status").arg(label));
    }
    lines.endLine();
}

void CsvTable::writeRow(CsvLines& lines, const QVector<int>& columns, int begin, int end) const
{
    int next = begin;
    for (const int index : columns) {
        const bool isThere = next < end && m_cells.at(next).column == index;
        writeCell(lines, m_columns.at(index), isThere ? &m_cells.at(next) : nullptr);
        next += isThere ? 1 : 0;
    }
    lines.endLine();
}

void CsvTable::writeCell(CsvLines& lines, const Column& column, const Cell* cell) const
{
    const QStringView text = cell ? QStringView(m_text).mid(cell->begin, cell->size + cell->unitSize) : QStringView();
    if (cell && cell->isNumber)
        lines.putNumber(text.left(cell->size));
    else
        lines.putText(cell ? text.left(cell->size) : text);
    if (column.hasUnits)
        lines.putText(cell ? text.mid(cell->size) : text);
    if (column.hasStatuses)
        lines.putText(cell && cell->word >= 0 ? QStringView(m_statusWords[cell->word]) : QStringView());
}

} // namespace uiutils
