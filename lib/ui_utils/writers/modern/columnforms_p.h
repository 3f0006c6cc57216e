#pragma once

#include <QLatin1String>
#include <QString>
#include <QVector>

namespace uiutils {

class TableReader;

/// The class of the style sheet for a code of Alignment; empty for any other number.
QLatin1String alignmentClass(int alignment);

/// The code of Alignment that a cell's attribute names; negative if it names none.
int alignmentNamed(const QString& attribute);

/// Whether the text is a number with its unit, a range or a time, which must not be torn: "9.00-10.00 s".
bool isUnbroken(const QString& text);

/// To which side the cells of a table's columns stand that do not say so themselves, one class for each column: as most
/// others do, to the right under numbers, else empty. Only the first rows are looked at.
QVector<QLatin1String> columnForms(const TableReader& table);

} // namespace uiutils
