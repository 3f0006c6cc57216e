#include "writers/pdffile/podofo/pdfoutline_p.h"

#include "writers/pdffile/podofo/pdfdocument_p.h"

#include <cmath>
#include <set>

namespace uiutils::podofo {

using pdf::Annotation, pdf::OutlineEntry;

namespace {

using PoDoFo::PdfName;
using PoDoFo::PdfObject;
using PoDoFo::PdfReference;

constexpr int longestTitle = 200;

struct Page
{
    PdfReference reference;
    double left = 0;
    double top = 0;
    double height = 0;
};

/// All pages, found in one walk. PoDoFo walks from the root for every page that is requested.
class PageList
{
public:
    explicit PageList(PoDoFo::PdfMemDocument& document)
        : m_objects(document.GetObjects())
    {
        add(*document.GetCatalog()->GetIndirectKey("Pages"), nullptr);
    }

    const QVector<Page>& pages() const { return m_pages; }

private:
    /// `box` is the inherited size of the pages, or null.
    void add(PdfObject& node, const PdfObject* box)
    {
        if (!m_seen.insert(node.Reference()).second)
            return;
        if (const PdfObject* own = node.GetIndirectKey("MediaBox"))
            box = own;
        const PdfObject* kids = node.GetIndirectKey("Kids");
        if (!kids) {
            m_pages += pageOf(node, box);
            return;
        }
        for (const PdfObject& kid : kids->GetArray()) {
            if (PdfObject* child = m_objects.GetObject(kid.GetReference()))
                add(*child, box);
        }
    }

    static Page pageOf(const PdfObject& object, const PdfObject* box)
    {
        Page page {object.Reference(), 0, 0, 0};
        if (!box)
            return page;
        const PoDoFo::PdfRect rect(box->GetArray());
        page.left = rect.GetLeft();
        page.height = rect.GetHeight();
        page.top = rect.GetBottom() + rect.GetHeight();
        return page;
    }

    PoDoFo::PdfVecObjects& m_objects;
    std::set<PdfReference> m_seen;
    QVector<Page> m_pages;
};

QString shownTitle(const QString& title)
{
    QString shown = title.left(longestTitle);
    if (shown.size() < title.size() && shown.at(shown.size() - 1).isHighSurrogate())
        shown.chop(1);
    for (QChar& c : shown) {
        if (c.category() == QChar::Other_Control)
            c = QLatin1Char(' ');
    }
    return shown;
}

/// An entry among the others, by index; -1 is none, or the outline itself.
struct Links
{
    int parent = -1;
    int previous = -1;
    int next = -1;
    int first = -1;
    int last = -1;
    int children = 0;
};

/// Which entry follows and which contains which. The outline itself comes after the entries.
QVector<Links> linksOf(const QVector<OutlineEntry>& entries)
{
    QVector<Links> links(entries.size() + 1);
    // The entries that may contain the next one, outermost first.
    QVector<int> open {entries.size()};
    for (int i = 0; i < entries.size(); ++i) {
        const int depth = qBound(0, entries.at(i).level, open.size() - 1);
        open.resize(depth + 1);
        Links& own = links[i];
        Links& parent = links[open.constLast()];
        own.parent = open.constLast();
        own.previous = parent.last;
        if (own.previous >= 0)
            links[own.previous].next = i;
        else
            parent.first = i;
        parent.last = i;
        ++parent.children;
        open += i;
    }
    return links;
}

/// Writes the outline's objects itself: PoDoFo leaves out the number of entries, which readers rely on.
class Outline
{
public:
    Outline(PoDoFo::PdfMemDocument& document, const QVector<OutlineEntry>& entries)
        : m_document(document)
        , m_entries(entries)
        , m_links(linksOf(entries))
        , m_pages(PageList(document).pages())
    {
    }

    void add()
    {
        for (int i = 0; i < m_links.size(); ++i)
            m_objects += m_document.GetObjects().CreateObject(i < m_entries.size() ? "" : "Outlines");
        for (int i = 0; i < m_entries.size(); ++i) {
            m_objects.at(i)->GetDictionary().RemoveKey(PdfName::KeyType);
            describe(*m_objects.at(i), m_entries.at(i));
            link(*m_objects.at(i), m_links.at(i));
        }
        link(*m_objects.constLast(), m_links.constLast());
        m_document.GetCatalog()->GetDictionary().AddKey("Outlines", m_objects.constLast()->Reference());
    }

private:
    void describe(PdfObject& object, const OutlineEntry& entry) const
    {
        object.GetDictionary().AddKey("Title", stringOf(shownTitle(entry.title)));
        if (m_pages.isEmpty())
            return;
        const Page& page = m_pages.at(qBound(0, entry.page, m_pages.size() - 1));
        const double top = std::isfinite(entry.top) ? qBound(0.0, double(entry.top), page.height) : 0;
        PoDoFo::PdfArray place;
        place.push_back(page.reference);
        place.push_back(PdfName("XYZ"));
        place.push_back(page.left);
        place.push_back(page.top - top);
        // The reader's own magnification.
        place.push_back(PoDoFo::pdf_int64(0));
        object.GetDictionary().AddKey("Dest", place);
    }

    void link(PdfObject& object, const Links& links) const
    {
        setReference(object, "Parent", links.parent);
        setReference(object, "Prev", links.previous);
        setReference(object, "Next", links.next);
        setReference(object, "First", links.first);
        setReference(object, "Last", links.last);
        // The outermost entries are visible; a negative number says how many would be if the entry were opened.
        const bool outermost = links.parent < 0;
        if (links.children > 0)
            object.GetDictionary().AddKey("Count", PoDoFo::pdf_int64(outermost ? links.children : -links.children));
    }

    void setReference(PdfObject& object, const char* key, int index) const
    {
        if (index >= 0)
            object.GetDictionary().AddKey(PdfName(key), m_objects.at(index)->Reference());
    }

    PoDoFo::PdfMemDocument& m_document;
    const QVector<OutlineEntry>& m_entries;
    const QVector<Links> m_links;
    const QVector<Page> m_pages;
    QVector<PdfObject*> m_objects;
};

void describe(PoDoFo::PdfMemDocument& document, const Annotation& annotation)
{
    PoDoFo::PdfDictionary& info = document.GetInfo()->GetObject()->GetDictionary();
    const std::pair<const char*, const QString*> entries[] {{"Title", &annotation.title},
            {"Author", &annotation.author}, {"Subject", &annotation.subject}, {"Producer", &annotation.producer}};
    for (const auto& [key, value] : entries) {
        if (value->isEmpty())
            info.RemoveKey(key);
        else
            info.AddKey(key, stringOf(*value));
    }
}

} // namespace

void annotate(PoDoFo::PdfMemDocument& document, const Annotation& annotation)
{
    describe(document, annotation);
    if (!annotation.outline.isEmpty())
        Outline(document, annotation.outline).add();
}

} // namespace uiutils::podofo
