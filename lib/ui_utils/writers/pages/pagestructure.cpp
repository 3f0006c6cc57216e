#include "writers/pages/pagestructure_p.h"

#include "writers/emitter/pdfdocument_p.h"
#include "writers/emitter/pdfsyntax_p.h"

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

PageStructure::Mark PageStructure::marked(const char* tag, pdf::StructureElement& element, Holds holds)
{
    m_writer->content().beginMarked(tag, m_tree->mark(element), holds);
    return Mark(&m_writer->content());
}

PageStructure::Mark PageStructure::artifact(Holds holds, const char* properties)
{
    if (!m_tree)
        return Mark();
    m_writer->content().beginArtifact(properties, holds);
    return Mark(&m_writer->content());
}

PageStructure::Mark PageStructure::text(const char* tag)
{
    if (!m_tree)
        return Mark();
    if (!m_text.isOpen())
        m_text = m_tree->open(m_tree->document(), tag);
    return marked(tag, m_text, PageContent::Text);
}

void PageStructure::endText()
{
    if (m_text.isOpen())
        m_tree->close(m_text);
}

PageStructure::Mark PageStructure::figure(const QString& alternative)
{
    if (!m_tree)
        return Mark();
    pdf::StructureElement figure = m_tree->open(m_tree->document(), "/Figure", "/Alt" + pdf::textString(alternative));
    Mark mark = marked("/Figure", figure, PageContent::Anything);
    m_tree->close(figure);
    return mark;
}

void PageStructure::beginTable()
{
    if (m_tree)
        m_table = m_tree->open(m_tree->document(), "/Table");
}

void PageStructure::endTable()
{
    if (m_table.isOpen())
        m_tree->close(m_table);
}

PageStructure::Mark PageStructure::caption()
{
    if (!m_table.isOpen())
        return Mark();
    pdf::StructureElement caption = m_tree->open(m_table, "/Caption");
    Mark mark = marked("/Caption", caption, PageContent::Text);
    m_tree->close(caption);
    return mark;
}

void PageStructure::beginRow()
{
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
    const char* const tag = kind == Value ? "/TD" : "/TH";
    if (!cell.isOpen())
        cell = m_tree->open(m_row, tag, attributesOf(kind, span));
    return isEmpty ? Mark() : marked(tag, cell, PageContent::Text);
}

} // namespace uiutils
