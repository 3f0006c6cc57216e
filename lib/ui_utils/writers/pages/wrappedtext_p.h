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

/// A text broken into lines that keep to a width. Words that are wider than that are broken anywhere; line feeds part
/// lines. Whatever the text holds, control characters do not reach the page.
class WrappedText
{
public:
    /// What `width` is for a text that is not to be broken.
    static constexpr qreal anyWidth = 1'000'000;

    WrappedText(const PageFont& font, const QString& text, qreal width);
    ~WrappedText();
    Q_DISABLE_COPY(WrappedText)

    int lineCount() const { return int(m_lines.size()); }
    /// Of the widest line.
    qreal width() const;

    /// Draws the lines from `begin` on, `end` not included, into a box of `boxWidth` at `topLeft`.
    void draw(PageCanvas& canvas, const QPointF& topLeft, qreal boxWidth, Qt::Alignment alignment, const QColor& color,
            int begin, int end) const;

    /// The width that the text takes in one line for each of its own.
    static qreal naturalWidth(const PageFont& font, const QString& text);
    /// The width below which words have to be broken.
    static qreal minimalWidth(const PageFont& font, const QString& text);
    /// The text, ended by an ellipsis where it takes more than `maximumLines`.
    static QString elided(const PageFont& font, const QString& text, qreal width, int maximumLines);

private:
    struct Line
    {
        int begin;
        int length;
        qreal width;
        /// Index of the layout that holds the line, -1 for a plain one, and its line there.
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
