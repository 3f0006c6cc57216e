#include "writers/emitter/structuretree_p.h"

#include "writers/emitter/pdfoutput_p.h"
#include "writers/emitter/pdfsyntax_p.h"

namespace uiutils::pdf {

StructureTree::StructureTree(PdfOutput& output)
    : m_output(output)
    , m_root(output.reserve())
{
    m_document.m_object = output.reserve();
    m_document.m_parent = m_root;
    m_document.m_tag = "/Document";
}

StructureElement StructureTree::open(StructureElement& parent, const char* tag, const QByteArray& entries)
{
    StructureElement element;
    element.m_object = m_output.reserve();
    element.m_parent = parent.m_object;
    element.m_tag = tag;
    element.m_entries = entries;
    parent.m_kids.append({element.m_object, 0});
    return element;
}

void StructureTree::close(StructureElement& element)
{
    QByteArray& body = m_body;
    body.resize(0);
    body += "<</S";
    body += element.m_tag;
    body += "/P ";
    appendReference(body, element.m_parent);
    body += element.m_entries;
    // Content without a page of its own is on the element's.
    int page = 0;
    for (const StructureElement::Kid& kid : element.m_kids)
        page = page == 0 ? kid.page : page;
    if (page != 0) {
        body += "/Pg ";
        appendReference(body, page);
    }
    const int count = element.m_kids.size();
    if (count > 0)
        body += count > 1 ? "/K[" : "/K ";
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            body += ' ';
        appendKid(body, element.m_kids.at(i), page);
    }
    body += count > 1 ? "]>>" : ">>";
    m_output.write(element.m_object, body);
    element = StructureElement();
}

void StructureTree::appendKid(QByteArray& body, const StructureElement::Kid& kid, int page)
{
    if (kid.page == 0) {
        appendReference(body, kid.number);
    } else if (kid.page == page) {
        appendInteger(body, kid.number);
    } else {
        body += "<</Type/MCR/Pg ";
        appendReference(body, kid.page);
        body += "/MCID ";
        appendInteger(body, kid.number);
        body += ">>";
    }
}

void StructureTree::beginPage(int object)
{
    m_page = object;
    m_marks.resize(0);
}

int StructureTree::mark(StructureElement& element)
{
    const int number = m_marks.size();
    m_marks += element.m_object;
    element.m_kids.append({number, m_page});
    return number;
}

void StructureTree::dropMark(StructureElement& element)
{
    m_marks.removeLast();
    element.m_kids.removeLast();
}

void StructureTree::endPage()
{
    QByteArray list("[");
    for (const int element : qAsConst(m_marks)) {
        appendReference(list, element);
        list += ' ';
    }
    m_pages += m_output.reserve();
    m_output.write(m_pages.constLast(), list + ']');
}

int StructureTree::finish()
{
    const QByteArray document = referenceTo(m_document.m_object);
    close(m_document);
    QByteArray pages("<</Nums[");
    for (int page = 0; page < m_pages.size(); ++page)
        pages += QByteArray::number(page) + ' ' + referenceTo(m_pages.at(page)) + ' ';
    const int tree = m_output.reserve();
    m_output.write(tree, pages + "]>>");
    m_output.write(m_root,
            "<</Type/StructTreeRoot/K " + document + "/ParentTree " + referenceTo(tree) + "/ParentTreeNextKey "
                    + QByteArray::number(m_pages.size()) + ">>");
    return m_root;
}

} // namespace uiutils::pdf
