#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QVector>

class QIODevice;

namespace uiutils {

/// The drawing of an icon: lines and areas in a square of 24 units.
///
/// Drawings are SVG files of the few elements that ours have. They are drawn without the readers of images, because Qt
/// loads the plug-ins of all formats with the first image, and a widget library with them.
class IconDrawing
{
public:
    /// Reads a drawing. Returns what cannot be read in it, or an empty text.
    QString read(QIODevice* file);

    /// The drawing in one colour, premultiplied. `side` in pixels.
    QImage picture(int side, const QColor& color, bool isMirrored) const;

private:
    friend class IconReader;

    struct Shape
    {
        QPainterPath path;
        /// 0 for none.
        qreal lineWidth;
        bool isFilled;
    };

    QVector<Shape> m_shapes;
    /// What is cut out of the shapes.
    QVector<Shape> m_cuts;
};

} // namespace uiutils
