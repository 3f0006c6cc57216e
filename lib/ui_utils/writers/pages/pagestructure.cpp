#include "writers/pages/pagestructure_p.h"

#include "writers/emitter/pdfsyntax_p.h"

#include <QCoreApplication>

namespace uiutils {

using pdf::PageContent;

namespace {

QByteArray attributesOf(PageStructure::CellKind kind, int span)
{
    if (kind == PageStructure::Value && span <= 1)
        return {};
    QByteArray text("/A<</O/Table");
    if (kind != PageStructure::Value)
        text += kind == PageStructure::ColumnLabel ? "/Scope/Column" : "/Scope/Row";
    if (span > 1)
        text += "/ColSpan " + QByteArray::number(span);
    return text + ">>";
}

} // namespace

PageStructure::PageStructure(pdf::DocumentWriter* writer)
    : m_writer(writer)
    , m_tree(writer ? writer->structure() : nullptr)
{
}

PageStructure::Mark PageStructure::marked(pdf::StructureElement& element)
{
    m_writer->beginMarked(element, PageContent::Text);
    return Mark(m_writer);
}

PageStructure::Mark PageStructure::artifact(Holds holds, const char* properties)
{
    if (!m_tree)
        return Mark();
    m_writer->content().beginArtifact(properties, holds);
    return Mark(m_writer);
}

PageStructure::Mark PageStructure::text(const char* tag)
{
    if (!m_tree)
        return Mark();
    if (!m_text.isOpen())
        m_text = m_tree->open(m_tree->document(), tag);
    return marked(m_text);
}

void PageStructure::endText()
{
    if (m_text.isOpen())
        m_tree->close(m_text);
}

PageStructure::Mark PageStructure::figure(const QString& description)
{
    if (!m_tree)
        return Mark();
    const QString alternative = m_heading.isEmpty()
            ? description
            : QCoreApplication::translate("ReportPDF", "%1: %2").arg(m_heading, description);
    pdf::StructureElement figure = m_tree->open(m_tree->document(), "/Figure", "/Alt" + pdf::textString(alternative));
    m_writer->content().beginMarked(figure.tag(), m_tree->mark(figure), PageContent::Anything);
    m_tree->close(figure);
    return Mark(m_writer);
}

void PageStructure::beginTable()
{
    if (m_tree)
        m_table = m_tree->open(m_tree->document(), "/Table");
}

void PageStructure::endTable()
{
    endCaption();
    if (m_table.isOpen())
        m_tree->close(m_table);
}

PageStructure::Mark PageStructure::caption()
{
    if (!m_table.isOpen())
        return Mark();
    m_caption = m_tree->open(m_table, "/Caption");
    return marked(m_caption);
}

void PageStructure::endCaption()
{
    if (m_caption.isOpen())
        m_tree->close(m_caption);
}

void PageStructure::beginRow()
{
    endCaption();
    if (m_table.isOpen())
        m_row = m_tree->open(m_table, "/TR");
}

void PageStructure::endRow()
{
    if (!m_row.isOpen())
        return;
    for (pdf::StructureElement& cell : m_cells) {
        if (cell.isOpen())
            m_tree->close(cell);
    }
    m_cells.clear();
    m_tree->close(m_row);
}

PageStructure::Mark PageStructure::cell(int column, CellKind kind, int span, bool isEmpty)
{
    if (!m_row.isOpen())
        return Mark();
    if (size_t(column) >= m_cells.size())
        m_cells.resize(size_t(column) + 1);
    pdf::StructureElement& cell = m_cells[size_t(column)];
    if (!cell.isOpen())
        cell = m_tree->open(m_row, kind == Value ? "/TD" : "/TH", attributesOf(kind, span));
    return isEmpty ? Mark() : marked(cell);
}

} // namespace uiutils
