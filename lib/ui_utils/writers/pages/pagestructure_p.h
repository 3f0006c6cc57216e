#pragma once

#include "writers/emitter/pdfdocument_p.h"

#include <QString>

#include <utility>
#include <vector>

namespace uiutils {

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
        explicit Mark(pdf::DocumentWriter* writer = nullptr)
            : m_writer(writer)
        {
        }
        Mark(Mark&& other) noexcept
            : m_writer(std::exchange(other.m_writer, nullptr))
        {
        }
        Mark& operator=(Mark&&) = delete;
        Q_DISABLE_COPY(Mark)
        ~Mark()
        {
            if (m_writer)
                m_writer->endMarked();
        }

    private:
        pdf::DocumentWriter* m_writer;
    };
    using Holds = pdf::PageContent::Holds;

    /// Lines, fills, and texts that are repeated on each page.
    [[nodiscard]] Mark artifact(Holds holds, const char* properties = "");

    /// A heading or paragraph: the mark of what is on this page. `tag` is a literal. The element ends with the mark
    /// after which endText() is called.
    [[nodiscard]] Mark text(const char* tag);
    void endText();
    /// What the pictures that follow are about.
    void setHeading(const QString& heading) { m_heading = heading; }
    /// A picture: readers say the heading and the description.
    [[nodiscard]] Mark figure(const QString& description);

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
    Mark marked(pdf::StructureElement& element);
    void endCaption();

    pdf::DocumentWriter* m_writer;
    pdf::StructureTree* m_tree;
    QString m_heading;
    pdf::StructureElement m_text;
    pdf::StructureElement m_table;
    pdf::StructureElement m_caption;
    pdf::StructureElement m_row;
    std::vector<pdf::StructureElement> m_cells;
};

} // namespace uiutils
