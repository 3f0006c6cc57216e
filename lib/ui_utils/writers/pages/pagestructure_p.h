#pragma once

#include "writers/emitter/pagecontent_p.h"
#include "writers/emitter/structuretree_p.h"

#include <QString>

#include <utility>
#include <vector>

namespace uiutils {

namespace pdf {
class DocumentWriter;
}

/// Says what the content of pages is, for those who have it read aloud. In a file without structure, and
/// where there is no file, it says nothing.
class PageStructure
{
public:
    /// Null if the pages are not those of a file.
    explicit PageStructure(pdf::DocumentWriter* writer);

    /// What is drawn while it lives belongs together. Marks are not nested.
    class Mark
    {
    public:
        explicit Mark(pdf::PageContent* content = nullptr)
            : m_content(content)
        {
        }
        Mark(Mark&& other) noexcept
            : m_content(std::exchange(other.m_content, nullptr))
        {
        }
        Mark& operator=(Mark&&) = delete;
        Q_DISABLE_COPY(Mark)
        ~Mark()
        {
            if (m_content)
                m_content->end();
        }

    private:
        pdf::PageContent* m_content;
    };
    using Holds = pdf::PageContent::Holds;

    /// Lines, fills, and texts that are repeated on each page.
    [[nodiscard]] Mark artifact(Holds holds, const char* properties = "");

    /// A heading or paragraph: the mark of what is on this page. `tag` is a literal. The element ends with the mark
    /// after which endText() is called.
    [[nodiscard]] Mark text(const char* tag);
    void endText();
    /// A picture that shows `alternative`, on `place` of its page.
    [[nodiscard]] Mark figure(const QString& alternative);

    /// Rows of cells follow, until endTable(). A row that goes on on the next page is begun and ended once.
    void beginTable();
    void endTable();
    [[nodiscard]] Mark caption();
    void beginRow();
    void endRow();
    enum CellKind { Value, ColumnLabel, RowLabel };
    /// A cell of the row by its column. An empty one is part of the row without a mark.
    [[nodiscard]] Mark cell(int column, CellKind kind, int span, bool isEmpty);

private:
    Mark marked(const char* tag, pdf::StructureElement& element, Holds holds);

    pdf::DocumentWriter* m_writer;
    pdf::StructureTree* m_tree;
    pdf::StructureElement m_text;
    pdf::StructureElement m_table;
    pdf::StructureElement m_row;
    std::vector<pdf::StructureElement> m_cells;
};

} // namespace uiutils
