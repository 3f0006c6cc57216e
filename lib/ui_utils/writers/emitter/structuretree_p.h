#pragma once

#include <QByteArray>
#include <QVarLengthArray>
#include <QVector>

namespace uiutils::pdf {

class PdfOutput;

/// What a part of a document is: a heading, a table, a cell. It is closed when all of its content and parts are known,
/// and must not be used after that.
class StructureElement
{
public:
    bool isOpen() const { return m_object != 0; }
    const char* tag() const { return m_tag; }

private:
    friend class StructureTree;

    /// Content of a page, or a part.
    struct Kid
    {
        /// The number of the content on its page, or of the part's object.
        int number;
        /// The object of the page, 0 for a part.
        int page;
    };

    int m_object = 0;
    int m_parent = 0;
    const char* m_tag = "";
    QByteArray m_entries;
    QVarLengthArray<Kid, 2> m_kids;
};

/// The structure of a document, as aids for reading aloud follow it. Closed elements are written and forgotten.
class StructureTree
{
public:
    explicit StructureTree(PdfOutput& output);
    Q_DISABLE_COPY_MOVE(StructureTree)

    /// The element of the whole document, which finish() closes.
    StructureElement& document() { return m_document; }
    /// A part of the parent that follows all others. `tag` is a name that lives as long as the program, `entries` are
    /// those of its dictionary besides what it belongs to.
    StructureElement open(StructureElement& parent, const char* tag, const QByteArray& entries = {});
    void close(StructureElement& element);

    void beginPage(int object);
    /// A number for content of the element on this page.
    int mark(StructureElement& element);
    /// Takes back the last number, which was given for content of the element.
    void dropMark(StructureElement& element);
    /// The number by which the page finds its elements.
    int pageNumber() const { return m_pages.size(); }
    void endPage();

    /// Returns the object of the tree.
    int finish();

private:
    static void appendKid(QByteArray& body, const StructureElement::Kid& kid, int page);

    PdfOutput& m_output;
    int m_root;
    StructureElement m_document;
    int m_page = 0;
    // Kept for its memory.
    QByteArray m_body;
    // The element of each marked content of the page.
    QVector<int> m_marks;
    // For each page, the object that lists its elements.
    QVector<int> m_pages;
};

} // namespace uiutils::pdf
