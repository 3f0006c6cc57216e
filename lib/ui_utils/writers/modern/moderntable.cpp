#include "writers/modern/moderntable_p.h"

#include "base/directmarkup_p.h"
#include "core/statusword_p.h"
#include "document/documentreader_p.h"
#include "writers/modern/columnforms_p.h"
#include "writers/modern/markupwords_p.h"
#include "writers/text/reportcontent_p.h"

#include <algorithm>

namespace uiutils {

namespace {

// What fits across a sheet of A4, upright and on its side with smaller letters.
constexpr int mostUpright = 8;
constexpr int lettersUpright = 100;
constexpr int mostOnSide = 12;
constexpr int lettersOnSide = 175;
/// A text of more characters gets a column of some width.
constexpr int longText = 60;
/// A row's label of at most so many is not broken: it fits on a phone beside the cells.
constexpr int longestFirmLabel = 14;

QLatin1String statusClass(int status)
{
    switch (status) {
    case Status::Pass:
        return QLatin1String("pass");
    case Status::Marginal:
        return QLatin1String("marginal");
    case Status::Fail:
        return QLatin1String("fail");
    default:
        return QLatin1String();
    }
}

/// Whether a cell says in its own words what its status says: "Fail", "PASSED".
bool isVerdict(const QString& text, const QString& verdict, QLatin1String english)
{
    constexpr int longestEnding = 2;
    const QString word = text.trimmed();
    const auto isForm = [&](const auto& of) {
        return word.startsWith(of, Qt::CaseInsensitive) && word.size() - of.size() <= longestEnding;
    };
    return (isForm(verdict) || isForm(english))
            && std::all_of(word.begin(), word.end(), [](QChar c) { return c.isLetter(); });
}

void appendVerdict(QString& page, const QString& text)
{
    page += QLatin1String("<span class=\"verdict\">");
    appendText(page, text);
    page += QLatin1String("</span>");
}

void appendClasses(QString& page, std::initializer_list<QLatin1String> classes)
{
    QString names;
    for (const QLatin1String name : classes) {
        if (name.isEmpty())
            continue;
        if (!names.isEmpty())
            names += QLatin1Char(' ');
        names += name;
    }
    if (!names.isEmpty())
        appendAttribute(page, QLatin1String("class"), names);
}

/// How a table is put on paper.
enum class Place { Upright, OnSide, AsList };

/// What a table needs when no word is torn decides, and how many columns it has: many narrow ones are hard to follow.
Place placeOf(const ModernTable::Shape& shape)
{
    constexpr int labelWidth = 12;
    constexpr int gap = 2;
    int columns = shape.hasRowLabels ? 1 : 0;
    int letters = columns * (labelWidth + gap);
    for (const ColumnForm& form : shape.forms)
        letters += form.narrowest + gap;
    columns += shape.columnLabels.size();
    if (columns <= mostUpright && letters <= lettersUpright)
        return Place::Upright;
    return columns <= mostOnSide && letters <= lettersOnSide ? Place::OnSide : Place::AsList;
}

QLatin1String tableClass(int columns, Place place)
{
    if (columns <= 2)
        return QLatin1String("pair");
    return place == Place::AsList ? QLatin1String("cards") : QLatin1String();
}

} // namespace

ModernTable::ModernTable(QString& page, const Shape& shape, int number)
    : m_page(page)
    , m_shape(shape)
{
    const int columns = width() + (shape.hasRowLabels ? 1 : 0);
    const QString id = QStringLiteral("t%1").arg(number);
    const bool hasTitle = !shape.title.trimmed().isEmpty();
    const Place place = placeOf(shape);
    m_isScrolled = columns > 2;
    m_isCards = place == Place::AsList;
    if (m_isScrolled) {
        m_page += place == Place::OnSide ? QLatin1String("<div class=\"scroll side\"")
                                         : QLatin1String("<div class=\"scroll\"");
        m_page += QLatin1String(" role=\"group\" tabindex=\"0\"");
        if (hasTitle)
            appendAttribute(m_page, QLatin1String("aria-labelledby"), id);
        else
            appendAttribute(m_page, QLatin1String("aria-label"), ReportWords::tr("Table %1").arg(number));
        m_page += QLatin1String(">\n");
    }
    m_page += QLatin1String("<table");
    appendClasses(m_page, {tableClass(columns, place)});
    m_page += QLatin1Char('>');
    if (hasTitle) {
        m_page += QLatin1String("\n<caption id=\"") + id + QLatin1String("\">");
        appendValue(m_page, shape.title);
        m_page += QLatin1String("</caption>");
    }
    writeHead();
}

void ModernTable::writeHead()
{
    m_page += QLatin1Char('\n');
    const QStringList& labels = m_shape.columnLabels;
    if (std::all_of(labels.cbegin(), labels.cend(), [](const QString& label) { return label.trimmed().isEmpty(); }))
        return;
    m_page += QLatin1String("<thead><tr>");
    m_nextColumn = 0;
    if (m_shape.hasRowLabels)
        m_page += QLatin1String("<td></td>");
    for (int column = 0; column < labels.size(); ++column) {
        if (labels.at(column).trimmed().isEmpty())
            continue;
        writeEmptyCells(column - m_nextColumn);
        m_page += QLatin1String("<th scope=\"col\"");
        appendClasses(m_page, {sideOf(column)});
        m_page += QLatin1Char('>');
        appendValue(m_page, labels.at(column));
        m_page += QLatin1String("</th>");
        m_nextColumn = column + 1;
    }
    writeEmptyCells(width() - m_nextColumn);
    m_page += QLatin1String("</tr></thead>\n");
}

/// One cell across them all: a table may claim many more columns than it fills.
void ModernTable::writeEmptyCells(int columns)
{
    if (columns < 1)
        return;
    m_page += QLatin1String("<td");
    if (columns > 1)
        appendAttribute(m_page, QLatin1String("colspan"), QString::number(columns));
    m_page += QLatin1String("></td>");
}

void ModernTable::startRow(const QString& label)
{
    m_nextColumn = 0;
    m_page += m_hasBody ? QLatin1String("<tr>") : QLatin1String("<tbody>\n<tr>");
    m_hasBody = true;
    if (!m_shape.hasRowLabels)
        return;
    if (label.trimmed().isEmpty())
        return writeEmptyCells(1);
    // What has no cells is no header.
    const bool isHeader = width() > 0;
    m_page += isHeader ? QLatin1String("<th scope=\"row\"") : QLatin1String("<td");
    appendClasses(m_page, {QLatin1String(label.size() <= longestFirmLabel ? "n" : "")});
    m_page += QLatin1Char('>');
    appendValue(m_page, label);
    m_page += isHeader ? QLatin1String("</th>") : QLatin1String("</td>");
}

void ModernTable::addCell(int column, const QString& text, int status, int alignment)
{
    writeEmptyCells(column - m_nextColumn);
    m_nextColumn = column + 1;
    const QLatin1String judged = statusClass(status);
    m_page += QLatin1String("<td");
    appendClasses(m_page,
            {alignment < 0 ? sideOf(column) : alignmentClass(alignment), QLatin1String(isUnbroken(text) ? "n" : ""),
                    QLatin1String(text.size() > longText ? "long" : ""), judged});
    const QString& label = m_shape.columnLabels.at(column);
    if (m_isCards && !label.isEmpty() && (!text.isEmpty() || !judged.isEmpty()))
        appendAttribute(m_page, QLatin1String("data-label"), label);
    m_page += QLatin1Char('>');
    const QString verdict = statusWord(status);
    const bool isOwnVerdict = !verdict.isEmpty() && isVerdict(text, verdict, judged);
    if (!text.isEmpty() && !isOwnVerdict)
        appendValue(m_page, text);
    if (!verdict.isEmpty()) {
        if (!text.isEmpty() && !isOwnVerdict)
            m_page += QLatin1Char(' ');
        appendVerdict(m_page, isOwnVerdict ? text.trimmed() : verdict);
    }
    m_page += QLatin1String("</td>");
}

void ModernTable::endRow()
{
    writeEmptyCells(width() - m_nextColumn);
    m_page += QLatin1String("</tr>\n");
}

void ModernTable::end()
{
    m_page += m_hasBody ? QLatin1String("</tbody>\n</table>\n") : QLatin1String("</table>\n");
    if (m_isScrolled)
        m_page += QLatin1String("</div>\n");
}

void appendTable(QString& page, const TableReader& table, int number)
{
    // As much as rows of short texts take.
    constexpr int charactersOfARow = 70;
    constexpr int charactersOfACell = 50;
    const bool hasLabels = table.usesRowLabels();
    if (table.columnCount() == 0 && !hasLabels && table.title().trimmed().isEmpty())
        return;
    const TableReader::Extent extent = table.extent();
    makeRoom(page, qint64(extent.rows) * charactersOfARow + extent.cells * charactersOfACell);
    // Beside labels alone, values of all kinds form a list that begins at one side.
    const auto forms = table.columnCount() > 1 ? columnForms(table) : QVector<ColumnForm>();
    const ModernTable::Shape shape {table.title(), table.columnLabels(), hasLabels, forms};
    ModernTable markup(page, shape, number);
    table.forEachRow(NodeReader::ByNumber, [&](const QString& key, const QJsonObject& row) {
        if (!key.startsWith(keys::rowFamily) || (table.columnCount() == 0 && !hasLabels))
            return;
        markup.startRow(hasLabels ? shownTextOf(row.value(keys::label)) : QString());
        table.forEachCellOf(row, [&](int column, const QJsonObject& cell) {
            markup.addCell(column, shownTextOf(cell.value(keys::label)),
                    textOf(cell.value(keys::statusAttribute)).toInt(),
                    alignmentNamed(textOf(cell.value(keys::alignAttribute))));
        });
        markup.endRow();
    });
    markup.end();
}

void appendTable(QString& page, const InformationTable& table, int number)
{
    if (table.rows.isEmpty())
        return;
    const ModernTable::Shape shape {table.title, {table.valueLabel}};
    ModernTable markup(page, shape, number);
    for (const instrument::LabelledText& row : table.rows) {
        markup.startRow(row.label);
        markup.addCell(0, row.text);
        markup.endRow();
    }
    markup.end();
}

} // namespace uiutils
