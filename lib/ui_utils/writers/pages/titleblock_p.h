#pragma once

#include "writers/pages/reportfield.h"
#include "writers/pages/reportitem.h"

#include <QImage>
#include <QStringList>
#include <QVector>

namespace uiutils {

/// The head of a report's first page: logo and document title side by side, the report's title, and fields in two
/// columns.
class TitleBlock final : public ReportItem
{
public:
    struct Contents
    {
        QImage logo;
        QString documentTitle;
        QString title;
        QVector<ReportField> fields;
    };

    explicit TitleBlock(const Contents& contents);
    ~TitleBlock() override;

    void measure(const PageStyle& style, const QSizeF& page) override;
    Position end() const override { return {1, 0}; }
    Portion split(const Position& begin, qreal room, bool isWholePage) const override;
    void draw(PageCanvas& canvas, const Portion& portion, const QPointF& topLeft) const override;
    qreal spaceAbove() const override { return 0; }

private:
    /// Where a field is, from the block's top left corner.
    struct FieldPlace
    {
        QPointF label;
        QPointF text;
        int lines;
    };

    void measureFields(const PageStyle& style, qreal pageWidth);
    qreal logoWidth() const;
    QRectF placed(const PageStyle& style, const QRectF& rectangle) const;
    void drawHead(PageCanvas& canvas, const QPointF& topLeft) const;
    void drawField(PageCanvas& canvas, int index, const QPointF& topLeft) const;

    Contents m_contents;
    QString m_shownDocumentTitle;
    QString m_shownTitle;
    int m_titleLines = 0;
    QVector<FieldPlace> m_places;
    qreal m_width = 0;
    qreal m_headHeight = 0;
    qreal m_titleTop = 0;
    qreal m_labelWidth = 0;
    qreal m_textWidth = 0;
    qreal m_height = 0;
};

} // namespace uiutils
