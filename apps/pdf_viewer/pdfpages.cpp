#include "pdfpages.h"

#include <QDeadlineTimer>

#include <poppler-qt5.h>

#include <cmath>

namespace uiutils::viewer {

namespace {

constexpr double pointsPerInch = 72;
/// The size of a page that states none, or an invalid one.
constexpr QSizeF letter(612, 792);
/// The maximum in the format.
constexpr double mostPoints = 14400;

/// 26 MB, and no side is too long for a graphics chip.
constexpr double mostPixels = 6.5e6;
constexpr int mostPixelsOfSide = 4096;
constexpr int patienceMs = 20000;

bool isSensible(double points)
{
    return points >= 1 && points <= mostPoints;
}

QSizeF sizeOf(const Poppler::Document& document, int index)
{
    const std::unique_ptr<Poppler::Page> page(document.page(index));
    const QSizeF size = page ? page->pageSizeF() : letter;
    return isSensible(size.width()) && isSensible(size.height()) ? size : letter;
}

/// Why a rendering may end early.
struct Progress
{
    const std::function<bool()>& isUnwanted;
    QDeadlineTimer deadline;
};

bool isToBeGivenUp(const QVariant& payload)
{
    const auto* progress = static_cast<const Progress*>(payload.value<void*>());
    return progress->deadline.hasExpired() || progress->isUnwanted();
}

Problem problemOf(const Poppler::Document* document)
{
    if (!document)
        return Problem::Damaged;
    if (document->isLocked())
        return Problem::Locked;
    if (document->numPages() < 1)
        return document->xrefWasReconstructed() ? Problem::Damaged : Problem::NoPages;
    return document->numPages() > mostPages ? Problem::TooManyPages : Problem::None;
}

/// Poppler's line-by-line messages about a file do not concern its readers.
void silencePoppler()
{
    Poppler::setDebugErrorFunction([](const QString&, const QVariant&) {}, QVariant());
}

} // namespace

std::unique_ptr<PdfPages> PdfPages::open(const QByteArray& contents, Problem* problem)
{
    silencePoppler();
    std::unique_ptr<Poppler::Document> document(Poppler::Document::loadFromData(contents));
    *problem = problemOf(document.get());
    if (*problem != Problem::None)
        return nullptr;
    return std::unique_ptr<PdfPages>(new PdfPages(std::move(document)));
}

PdfPages::PdfPages(std::unique_ptr<Poppler::Document> document)
    : m_document(std::move(document))
{
    for (const auto hint : {Poppler::Document::Antialiasing, Poppler::Document::TextAntialiasing,
                 Poppler::Document::TextHinting, Poppler::Document::TextSlightHinting})
        m_document->setRenderHint(hint);
    const int count = m_document->numPages();
    m_sizes.reserve(count);
    for (int index = 0; index < count; ++index)
        m_sizes.append(sizeOf(*m_document, index));
}

PdfPages::~PdfPages() = default;

bool PdfPages::isRepaired() const
{
    return m_document->xrefWasReconstructed();
}

QSize PdfPages::renderedSize(QSize pixels)
{
    if (pixels.width() < 1 || pixels.height() < 1)
        return QSize();
    const double all = double(pixels.width()) * pixels.height();
    const double factor = std::min({1.0, std::sqrt(mostPixels / all), double(mostPixelsOfSide) / pixels.width(),
            double(mostPixelsOfSide) / pixels.height()});
    return {std::max(1, int(pixels.width() * factor)), std::max(1, int(pixels.height() * factor))};
}

QImage PdfPages::render(int page, QSize pixels, const std::function<bool()>& isUnwanted) const
{
    const QSize size = renderedSize(pixels);
    const std::unique_ptr<Poppler::Page> source(size.isEmpty() ? nullptr : m_document->page(page));
    if (!source)
        return QImage();
    const QSizeF points = m_sizes.at(page);
    Progress progress {isUnwanted, QDeadlineTimer(patienceMs)};
    const QVariant payload = QVariant::fromValue(static_cast<void*>(&progress));
    const QImage image = source->renderToImage(size.width() * pointsPerInch / points.width(),
            size.height() * pointsPerInch / points.height(), 0, 0, size.width(), size.height(), Poppler::Page::Rotate0,
            nullptr, nullptr, &isToBeGivenUp, payload);
    // A cancelled picture shows half a page.
    return isToBeGivenUp(payload) ? QImage() : image;
}

} // namespace uiutils::viewer
