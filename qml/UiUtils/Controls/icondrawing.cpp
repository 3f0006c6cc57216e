#include "icondrawing.h"

#include "iconpath.h"

#include <QPainter>
#include <QXmlStreamReader>

namespace uiutils {

namespace {

constexpr qreal extent = 24;

qreal number(const QXmlStreamAttributes& attributes, const char* name)
{
    return attributes.value(QLatin1String(name)).toDouble();
}

/// "rotate(-45 12 12)": degrees and the point around which is turned.
bool readRotation(const QString& text, QTransform* transform)
{
    if (!text.startsWith(QLatin1String("rotate(")) || !text.endsWith(QLatin1Char(')')))
        return false;
    const QStringList numbers = text.mid(7).chopped(1).split(QLatin1Char(' '));
    if (numbers.size() != 3)
        return false;
    const QPointF middle(numbers.at(1).toDouble(), numbers.at(2).toDouble());
    transform->translate(middle.x(), middle.y());
    transform->rotate(numbers.at(0).toDouble());
    transform->translate(-middle.x(), -middle.y());
    return true;
}

} // namespace

class IconReader
{
public:
    IconReader(QIODevice* file, IconDrawing* drawing)
        : m_xml(file)
        , m_drawing(drawing)
    {
    }

    QString read()
    {
        if (m_xml.readNextStartElement())
            readSvg();
        return m_xml.errorString();
    }

private:
    void readSvg()
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        if (m_xml.name() != QLatin1String("svg")
                || attributes.value(QLatin1String("viewBox")) != QLatin1String("0 0 24 24"))
            m_xml.raiseError(QStringLiteral("is no drawing in a square of 24 units"));
        m_lineWidth = number(attributes, "stroke-width");
        readShapes({}, &m_drawing->m_shapes);
    }

    void readShapes(const QTransform& transform, QVector<IconDrawing::Shape>* shapes)
    {
        while (m_xml.readNextStartElement()) {
            const QXmlStreamAttributes attributes = m_xml.attributes();
            if (m_xml.name() == QLatin1String("g"))
                readGroup(transform, attributes, shapes);
            else if (m_xml.name() == QLatin1String("mask"))
                readShapes(transform, &m_drawing->m_cuts);
            else
                readShape(transform, attributes, shapes);
        }
    }

    void readGroup(QTransform transform, const QXmlStreamAttributes& attributes, QVector<IconDrawing::Shape>* shapes)
    {
        const QString rotation = attributes.value(QLatin1String("transform")).toString();
        if (!rotation.isEmpty() && !readRotation(rotation, &transform))
            m_xml.raiseError(QStringLiteral("has the transform ") + rotation);
        readShapes(transform, shapes);
    }

    void readShape(
            const QTransform& transform, const QXmlStreamAttributes& attributes, QVector<IconDrawing::Shape>* shapes)
    {
        const QStringRef fill = attributes.value(QLatin1String("fill"));
        const bool hasLine = attributes.value(QLatin1String("stroke")) != QLatin1String("none");
        const bool hasWidth = attributes.hasAttribute(QLatin1String("stroke-width"));
        QPainterPath path;
        const QString problem = readPath(attributes, &path);
        if (!problem.isEmpty())
            m_xml.raiseError(problem);
        // The white area of a mask is what stays.
        if (fill != QLatin1String("#ffffff"))
            shapes->append({transform.map(path),
                    !hasLine           ? 0
                            : hasWidth ? number(attributes, "stroke-width")
                                       : m_lineWidth,
                    !fill.isEmpty()});
        m_xml.skipCurrentElement();
    }

    QString readPath(const QXmlStreamAttributes& attributes, QPainterPath* path)
    {
        const auto value = [&](const char* name) { return number(attributes, name); };
        if (m_xml.name() == QLatin1String("rect"))
            path->addRoundedRect(value("x"), value("y"), value("width"), value("height"), value("rx"), value("rx"));
        else if (m_xml.name() == QLatin1String("circle"))
            path->addEllipse(QPointF(value("cx"), value("cy")), value("r"), value("r"));
        else if (m_xml.name() == QLatin1String("path"))
            return readIconPath(attributes.value(QLatin1String("d")), path);
        else
            return QStringLiteral("has the element ") + m_xml.name();
        return QString();
    }

    QXmlStreamReader m_xml;
    IconDrawing* const m_drawing;
    qreal m_lineWidth = 0;
};

QString IconDrawing::read(QIODevice* file)
{
    return IconReader(file, this).read();
}

QImage IconDrawing::picture(int side, const QColor& color, bool isMirrored) const
{
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / extent, side / extent);
    if (isMirrored) {
        painter.translate(extent, 0);
        painter.scale(-1, 1);
    }
    const auto draw = [&](const Shape& shape, const QColor& ink) {
        painter.setPen(shape.lineWidth > 0 ? QPen(ink, shape.lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)
                                           : QPen(Qt::NoPen));
        painter.setBrush(shape.isFilled ? QBrush(ink) : QBrush(Qt::NoBrush));
        painter.drawPath(shape.path);
    };
    for (const Shape& shape : m_shapes)
        draw(shape, Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    for (const Shape& cut : m_cuts)
        draw(cut, Qt::black);
    // Shapes that overlap would be seen through each other in a colour that is not opaque.
    painter.resetTransform();
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), color);
    painter.end();
    // An image that was painted on keeps the painter's engine, which is larger than the icon.
    return picture.copy();
}

} // namespace uiutils
