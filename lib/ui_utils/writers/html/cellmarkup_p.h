#pragma once

#include <QString>

namespace uiutils {

// Indentation levels of a table in the body.
constexpr int rowLevel = 3;
constexpr int cellLevel = 4;
constexpr int contentLevel = 5;

/// A line feed and the blanks before an element of that level.
QString newLine(int level);

/// The markup around what a cell shows, by the codes of uiutils::Alignment. A cell is written in a fraction of a
/// microsecond, most of which its elements would take if they were written one by one.
struct CellMarkup
{
    CellMarkup();

    QString value[3];
    QString label[3];
    QString valueEnd;
    QString labelEnd;
    QString row;
    QString rowEnd;
};

const CellMarkup& cellMarkup();

/// The code, or that of the center for any other number.
int knownAlignment(int align);

} // namespace uiutils
