#include "writers/pages/pagepainter_p.h"

#include "writers/emitter/pdfdocument_p.h"
#include "writers/pages/pagefont_p.h"
#include "writers/pages/shapedtext_p.h"
#include "writers/pages/wrappedtext_p.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPixmap>
#include <QTextLayout>

#include <cmath>
#include <functional>

namespace uiutils {

namespace {

constexpr int pointsOfAnInch = 72;
/// Pixels of a point in what can only be painted as a picture, such as gradients.
constexpr int pixelsOfAPoint = 4;
/// Of a picture, along each side.
constexpr int mostPixels = 4000;

/// Whether lengths change by one factor in all directions.
bool isUniform(const QTransform& transform)
{
    const auto isSame = [](qreal a, qreal b) { return std::abs(a - b) <= 1e-6 * (std::abs(a) + std::abs(b)); };
    return transform.isAffine()
            && isSame(std::hypot(transform.m11(), transform.m12()), std::hypot(transform.m21(), transform.m22()))
            && std::abs(transform.m11() * transform.m21() + transform.m12() * transform.m22())
            <= 1e-6 * std::abs(transform.determinant());
}

} // namespace

class PagePainter::Engine final : public QPaintEngine
{
public:
    Engine(pdf::DocumentWriter& writer, const PageFont& blank, QString* missing, qreal unitsOfAPoint,
            const QRectF& place)
        : QPaintEngine(PrimitiveTransform | PixmapTransform | PainterPaths | Antialiasing | AlphaBlend
                | PaintOutsidePaintEvent | ObjectBoundingModeGradients | LinearGradientFill | RadialGradientFill
                | ConicalGradientFill | PatternBrush)
        , m_writer(writer)
        , m_blank(blank)
        , m_missing(missing)
        , m_place(place)
        , m_base(QTransform::fromScale(unitsOfAPoint, unitsOfAPoint) * QTransform::fromTranslate(place.x(), place.y()))
    {
    }

    bool begin(QPaintDevice*) override
    {
        QPainterPath whole;
        whole.addRect(m_place);
        m_writer.content().save();
        m_writer.content().clip(whole);
        m_writer.content().save();
        return true;
    }
    bool end() override
    {
        m_writer.content().restore();
        m_writer.content().restore();
        return true;
    }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& state) override
    {
        if (state.state() & (DirtyClipPath | DirtyClipRegion | DirtyClipEnabled | DirtyTransform))
            setClip();
    }

    void drawPath(const QPainterPath& path) override;
    void drawLines(const QLineF* lines, int count) override;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
    void drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& source) override;
    void drawImage(const QRectF& place, const QImage& image, const QRectF& source, Qt::ImageConversionFlags) override;
    void drawTiledPixmap(const QRectF& place, const QPixmap& pixmap, const QPointF& offset) override;
    void drawTextItem(const QPointF& at, const QTextItem& item) override;

private:
    QTransform toPage() const { return state->transform() * m_base; }
    void setClip();
    void fillPath(const QPainterPath& path, const QBrush& brush);
    void drawOutline(const QPainterPath& path);
    void drawPicture(const QRectF& place, const std::function<void(QPainter&)>& draw);

    pdf::DocumentWriter& m_writer;
    const PageFont& m_blank;
    QString* m_missing;
    GlyphPictures m_pictures;
    QRectF m_place;
    QTransform m_base;
};

/// Each clip of the painter is the whole one, so it replaces the last.
void PagePainter::Engine::setClip()
{
    m_writer.content().restore();
    m_writer.content().save();
    const QPainter* const painter = this->painter();
    if (painter->hasClipping())
        m_writer.content().clip(toPage().map(painter->clipPath()));
}

void PagePainter::Engine::fillPath(const QPainterPath& path, const QBrush& brush)
{
    if (brush.style() == Qt::NoBrush || path.isEmpty())
        return;
    const qreal alpha = brush.color().alphaF() * state->opacity();
    if (brush.style() == Qt::SolidPattern && alpha > 0.999) {
        m_writer.content().fill(toPage().map(path), brush.color());
        return;
    }
    drawPicture(path.boundingRect(), [&](QPainter& painter) {
        painter.setOpacity(state->opacity());
        painter.setBrushOrigin(state->brushOrigin());
        painter.fillPath(path, brush);
    });
}

void PagePainter::Engine::drawPath(const QPainterPath& path)
{
    fillPath(path, state->brush());
    drawOutline(path);
}

void PagePainter::Engine::drawOutline(const QPainterPath& path)
{
    QPen pen = state->pen();
    if (pen.style() == Qt::NoPen)
        return;
    // A width of 0 is as thin as can be seen on paper.
    constexpr qreal hairline = 0.25;
    if (pen.widthF() <= 0)
        pen.setWidthF(hairline);
    const QTransform transform = toPage();
    const qreal scale = std::sqrt(std::abs(transform.determinant()));
    // Lines of a pen that is not round under a shear, or that is not all of one colour, are areas.
    if (isUniform(transform) && pen.brush().style() == Qt::SolidPattern
            && pen.color().alphaF() * state->opacity() > 0.999) {
        pen.setWidthF(pen.widthF() * scale);
        m_writer.content().stroke(transform.map(path), pen);
        return;
    }
    QPainterPathStroker stroker(pen);
    fillPath(stroker.createStroke(path), pen.brush());
}

/// All in one path, which takes less room than each alone.
void PagePainter::Engine::drawLines(const QLineF* lines, int count)
{
    QPainterPath path;
    for (int i = 0; i < count; ++i) {
        path.moveTo(lines[i].p1());
        path.lineTo(lines[i].p2());
    }
    drawOutline(path);
}

void PagePainter::Engine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(QVector<QPointF>(points, points + count)));
    if (mode == PolylineMode) {
        drawOutline(path);
        return;
    }
    path.closeSubpath();
    path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    drawPath(path);
}

/// `draw` paints in the painter's coordinates.
void PagePainter::Engine::drawPicture(const QRectF& place, const std::function<void(QPainter&)>& draw)
{
    const QRectF onPage = state->transform().mapRect(place) & QRectF(QPointF(), m_place.size() / m_base.m11());
    const QSize size = (onPage.size() * pixelsOfAPoint).toSize().boundedTo({mostPixels, mostPixels});
    if (size.isEmpty())
        return;
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setTransform(state->transform() * QTransform::fromTranslate(-onPage.x(), -onPage.y())
            * QTransform::fromScale(size.width() / onPage.width(), size.height() / onPage.height()));
    draw(painter);
    painter.end();
    m_writer.content().image(m_writer.image(image), m_base.mapRect(onPage));
}

void PagePainter::Engine::drawImage(
        const QRectF& place, const QImage& image, const QRectF& source, Qt::ImageConversionFlags)
{
    const QTransform transform = toPage();
    const bool isWhole = source == QRectF(image.rect());
    if (transform.type() <= QTransform::TxScale && isWhole && state->opacity() > 0.999 && transform.m11() > 0
            && transform.m22() > 0) {
        m_writer.content().image(m_writer.image(image), transform.mapRect(place));
        return;
    }
    drawPicture(place, [&](QPainter& painter) {
        painter.setOpacity(state->opacity());
        painter.drawImage(place, image, source);
    });
}

void PagePainter::Engine::drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& source)
{
    drawImage(place, pixmap.toImage(), source, Qt::AutoColor);
}

void PagePainter::Engine::drawTiledPixmap(const QRectF& place, const QPixmap& pixmap, const QPointF& offset)
{
    drawPicture(place, [&](QPainter& painter) { painter.drawTiledPixmap(place, pixmap, offset); });
}

void PagePainter::Engine::drawTextItem(const QPointF& at, const QTextItem& item)
{
    // Laid out again, because an item does not say which glyphs it has.
    QTextLayout layout(item.text(), item.font());
    QTextOption option;
    option.setTextDirection(item.renderFlags() & QTextItem::RightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(WrappedText::anyWidth);
    layout.endLayout();
    line.setPosition({-line.naturalTextRect().x(), 0});
    pdf::PageContent& content = m_writer.content();
    content.save();
    content.transform(toPage());
    ShapedText(m_writer, m_blank, &m_pictures, m_missing).draw(layout, 0, at, state->pen().color());
    m_pictures.draw(m_writer);
    content.restore();
}

PagePainter::PagePainter(
        pdf::DocumentWriter& writer, const PageFont& blank, QString* missing, qreal unitsOfAPoint, const QRectF& place)
    : m_engine(std::make_unique<Engine>(writer, blank, missing, unitsOfAPoint, place))
    , m_size(place.size() / unitsOfAPoint)
{
}

PagePainter::~PagePainter() = default;

QPaintEngine* PagePainter::paintEngine() const
{
    return m_engine.get();
}

int PagePainter::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return qRound(m_size.width());
    case PdmHeight:
        return qRound(m_size.height());
    case PdmWidthMM:
        return qRound(m_size.width() / pointsOfAnInch * 25.4);
    case PdmHeightMM:
        return qRound(m_size.height() / pointsOfAnInch * 25.4);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return pointsOfAnInch;
    case PdmNumColors:
        return INT_MAX;
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return int(devicePixelRatioFScale());
    }
    return 0;
}

} // namespace uiutils
