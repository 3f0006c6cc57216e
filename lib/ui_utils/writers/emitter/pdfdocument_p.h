#pragma once

#include "writers/emitter/documentinformation_p.h"
#include "writers/emitter/embeddedfont_p.h"
#include "writers/emitter/pagecontent_p.h"
#include "writers/emitter/pdfoutline_p.h"
#include "writers/emitter/pdfoutput_p.h"
#include "writers/emitter/structuretree_p.h"

#include <QHash>
#include <QSizeF>

#include <memory>
#include <optional>
#include <vector>

class QImage;

namespace uiutils::pdf {

struct DocumentSettings
{
    DocumentInformation information;
    /// Of the texts, as in "en-US"; empty if it is not known.
    QString language;
    /// Units of the layout in a point.
    qreal unitsOfAPoint = 1;
    bool isTagged = false;
    /// Whether the file keeps the rules of PDF/A-2u and says so. Everything that they ask for besides is always kept.
    bool isArchive = false;
};

/// A PDF file that is written page by page: what is finished is on the device, and only what the end of the file needs
/// is held.
class DocumentWriter
{
public:
    DocumentWriter(QIODevice* device, const DocumentSettings& settings);
    ~DocumentWriter();
    Q_DISABLE_COPY_MOVE(DocumentWriter)

    /// `size` in points.
    void beginPage(const QSizeF& size);
    PageContent& content() { return m_content; }
    void endPage();

    /// What is drawn between these belongs to the element.
    void beginMarked(StructureElement& element, PageContent::Holds holds, const QString& text = {});
    void endMarked();
    /// What is drawn between these stands for the text. In an element it is a part of its own: where marks are nested,
    /// some readers take the end of the inner one for that of the outer.
    void beginText(const QString& text);
    void endText();

    /// The font of the file for this face in any size; null if it cannot be embedded.
    EmbeddedFont* font(const QRawFont& raw);
    /// The name of a picture for PageContent; the same picture is stored once.
    QByteArray image(const QImage& image);

    qreal unitsOfAPoint() const { return m_settings.unitsOfAPoint; }
    /// Null if the file has no structure.
    StructureTree* structure() { return m_structure ? &*m_structure : nullptr; }

    /// Whether the device has failed. Pages may be written on, in vain.
    bool hasFailed() const { return m_output.hasFailed(); }
    /// Ends the file. False, with `error` set, if the device did not take all of it or a font cannot be embedded.
    bool finish(const QVector<OutlineEntry>& outline, QString* error);

private:
    bool writeFonts(QString* error);
    QByteArray resources() const;
    void writeFontResources();
    void writePageTree();
    QByteArray catalog(const QVector<OutlineEntry>& outline);
    int writeMetadata();
    int writeProfile();
    QByteArray information() const;
    QByteArray identifier() const;

    DocumentSettings m_settings;
    PdfOutput m_output;
    PageContent m_content;
    std::optional<StructureTree> m_structure;
    // To which what is drawn belongs; null for what no element holds.
    StructureElement* m_marked = nullptr;
    PageContent::Holds m_holds = PageContent::Text;
    int m_pageTree;
    int m_fontResources;
    QVector<int> m_pages;
    // Of the first page, which most pages have.
    QSizeF m_usualSize;
    QSizeF m_pageSize;
    std::vector<std::unique_ptr<EmbeddedFont>> m_fonts;
    // Faces that were asked for, in each size.
    std::vector<std::pair<QRawFont, EmbeddedFont*>> m_faces;
    QHash<QByteArray, EmbeddedFont*> m_fontsByFace;
    QHash<qint64, QByteArray> m_images;
    QHash<QByteArray, int> m_imageObjects;
};

} // namespace uiutils::pdf
