#include "writers/html/htmlstreamwriter.h"

#include "base/directmarkup_p.h"
#include "base/xmltext_p.h"
#include "writers/html/cellmarkup_p.h"
#include "writers/html/pagestyle_p.h"
#include "writers/html/style.h"
#include "writers/pages/reportheader.h"
#include "writers/pages/reportimage.h"
#include "writers/pages/reporttable.h"
#include "writers/pages/reporttext.h"
#include "writers/pages/statusicons_p.h"
#include "writers/pages/tablerowsource_p.h"

#include <QRegularExpression>

#include <algorithm>
#include <limits>

using uiutils::Alignment;
using uiutils::markupText;
using uiutils::Status;

namespace {

/// On the screens that browsers assume.
constexpr qreal pixelsOfAPoint = 96.0 / 72.0;

QString pngSource(const QByteArray& png)
{
    return QLatin1String("data:image/png;base64,") + QString::fromLatin1(png.toBase64());
}

int clampedProduct(int a, int b)
{
    const qint64 product = qint64(a) * b;
    return int(qBound(qint64(std::numeric_limits<int>::min()), product, qint64(std::numeric_limits<int>::max())));
}

} // namespace

HtmlStreamWriter::HtmlStreamWriter(int indentStep)
    : HtmlStreamWriter(indentStep, &uiutils::sharedReportItems())
{
}

HtmlStreamWriter::HtmlStreamWriter(int indentStep, QList<ReportItem*>* items)
    : QXmlStreamWriter(&m_output)
    , m_attributes(uiutils::defaultPageAttributes())
    , m_indentStep(indentStep)
    , m_items(items)
{
    setAutoFormatting(true);
    writeStartDocument();
    writeDTD(QStringLiteral("<!DOCTYPE html PUBLIC \"-//W3C//DTD Html 4.01 Transitional//EN\" "
                            "\"http://www.w3.org/TR/html4/loose.dtd\">"));
    writeStartElement(QStringLiteral("html"));
}

HtmlStreamWriter::~HtmlStreamWriter()
{
    abandonTable();
}

void HtmlStreamWriter::discardText()
{
    m_keepsText = false;
    m_output.clear();
}

/// The memory stays for the next piece.
void HtmlStreamWriter::clearText()
{
    if (!m_keepsText)
        m_output.resize(0);
}

void HtmlStreamWriter::append(ReportItem* item)
{
    item->setOfPass();
    if (m_items)
        m_items->append(item);
    else
        delete item;
}

/// No further cell follows: the next pass deletes the table as it does a closed one. In a list of the caller's own it
/// may have been deleted already, with the caller's other items.
void HtmlStreamWriter::abandonTable()
{
    if (m_currentTable && m_items == &uiutils::sharedReportItems() && m_items->lastIndexOf(m_currentTable) >= 0)
        m_currentTable->setOfPass();
    m_currentTable = nullptr;
}

void HtmlStreamWriter::readRowsFrom(std::unique_ptr<uiutils::TableRowSource> rows)
{
    if (m_currentTable)
        m_currentTable->readRowsFrom(std::move(rows));
}

bool HtmlStreamWriter::needsRows() const
{
    return m_keepsText || storesCells();
}

bool HtmlStreamWriter::storesCells() const
{
    return m_currentTable && !m_currentTable->readsRows();
}

void HtmlStreamWriter::writeHead(const QString& title, const QList<Style*>& styles)
{
    writeStartElement(QStringLiteral("head"));
    if (!title.isEmpty())
        writeTextElement(QStringLiteral("title"), markupText(title));
    if (!styles.isEmpty()) {
        QString sheet(QLatin1Char('\n'));
        for (const Style* style : styles)
            sheet += QStringLiteral("    %1 {%2}\n").arg(style->selector(), style->toCss());
        writeStartElement(QStringLiteral("style"));
        writeAttribute(QStringLiteral("type"), QStringLiteral("text/css"));
        writeCharacters(markupText(sheet));
        writeEndElement();
    }
    writeEmptyElement(QStringLiteral("meta"));
    writeAttribute(QStringLiteral("http-equiv"), QStringLiteral("Content-Type"));
    writeAttribute(QStringLiteral("content"), QStringLiteral("text/html;charset=UTF-8"));
    writeEndElement();
}

void HtmlStreamWriter::startBody(const QVariantMap& attributes)
{
    static const QRegularExpression attributeName(QStringLiteral("\\A[A-Za-z][A-Za-z0-9-]*\\z"));
    writeStartElement(QStringLiteral("body"));
    for (auto it = attributes.cbegin(); it != attributes.cend(); ++it) {
        if (attributeName.match(it.key()).hasMatch())
            writeAttribute(it.key(), markupText(it.value().toString()));
    }
}

void HtmlStreamWriter::startTable(const QString& title, const QStringList& columnLabels, bool hasLabelColumn,
        int nestingLevel, const QVariantMap& tableAttributes)
{
    abandonTable();
    if (m_items) {
        m_currentTable = new ReportTable(title, columnLabels, hasLabelColumn);
        m_items->append(m_currentTable);
    }
    m_hasLabelColumn = hasLabelColumn;
    m_columnCount = columnLabels.size() + (hasLabelColumn ? 1 : 0);

    Style margin;
    margin.setMarginLeft(clampedProduct(m_indentStep, nestingLevel));
    const auto setting = [&](const char* name, const QVariant& fallback) {
        return tableAttributes.value(QLatin1String(name), fallback);
    };
    writeStartElement(QStringLiteral("table"));
    writeAttribute(QStringLiteral("style"), margin.toCss());
    writeAttribute(QStringLiteral("cellpadding"), QString::number(setting("cellpadding", 5).toInt()));
    writeAttribute(QStringLiteral("rules"), markupText(setting("rules", QStringLiteral("rows")).toString()));
    writeAttribute(QStringLiteral("frame"), markupText(setting("frame", QStringLiteral("box")).toString()));
    m_tableHasRows = false;
    if (!title.isEmpty()) {
        startTableRow();
        writeStartElement(QStringLiteral("th"));
        writeAttribute(QStringLiteral("colspan"), QString::number(qMax(1, m_columnCount)));
        writeTextElement(QStringLiteral("i"), markupText(title));
        writeEndElement();
        writeEndElement();
    }
    writeHeaderRow(columnLabels, hasLabelColumn);
    m_rowOpen = false;
    startRow();
}

void HtmlStreamWriter::writeHeaderRow(const QStringList& columnLabels, bool hasLabelColumn)
{
    const bool hasText = std::any_of(
            columnLabels.cbegin(), columnLabels.cend(), [](const QString& label) { return !label.isEmpty(); });
    if (!hasText)
        return;
    startTableRow();
    if (hasLabelColumn)
        writeTextElement(QStringLiteral("th"), QString());
    int empty = 0;
    for (const QString& label : columnLabels) {
        if (label.isEmpty()) {
            ++empty;
            continue;
        }
        writeEmptyHeader(empty);
        empty = 0;
        writeTextElement(QStringLiteral("th"), markupText(label));
    }
    writeEmptyHeader(empty);
    writeEndElement();
}

/// One cell for a run of columns without labels: a thousand of them cost a document 30 bytes.
void HtmlStreamWriter::writeEmptyHeader(int columns)
{
    if (columns < 1)
        return;
    writeStartElement(QStringLiteral("th"));
    if (columns > 1)
        writeAttribute(QStringLiteral("colspan"), QString::number(columns));
    writeCharacters(QString());
    writeEndElement();
}

void HtmlStreamWriter::startTableRow()
{
    m_tableHasRows = true;
    writeStartElement(QStringLiteral("tr"));
}

void HtmlStreamWriter::expectRows(int rows, qint64 cells)
{
    // As much as rows of short texts take. What is not written to takes no memory.
    constexpr int charactersOfARow = 70;
    constexpr int charactersOfACell = 90;
    if (!m_keepsText)
        return;
    uiutils::makeRoom(m_output, qint64(rows) * charactersOfARow + cells * charactersOfACell);
}

void HtmlStreamWriter::startRow()
{
    if (m_rowOpen)
        return;
    m_rowOpen = true;
    m_currentColumn = 0;
}

/// The first row of a table is an element of the stream writer, which then knows that the table has contents.
void HtmlStreamWriter::startTextRow()
{
    m_rowHasText = true;
    m_rowIsElement = !m_tableHasRows;
    if (!m_rowIsElement) {
        m_output += uiutils::cellMarkup().row;
        return;
    }
    startTableRow();
    writeCharacters(QString());
    setAutoFormatting(false);
}

void HtmlStreamWriter::endTextRow()
{
    if (!m_rowIsElement) {
        m_output += uiutils::cellMarkup().rowEnd;
        return;
    }
    m_output += uiutils::newLine(uiutils::rowLevel);
    writeEndElement();
    setAutoFormatting(true);
}

/// False if no row is open or the row is full.
bool HtmlStreamWriter::beginCell(int columns)
{
    if (!m_rowOpen || m_currentColumn >= m_columnCount)
        return false;
    if (m_currentColumn == 0 && m_keepsText)
        startTextRow();
    m_currentColumn += columns;
    return true;
}

void HtmlStreamWriter::writeHeaderCell(const QString& text, int align)
{
    if (!beginCell(1))
        return;
    if (m_rowHasText) {
        m_output += uiutils::cellMarkup().label[uiutils::knownAlignment(align)];
        uiutils::appendDirectText(m_output, text);
        m_output += uiutils::cellMarkup().labelEnd;
    }
    if (storesCells())
        m_currentTable->appendCell({text, Status::None, qint8(align), ReportTable::CellKind::RowLabel, 1});
}

void HtmlStreamWriter::writeCell(const QString& text, int status, int align)
{
    if (!beginCell(1))
        return;
    if (m_rowHasText) {
        m_output += uiutils::cellMarkup().value[uiutils::knownAlignment(align)];
        writeStatusIcon(status);
        uiutils::appendDirectText(m_output, text);
        m_output += uiutils::cellMarkup().valueEnd;
    }
    if (storesCells())
        m_currentTable->appendCell({text, status, qint8(align), ReportTable::CellKind::Value, 1});
}

void HtmlStreamWriter::writeEmptyCells(int columns)
{
    const int span = qMin(columns, m_columnCount - m_currentColumn);
    if (span <= 0 || !beginCell(span))
        return;
    if (m_rowHasText) {
        m_output += uiutils::newLine(uiutils::cellLevel)
                + (span > 1 ? QStringLiteral("<td colspan=\"%1\"></td>").arg(span) : QStringLiteral("<td></td>"));
    }
    if (storesCells())
        m_currentTable->appendCell(
                {QString(), Status::None, Alignment::Center, ReportTable::CellKind::Value, quint16(span)});
}

void HtmlStreamWriter::endRow()
{
    if (m_rowHasText)
        endTextRow();
    if (m_currentTable)
        m_currentTable->endRow();
    m_rowHasText = false;
    m_rowOpen = false;
    m_currentColumn = 0;
    clearText();
}

void HtmlStreamWriter::endTable()
{
    endRow();
    // A browser would read "<table/>" as a table that never ends.
    if (!m_tableHasRows)
        writeCharacters(QString());
    writeEndElement();
    // Only now: a pass that begins earlier must not delete a table that cells are still appended to.
    if (m_currentTable)
        m_currentTable->setOfPass();
    m_currentTable = nullptr;
}

void HtmlStreamWriter::writeParagraph(const QString& text)
{
    writeTextElement(QStringLiteral("p"), markupText(text));
    append(new ReportText(text));
    clearText();
}

void HtmlStreamWriter::writeHeading(int level, const QString& text)
{
    writeTextElement(QStringLiteral("h%1").arg(qBound(1, level, 3)), markupText(text));
    append(new ReportHeader(level, text));
    clearText();
}

void HtmlStreamWriter::writeImage(const QString& source)
{
    writeEmptyElement(QStringLiteral("img"));
    writeAttribute(QStringLiteral("src"), markupText(source));
}

void HtmlStreamWriter::writeImageParagraph(const QByteArray& png, int pixels)
{
    writeImageParagraph(png, QVector<ReportItem*> {new ReportImage(png, pixels * pixelsOfAPoint)});
}

void HtmlStreamWriter::writeImageParagraph(const QByteArray& png, const QVector<ReportItem*>& items)
{
    for (ReportItem* item : items)
        append(item);
    if (!m_keepsText)
        return;
    writeStartElement(QStringLiteral("p"));
    writeImage(pngSource(png));
    writeEndElement();
}

void HtmlStreamWriter::writeStatusIcon(int status)
{
    const QLatin1String path = uiutils::statusIconPath(status);
    if (!path.isEmpty())
        m_output += iconMarkup(path);
}

const QString& HtmlStreamWriter::iconMarkup(const QString& path)
{
    auto it = m_iconMarkups.find(path);
    if (it == m_iconMarkups.end()) {
        const QByteArray& bytes = *m_iconCache.insert(path, uiutils::readIcon(path));
        it = m_iconMarkups.insert(path,
                uiutils::newLine(uiutils::contentLevel)
                        + QStringLiteral("<img src=\"%1\" width=\"20\" height=\"20\"/>").arg(pngSource(bytes)));
    }
    return *it;
}
