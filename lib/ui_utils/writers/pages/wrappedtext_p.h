#pragma once

#include <QColor>
#include <QPointF>
#include <QString>
#include <QTextLayout>

#include <memory>
#include <vector>

namespace uiutils {

class PageCanvas;
class PageFont;

/// A text broken into lines of a maximum width. Words that are wider are torn, if possible at a separator; line feeds
/// separate lines. Control characters never reach the page.
class WrappedText
{
public:
    /// The `width` of a text that is not to be broken.
    static constexpr qreal anyWidth = 1'000'000;

    WrappedText(const PageFont& font, const QString& text, qreal width);
    ~WrappedText();
    Q_DISABLE_COPY(WrappedText)

    int lineCount() const { return int(m_lines.size()); }
    /// The width of the widest line.
    qreal width() const;

    /// Draws the lines from `begin` up to, but not including, `end` into a box of `boxWidth` at `topLeft`.
    void draw(PageCanvas& canvas, const QPointF& topLeft, qreal boxWidth, Qt::Alignment alignment, const QColor& color,
            int begin, int end) const;

    /// The width of the text if none of its lines is broken.
    static qreal naturalWidth(const PageFont& font, const QString& text);

    struct Widths
    {
        /// Of the text if none of its lines is broken.
        qreal natural = 0;
        /// Below this width words have to be torn.
        qreal word = 0;
    };
    /// `plainWidth` is that of the font for the text.
    static Widths widths(const PageFont& font, const QString& text, qreal plainWidth);
    /// The width below which words have to be torn elsewhere than at separators.
    static qreal pieceWidth(const PageFont& font, const QString& text);
    /// The text, shortened with an ellipsis if it takes more than `maximumLines`.
    static QString elided(const PageFont& font, const QString& text, qreal width, int maximumLines);

private:
    struct Line
    {
        int begin;
        int length;
        qreal width;
        /// Index of the layout that holds the line, -1 for a plain one, and the number of the line there.
        int layout;
        int layoutLine;
    };

    void addParagraph(const PageFont& font, int begin, int length, qreal width);
    void addPlain(const PageFont& font, int begin, int length, qreal width);
    void addShaped(const PageFont& font, int begin, int length, qreal width);

    const PageFont& m_font;
    QString m_text;
    std::vector<Line> m_lines;
    std::vector<std::unique_ptr<QTextLayout>> m_layouts;
};

} // namespace uiutils
