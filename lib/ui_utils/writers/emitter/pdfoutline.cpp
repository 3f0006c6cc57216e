#include "writers/emitter/pdfoutline_p.h"

#include "writers/emitter/pdfoutput_p.h"
#include "writers/emitter/pdfsyntax_p.h"

namespace uiutils::pdf {

namespace {

constexpr int longestTitle = 200;

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

/// The numbers of the objects, with the keys that link them.
QByteArray linkText(const Links& links, const QVector<int>& objects)
{
    QByteArray text;
    const auto add = [&](const char* key, int index) {
        if (index >= 0)
            text += key + referenceTo(objects.at(index));
    };
    add("/Parent ", links.parent);
    add("/Prev ", links.previous);
    add("/Next ", links.next);
    add("/First ", links.first);
    add("/Last ", links.last);
    // The outermost entries are visible; a negative number says how many would be if the entry were opened.
    if (links.children > 0)
        text += "/Count " + QByteArray::number(links.parent < 0 ? links.children : -links.children);
    return text;
}

QByteArray descriptionOf(const OutlineEntry& entry, const QVector<int>& pages)
{
    QByteArray text = "/Title" + textString(shownTitle(entry.title)) + "/Dest["
            + referenceTo(pages.at(qBound(0, entry.page, pages.size() - 1))) + "/XYZ 0 ";
    appendNumber(text, qMax(0.0, entry.height));
    // The reader's own magnification.
    return text + " 0]";
}

} // namespace

int writeOutline(PdfOutput& output, const QVector<OutlineEntry>& entries, const QVector<int>& pages)
{
    if (entries.isEmpty() || pages.isEmpty())
        return 0;
    const QVector<Links> links = linksOf(entries);
    QVector<int> objects;
    for (int i = 0; i < links.size(); ++i)
        objects += output.reserve();
    for (int i = 0; i < entries.size(); ++i)
        output.write(objects.at(i), "<<" + descriptionOf(entries.at(i), pages) + linkText(links.at(i), objects) + ">>");
    output.write(objects.constLast(), "<</Type/Outlines" + linkText(links.constLast(), objects) + ">>");
    return objects.constLast();
}

} // namespace uiutils::pdf
