#pragma once

#include <QPaintDevice>
#include <QRectF>

#include <memory>

namespace uiutils {

class PageFont;

namespace pdf {
class DocumentWriter;
}

/// A part of a page for a QPainter: from (0, 0), in points. Shapes stay shapes, and text stays text.
class PagePainter final : public QPaintDevice
{
public:
    /// `place` in units of the layout. `blank` has the glyph behind what is not text, and `missing` gets the characters
    /// that no font has.
    PagePainter(pdf::DocumentWriter& writer, const PageFont& blank, QString* missing, qreal unitsOfAPoint,
            const QRectF& place);
    ~PagePainter() override;

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;
    std::unique_ptr<Engine> m_engine;
    QSizeF m_size;
};

} // namespace uiutils
