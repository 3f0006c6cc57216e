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

/// What the cells of a column have in common.
struct ColumnForm
{
    /// The class that says to which side cells stand that do not say so themselves: as most others do, to the right
    /// under numbers, else empty.
    QLatin1String side;
    /// How many letters wide the column is at least, if no word is torn.
    int narrowest = 0;
};

/// The forms of a table's columns, of which only the first rows are looked at.
QVector<ColumnForm> columnForms(const TableReader& table);

} // namespace uiutils
