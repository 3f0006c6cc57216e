#pragma once

#include "core/status.h"
#include "core/uiutils_export.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QXmlStreamWriter>

#include <memory>

class ReportItem;
class ReportTable;
class Style;

namespace uiutils {
class TableRowSource;
}

/// Writes one HTML 4.01 page into a string that it owns. Its element operations are the only place where markup is
/// made: whatever text they are given, the page stays well-formed and no text becomes markup.
///
/// The attribute map holds the page's switches of style and content, filled with defaults.
class UIUTILS_EXPORT HtmlStreamWriter : public QXmlStreamWriter
{
public:
    /// Starts the page. `indentStep` is the left margin of a table per nesting level, in pixels. A report item for each
    /// table, heading, paragraph and image is appended to uiutils::sharedReportItems().
    explicit HtmlStreamWriter(int indentStep);
    /// The same with a list of its own; null collects nothing. The items belong to the list's owner, and are marked as
    /// those of a pass: a table when it is closed, in the shared list also when another is opened or the writer is
    /// destroyed.
    HtmlStreamWriter(int indentStep, QList<ReportItem*>* items);
    virtual ~HtmlStreamWriter();
    Q_DISABLE_COPY_MOVE(HtmlStreamWriter)

    /// The value of a switch; invalid without one.
    QVariant attribute(const QString& name) const { return m_attributes.value(name); }
    /// Whether a switch has a value.
    bool hasAttribute(const QString& name) const { return m_attributes.contains(name); }
    /// Sets a switch.
    void setAttribute(const QString& name, const QVariant& value) { m_attributes.insert(name, value); }

    /// What has been written so far.
    const QString& output() const { return m_output; }
    /// From now on only report items are kept, and no text.
    void discardText();

    /// Writes the head; no title element for an empty title, no style element without styles.
    void writeHead(const QString& title, const QList<Style*>& styles);
    /// Opens the body; an attribute whose name is no HTML attribute name is left out.
    void startBody(const QVariantMap& attributes);

    /// Opens a table and its first row. `tableAttributes` may set "cellpadding" (5), "rules" (rows) and "frame" (box).
    void startTable(const QString& title, const QStringList& columnLabels, bool hasLabelColumn, int nestingLevel,
            const QVariantMap& tableAttributes = QVariantMap());
    /// Says how many rows and cells the open table will get, so that what is written need not be moved repeatedly.
    void expectRows(int rows, qint64 cells);
    /// Opens a row unless one is open. A row that gets no cell leaves no trace.
    void startRow();
    /// Writes a row's label as its next cell. `status` and `align` are codes of uiutils::Status and uiutils::Alignment.
    void writeHeaderCell(const QString& text, int align);
    /// Writes the next cell with its status icon. Does nothing if no row is open or the row is full.
    void writeCell(const QString& text, int status = uiutils::Status::None, int align = uiutils::Alignment::Center);
    /// Writes one empty cell over the next `columns` columns, or over as many as the row still has.
    void writeEmptyCells(int columns);
    /// Closes the open row.
    void endRow();
    /// Closes the open row and the table.
    void endTable();

    /// Writes a paragraph of plain text.
    void writeParagraph(const QString& text);
    /// Writes a heading; levels below 1 and above 3 are written as 1 and 3.
    void writeHeading(int level, const QString& text);
    /// Writes an image whose source is a path or a URI.
    void writeImage(const QString& source);
    /// Writes a paragraph that holds a PNG image, of which `pixels` pixels are shown per pixel of the page.
    void writeImageParagraph(const QByteArray& png, int pixels = 1);
    /// The same, with items of the caller's for printed pages in place of an image; the list owns them.
    void writeImageParagraph(const QByteArray& png, const QVector<ReportItem*>& items);
    /// Whether texts are kept, see discardText().
    bool keepsText() const { return m_keepsText; }

private:
    friend class TemplateToHtmlWriter;

    /// Has the item of the open table, which has no row yet, read its rows from there. What is written to the table is
    /// then for the text alone.
    void readRowsFrom(std::unique_ptr<uiutils::TableRowSource> rows);
    /// Whether the rows of the open table are kept anywhere if they are written.
    bool needsRows() const;
    /// Puts a page that was made elsewhere in place of what has been written.
    void replaceText(const QString& page) { m_output = page; }
    void startTableRow();
    void startTextRow();
    void endTextRow();
    bool beginCell(int columns);
    void writeHeaderRow(const QStringList& columnLabels, bool hasLabelColumn);
    void writeEmptyHeader(int columns);
    void writeStatusIcon(int status);
    void append(ReportItem* item);
    bool storesCells() const;
    void abandonTable();
    void clearText();
    const QString& iconMarkup(const QString& path);

    QString m_output;
    QVariantMap m_attributes;
    int m_indentStep;
    int m_columnCount = 2;
    int m_currentColumn = 0;
    bool m_hasLabelColumn = true;
    bool m_rowOpen = false;
    // Whether the open row has cells whose text is kept.
    bool m_rowHasText = false;
    bool m_rowIsElement = false;
    bool m_tableHasRows = false;
    bool m_keepsText = true;
    QMap<QString, QByteArray> m_iconCache;
    // The same icons as elements: encoding one for each of ten thousand cells would cost more than the cells.
    QMap<QString, QString> m_iconMarkups;
    QList<ReportItem*>* m_items;
    ReportTable* m_currentTable = nullptr;
};
