#pragma once

#include "core/status.h"
#include "writers/modern/columnforms_p.h"

#include <QLatin1String>
#include <QString>
#include <QStringList>
#include <QVector>

class QJsonObject;

namespace uiutils {

class TableReader;
struct InformationTable;

/// Writes the tables of a modern page. Each names itself and its rows and columns, for eyes and for programs that read
/// aloud.
class ModernTable
{
public:
    struct Shape
    {
        /// Without one the table is named after its number.
        QString title;
        /// One for each value column, empty where it has none.
        QStringList columnLabels;
        bool hasRowLabels = true;
        /// Without them cells stand to the side where lines begin.
        QVector<ColumnForm> forms = {};
    };

    /// Begins a table of the page; `number` tells it from the page's others.
    ModernTable(QString& page, const Shape& shape, int number);

    void startRow(const QString& label = QString());
    /// Adds a cell in the order of the columns; those left out before it are empty. `status` is a code of Status;
    /// `alignment`, one of Alignment, is that of the column if it is negative.
    void addCell(int column, const QString& text, int status = Status::None, int alignment = -1);
    void endRow();
    /// Ends the table.
    void end();

private:
    void writeHead();
    void writeEmptyCells(int columns);
    QLatin1String sideOf(int column) const { return m_shape.forms.value(column).side; }
    int width() const { return m_shape.columnLabels.size(); }

    QString& m_page;
    const Shape& m_shape;
    bool m_isScrolled = false;
    bool m_isCards = false;
    bool m_hasBody = false;
    int m_nextColumn = 0;
};

/// A whole table of a document; nothing for one that shows nothing.
void appendTable(QString& page, const TableReader& table, int number);
/// A whole table of labels and values; nothing without rows.
void appendTable(QString& page, const InformationTable& table, int number);

} // namespace uiutils
