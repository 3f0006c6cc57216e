#include "writers/emitter/pdfdocument_p.h"

#include "base/xmltext_p.h"
#include "writers/emitter/fontprogram_p.h"
#include "writers/emitter/pdfimage_p.h"
#include "writers/emitter/pdfsyntax_p.h"
#include "writers/emitter/xmp_p.h"

#include <QColorSpace>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QImage>

namespace uiutils::pdf {

namespace {

QByteArray mediaBox(const QSizeF& size)
{
    QByteArray box("/MediaBox[0 0 ");
    appendNumbers(box, {size.width(), size.height()});
    return box + ']';
}

} // namespace

DocumentWriter::DocumentWriter(QIODevice* device, const DocumentSettings& settings)
    : m_settings(settings)
    , m_output(device)
    , m_content(settings.unitsOfAPoint)
    , m_pageTree(m_output.reserve())
    , m_fontResources(m_output.reserve())
{
    DocumentInformation& about = m_settings.information;
    // What XML cannot hold would make the packet say something else than the entries.
    for (QString* text : {&about.title, &about.author, &about.subject, &about.creator, &about.producer})
        *text = markupText(*text);
    if (settings.isTagged)
        m_structure.emplace(m_output);
    if (settings.isArchive) {
        about.archivePart = 2;
        about.archiveConformance = QStringLiteral("U");
    }
}

DocumentWriter::~DocumentWriter() = default;

void DocumentWriter::beginPage(const QSizeF& size)
{
    m_pageSize = size;
    if (m_usualSize.isEmpty())
        m_usualSize = size;
    m_content.setHeight(size.height() * m_settings.unitsOfAPoint);
    m_pages += m_output.reserve();
    if (m_structure)
        m_structure->beginPage(m_pages.constLast());
}

void DocumentWriter::endPage()
{
    const int content = m_output.reserve();
    const QByteArray used = resources();
    m_output.writeStream(content, {}, m_content.take());
    QByteArray page = "<</Type/Page/Parent " + referenceTo(m_pageTree) + used + "/Contents " + referenceTo(content);
    if (m_pageSize != m_usualSize)
        page += mediaBox(m_pageSize);
    if (m_structure) {
        page += "/Tabs/S/StructParents " + QByteArray::number(m_structure->pageNumber());
        m_structure->endPage();
    }
    m_output.write(m_pages.constLast(), page + ">>");
}

void DocumentWriter::beginMarked(StructureElement& element, PageContent::Holds holds, const QString& text)
{
    m_marked = &element;
    m_holds = holds;
    m_content.beginMarked(element.tag(), m_structure->mark(element), holds, text);
}

void DocumentWriter::endMarked()
{
    StructureElement* const element = std::exchange(m_marked, nullptr);
    if (!element || !m_content.isMarkEmpty()) {
        m_content.end();
        return;
    }
    m_content.dropMark();
    m_structure->dropMark(*element);
}

void DocumentWriter::beginText(const QString& text)
{
    StructureElement* const element = m_marked;
    if (!element) {
        m_content.beginText(text);
        return;
    }
    endMarked();
    beginMarked(*element, m_holds, text);
}

void DocumentWriter::endText()
{
    StructureElement* const element = m_marked;
    endMarked();
    if (element)
        beginMarked(*element, m_holds);
}

EmbeddedFont* DocumentWriter::font(const QRawFont& raw)
{
    for (const auto& [face, font] : m_faces) {
        if (face == raw)
            return font;
    }
    EmbeddedFont*& font = m_fontsByFace[faceOf(raw)];
    if (!font && embeddingOf(raw) == Embedding::Allowed) {
        const QByteArray name = "/F" + QByteArray::number(int(m_fonts.size()) + 1);
        m_fonts.push_back(std::make_unique<EmbeddedFont>(raw, m_output.reserve(), name));
        font = m_fonts.back().get();
    }
    m_faces.emplace_back(raw, font);
    return font;
}

QByteArray DocumentWriter::image(const QImage& image)
{
    QByteArray& name = m_images[image.cacheKey()];
    if (name.isEmpty()) {
        name = "/I" + QByteArray::number(m_images.size());
        m_imageObjects.insert(name, writeImage(m_output, image));
    }
    return name;
}

bool DocumentWriter::writeFonts(QString* error)
{
    for (const auto& font : m_fonts) {
        *error = font->write(m_output);
        if (!error->isEmpty())
            return false;
    }
    return true;
}

/// The pictures of this page only: readers go through the list of each page that they show.
QByteArray DocumentWriter::resources() const
{
    QByteArray text = "/Resources<</Font " + referenceTo(m_fontResources);
    if (!m_content.images().isEmpty())
        text += "/XObject<<";
    for (const QByteArray& name : m_content.images())
        text += name + ' ' + referenceTo(m_imageObjects.value(name));
    return text + (m_content.images().isEmpty() ? ">>" : ">>>>");
}

void DocumentWriter::writeFontResources()
{
    QByteArray fonts;
    for (const auto& font : m_fonts)
        fonts += font->name() + ' ' + referenceTo(font->object());
    m_output.write(m_fontResources, "<<" + fonts + ">>");
}

void DocumentWriter::writePageTree()
{
    QByteArray tree = "<</Type/Pages/Count " + QByteArray::number(m_pages.size()) + mediaBox(m_usualSize) + "/Kids[";
    for (const int page : qAsConst(m_pages))
        tree += referenceTo(page) + ' ';
    m_output.writePlain(m_pageTree, tree + "]>>");
}

QByteArray DocumentWriter::information() const
{
    const DocumentInformation& about = m_settings.information;
    QByteArray text("<<");
    const std::pair<const char*, const QString*> entries[] {{"/Title", &about.title}, {"/Author", &about.author},
            {"/Subject", &about.subject}, {"/Creator", &about.creator}, {"/Producer", &about.producer}};
    for (const auto& [key, value] : entries) {
        if (!value->isEmpty())
            text += key + textString(*value);
    }
    return text + "/CreationDate" + dateString(about.created) + ">>";
}

/// The same for the same document and time.
QByteArray DocumentWriter::identifier() const
{
    return QCryptographicHash::hash(information() + QByteArray::number(m_pages.size()), QCryptographicHash::Md5);
}

/// Readable without inflating anything, for programs that know nothing of PDF.
int DocumentWriter::writeMetadata()
{
    const int object = m_output.reserve();
    m_output.writeStream(object, "/Type/Metadata/Subtype/XML", xmpPacket(m_settings.information), PdfOutput::AsIs);
    return object;
}

/// What the numbers of colours mean.
int DocumentWriter::writeProfile()
{
    const int object = m_output.reserve();
    m_output.writeStream(object, "/N 3", QColorSpace(QColorSpace::SRgb).iccProfile());
    return object;
}

QByteArray DocumentWriter::catalog(const QVector<OutlineEntry>& outline)
{
    QByteArray text
            = "<</Type/Catalog/Pages " + referenceTo(m_pageTree) + "/ViewerPreferences<</DisplayDocTitle true>>";
    const QString& language = m_settings.language;
    if (!language.isEmpty())
        text += "/Lang" + textString(language);
    const int entries = writeOutline(m_output, outline, m_pages);
    if (entries > 0)
        text += "/PageMode/UseOutlines/Outlines " + referenceTo(entries);
    text += "/Metadata " + referenceTo(writeMetadata());
    if (m_settings.isArchive)
        text += "/OutputIntents[<</Type/OutputIntent/S/GTS_PDFA1/OutputConditionIdentifier(sRGB)/DestOutputProfile "
                + referenceTo(writeProfile()) + ">>]";
    if (m_structure)
        text += "/MarkInfo<</Marked true>>/StructTreeRoot " + referenceTo(m_structure->finish());
    return text + ">>";
}

bool DocumentWriter::finish(const QVector<OutlineEntry>& outline, QString* error)
{
    if (!writeFonts(error))
        return false;
    writeFontResources();
    writePageTree();
    const int catalogObject = m_output.reserve();
    m_output.writePlain(catalogObject, catalog(outline));
    const int informationObject = m_output.reserve();
    m_output.writePlain(informationObject, information());
    if (m_output.finish(catalogObject, informationObject, identifier()))
        return true;
    *error = QCoreApplication::translate("ReportPDF", "there is not enough memory for its pages");
    return false;
}

} // namespace uiutils::pdf
