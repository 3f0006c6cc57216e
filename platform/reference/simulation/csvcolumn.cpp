#include "csvcolumn_p.h"

#include "simulationtexts_p.h"

#include <QFile>
#include <QFileInfo>

#include <cmath>
#include <optional>

namespace kiv::simulation {

namespace {

char separatorOf(const QByteArray& line)
{
    bool isQuoted = false;
    for (const char character : line) {
        if (character == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && (character == ',' || character == ';' || character == '\t'))
            return character;
    }
    return ',';
}

/// The end of a cell, from its beginning: the separator or the end of the line.
int endOfCell(const QByteArray& line, int begin, char separator)
{
    bool isQuoted = false;
    for (int at = begin; at < line.size(); ++at) {
        if (line.at(at) == '"')
            isQuoted = !isQuoted;
        else if (line.at(at) == separator && !isQuoted)
            return at;
    }
    return line.size();
}

QByteArray unquoted(const QByteArray& cell)
{
    const QByteArray trimmed = cell.trimmed();
    if (trimmed.size() < 2 || !trimmed.startsWith('"') || !trimmed.endsWith('"'))
        return trimmed;
    return trimmed.mid(1, trimmed.size() - 2).replace("\"\"", "\"");
}

/// The cell of a line; nothing when the line has fewer cells.
std::optional<QByteArray> cellOf(const QByteArray& line, int index, char separator)
{
    int begin = 0;
    for (; index > 0; --index) {
        begin = endOfCell(line, begin, separator) + 1;
        if (begin > line.size())
            return std::nullopt;
    }
    return unquoted(line.mid(begin, endOfCell(line, begin, separator) - begin));
}

/// The first column with that name; -1 without one.
int indexOf(const QByteArray& header, const QString& column, char separator)
{
    if (column.isEmpty())
        return 0;
    const QByteArray wanted = column.toUtf8();
    int index = 0;
    for (int begin = 0; begin <= header.size(); ++index) {
        const int end = endOfCell(header, begin, separator);
        if (unquoted(header.mid(begin, end - begin)) == wanted)
            return index;
        begin = end + 1;
    }
    return -1;
}

/// Invalid when the cell has no value of that kind.
QVariant valueOf(const std::optional<QByteArray>& cell, bool isText)
{
    if (!cell || isText)
        return cell ? QString::fromUtf8(*cell) : QVariant();
    bool isNumber = false;
    const double number = cell->toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? number : QVariant();
}

QByteArray nextLine(QFile& file)
{
    QByteArray line = file.readLine();
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    return line;
}

QByteArray headerOf(QFile& file)
{
    QByteArray header = nextLine(file);
    if (header.startsWith("\xef\xbb\xbf"))
        header.remove(0, 3);
    return header;
}

void readLines(QFile& file, int index, char separator, bool isText, CsvColumn* column)
{
    while (!file.atEnd() && column->values.size() < mostCsvValues) {
        const QByteArray line = nextLine(file);
        if (line.isEmpty())
            continue;
        ++column->lines;
        const QVariant value = valueOf(cellOf(line, index, separator), isText);
        if (value.isValid())
            column->values += value;
        else
            ++column->brokenLines;
    }
}

} // namespace

CsvColumn readCsvColumn(const QString& path, const QString& columnName, bool isText)
{
    CsvColumn column;
    // A pipe or a device could keep the reader waiting forever.
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile()) {
        column.problem = Texts::tr("%1: not a regular file").arg(path);
        return column;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        column.problem = Texts::tr("%1: cannot be opened: %2").arg(path, file.errorString());
        return column;
    }
    if (file.size() > largestCsvFile) {
        column.problem = Texts::tr("%1: larger than %2 MiB").arg(path, QString::number(largestCsvFile / 1024 / 1024));
        return column;
    }
    const QByteArray header = headerOf(file);
    const char separator = separatorOf(header);
    const int index = indexOf(header, columnName, separator);
    if (index >= 0)
        readLines(file, index, separator, isText, &column);
    if (index < 0)
        column.problem = Texts::tr("%1: the first line names no column \"%2\"").arg(path, columnName);
    else if (column.values.isEmpty())
        column.problem = Texts::tr("%1: no line has a value of the item's type in the column").arg(path);
    return column;
}

} // namespace kiv::simulation
