#pragma once

#include <QString>
#include <QVariantList>

namespace kiv::simulation {

/// A column of a CSV file whose first line names the columns.
struct CsvColumn
{
    /// In the order of the lines.
    QVariantList values;
    /// Lines without a value for the column, which are left out.
    int brokenLines = 0;
    int lines = 0;
    /// Why there are no values, with the file; empty when there are.
    QString problem;
};

/// Maximum size of a CSV file in bytes, and maximum number of values of a column.
constexpr qint64 largestCsvFile = qint64(16) * 1024 * 1024;
constexpr int mostCsvValues = 1000 * 1000;

/// Reads a column: texts, or finite numbers in C notation. Columns are separated by the first comma, semicolon or tab
/// of the first line; a cell may be in quotation marks, and may not contain the end of a line. An empty name stands for
/// the first column.
CsvColumn readCsvColumn(const QString& path, const QString& column, bool isText);

} // namespace kiv::simulation
