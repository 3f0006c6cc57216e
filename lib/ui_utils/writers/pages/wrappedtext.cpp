#include "writers/pages/wrappedtext_p.h"

#include "base/xmltext_p.h"
#include "writers/pages/linebreaks_p.h"
#include "writers/pages/pagecanvas_p.h"
#include "writers/pages/pagefont_p.h"
#include "writers/pages/readingside_p.h"

#include <algorithm>

namespace uiutils {

namespace {

/// QTextLayout takes some fifty bytes for each character that it lays out at once.
constexpr int maximumStretch = 8192;

bool isLineEnd(QChar c)
{
    return c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QChar(QChar::LineSeparator)
            || c == QChar(QChar::ParagraphSeparator);
}

QString pageText(const QString& text)
{
    QString clean = markupText(text);
    clean.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    clean.replace(QLatin1Char('\t'), QLatin1Char(' '));
    return clean;
}

/// Calls visit(begin, length) for the text between line ends.
template<typename Visitor> void forEachParagraph(const QString& text, Visitor visit)
{
    int begin = 0;
    for (int end = 0; end <= text.size(); ++end) {
        if (end < text.size() && !isLineEnd(text.at(end)))
            continue;
        visit(begin, end - begin);
        begin = end + 1;
    }
}

/// Where the stretch that begins at `begin` ends: at a blank, if there is one; never between the halves of a character.
int endOfStretch(const QString& text, int begin, int end)
{
    if (end - begin <= maximumStretch)
        return end;
    const int limit = begin + maximumStretch;
    const int blank = int(QStringView(text).mid(begin, maximumStretch).lastIndexOf(QLatin1Char(' ')));
    if (blank > 0)
        return begin + blank + 1;
    return text.at(limit).isLowSurrogate() ? limit - 1 : limit;
}

QString withEllipsis(QString text)
{
    if (!text.isEmpty() && text.at(text.size() - 1).isHighSurrogate())
        text.chop(1);
    return text.trimmed() + QChar(0x2026);
}

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ');
}

/// The widest of the parts between which `isEnd` says that a plain text may be divided. It gets a place, with the
/// character before it and after it.
template<typename IsEnd> qreal widestPart(const PageFont& font, QStringView text, IsEnd isEnd)
{
    qreal widest = 0;
    qreal width = 0;
    QChar before;
    for (int at = 0; at < text.size(); ++at) {
        const QChar c = text.at(at);
        if (isEnd(at))
            width = 0;
        // A blank at which a line ends has no width.
        width += isBlank(c) && isLineBreak(text, at) ? 0 : font.advance(before, c);
        before = c;
        widest = qMax(widest, width);
    }
    return widest;
}

/// Whether Qt's rules for ends of lines are those of words with blanks between them. Ideographs may be divided
/// anywhere.
bool isOfWord(QChar c)
{
    switch (c.script()) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Hangul:
    case QChar::Script_Thai:
    case QChar::Script_Lao:
    case QChar::Script_Khmer:
    case QChar::Script_Myanmar:
        return false;
    default:
        return !c.isSpace();
    }
}

/// Where a line that Qt has ended at `end` should end.
int lineEnd(const QString& text, int begin, int end)
{
    if (end >= text.size())
        return end;
    const bool isAfterBlank = isBlank(text.at(end - 1));
    if (isAfterBlank ? isLineBreak(text, end - 1) : !isOfWord(text.at(end - 1)) || !isOfWord(text.at(end)))
        return end;
    for (int at = end - 1; at > begin; --at) {
        if (isBlank(text.at(at)) && isLineBreak(text, at))
            return at + 1;
    }
    const int torn = isAfterBlank ? end : tearIn(text, begin, end);
    return isBlank(text.at(torn)) ? torn + 1 : torn;
}

void layOut(QTextLayout& layout, qreal width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(isReadFromRight(layout.text()) ? Qt::RightToLeft : Qt::LeftToRight);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const int end = line.textStart() + line.textLength();
        const int better = lineEnd(layout.text(), line.textStart(), end);
        if (better < end && better > line.textStart() && layout.isValidCursorPosition(better))
            line.setNumColumns(better - line.textStart(), width);
        line.setPosition({0, 0});
    }
    layout.endLayout();
}

} // namespace

WrappedText::WrappedText(const PageFont& font, const QString& text, qreal width)
    : m_font(font)
    , m_text(pageText(text))
{
    forEachParagraph(m_text, [&](int begin, int length) { addParagraph(font, begin, length, width); });
}

WrappedText::~WrappedText() = default;

void WrappedText::addParagraph(const PageFont& font, int begin, int length, qreal width)
{
    const qreal plainWidth = font.plainWidth(QStringView(m_text).mid(begin, length));
    if (plainWidth < 0) {
        const int end = begin + length;
        for (int at = begin; at < end;) {
            const int stretchEnd = endOfStretch(m_text, at, end);
            addShaped(font, at, stretchEnd - at, width);
            at = stretchEnd;
        }
    } else if (plainWidth <= width) {
        m_lines.push_back({begin, length, plainWidth, -1, 0});
    } else {
        addPlain(font, begin, length, width);
    }
}

/// Fills line after line with as many words as fit.
void WrappedText::addPlain(const PageFont& font, int begin, int length, qreal width)
{
    const QStringView text = QStringView(m_text).left(begin + length);
    const int end = begin + length;
    int lineBegin = begin;
    while (lineBegin < end) {
        qreal used = 0;
        qreal usedUpToBreak = 0;
        int breakAt = -1;
        int at = lineBegin;
        for (; at < end; ++at) {
            const QChar c = text.at(at);
            const qreal advance = font.advance(at > lineBegin ? text.at(at - 1) : QChar(), c);
            if (isBlank(c)) {
                if (isLineBreak(text, at)) {
                    breakAt = at;
                    usedUpToBreak = used;
                }
            } else if (used + advance > width && at > lineBegin) {
                break;
            }
            used += advance;
        }
        if (at < end && breakAt > lineBegin) {
            m_lines.push_back({lineBegin, breakAt - lineBegin, usedUpToBreak, -1, 0});
            lineBegin = breakAt + 1;
        } else {
            at = at < end ? tearIn(text, lineBegin, at) : at;
            const qreal torn = at < end ? font.plainWidth(text.mid(lineBegin, at - lineBegin)) : used;
            m_lines.push_back({lineBegin, at - lineBegin, qMin(torn, width), -1, 0});
            lineBegin = at;
        }
        while (lineBegin < end && isBlank(text.at(lineBegin)))
            ++lineBegin;
    }
}

void WrappedText::addShaped(const PageFont& font, int begin, int length, qreal width)
{
    auto layout = std::make_unique<QTextLayout>(m_text.mid(begin, length), font.font());
    layOut(*layout, width);
    if (font.replaceRefused(*layout)) {
        layout->setFont(font.font());
        layOut(*layout, width);
    }
    for (int i = 0; i < layout->lineCount(); ++i) {
        const QTextLine line = layout->lineAt(i);
        m_lines.push_back({begin + line.textStart(), line.textLength(), line.naturalTextWidth(), int(m_layouts.size()),
                line.lineNumber()});
    }
    m_layouts.push_back(std::move(layout));
}

qreal WrappedText::width() const
{
    qreal width = 0;
    for (const Line& line : m_lines)
        width = qMax(width, line.width);
    return width;
}

void WrappedText::draw(PageCanvas& canvas, const QPointF& topLeft, qreal boxWidth, Qt::Alignment alignment,
        const QColor& color, int begin, int end) const
{
    qreal baseLine = topLeft.y() + m_font.ascent();
    for (int i = begin; i < qMin(end, lineCount()); ++i, baseLine += m_font.lineHeight()) {
        const Line& line = m_lines[size_t(i)];
        const qreal spare = boxWidth - line.width;
        qreal x = topLeft.x();
        if (alignment & Qt::AlignHCenter)
            x += spare / 2;
        else if (alignment & Qt::AlignRight)
            x += spare;
        if (line.layout < 0) {
            // With the blank at which the line ends, so that words stay apart for those who copy them.
            const int end = line.begin + line.length;
            const int blank = end < m_text.size() && isBlank(m_text.at(end)) ? 1 : 0;
            canvas.drawPlain(m_font, QStringView(m_text).mid(line.begin, line.length + blank), {x, baseLine}, color);
        } else {
            const QTextLayout& layout = *m_layouts[size_t(line.layout)];
            const qreal left = layout.lineAt(line.layoutLine).naturalTextRect().x();
            canvas.drawShaped(m_font, layout, line.layoutLine, {x - left, baseLine}, color);
        }
    }
}

qreal WrappedText::naturalWidth(const PageFont& font, const QString& text)
{
    const qreal width = font.plainWidth(text);
    return width < 0 ? WrappedText(font, text, anyWidth).width() : width;
}

WrappedText::Widths WrappedText::widths(const PageFont& font, const QString& text, qreal plainWidth)
{
    if (plainWidth >= 0) {
        const QStringView view(text);
        const auto isEnd = [&](int at) { return isBlank(view.at(at)) && isLineBreak(view, at); };
        return {plainWidth, view.contains(QLatin1Char(' ')) ? widestPart(font, view, isEnd) : plainWidth};
    }
    const WrappedText whole(font, text, anyWidth);
    Widths widths {whole.width(), 0};
    for (const Line& line : whole.m_lines) {
        if (line.layout < 0)
            widths.word = qMax(
                    widths.word, WrappedText::widths(font, whole.m_text.mid(line.begin, line.length), line.width).word);
    }
    for (const auto& layout : whole.m_layouts)
        widths.word = qMax(widths.word, layout->minimumWidth());
    return widths;
}

qreal WrappedText::pieceWidth(const PageFont& font, const QString& text)
{
    const qreal plainWidth = font.plainWidth(text);
    if (plainWidth < 0)
        return widths(font, text, plainWidth).word;
    const QStringView view(text);
    return widestPart(
            font, view, [&](int at) { return isSeam(view, at) || (isBlank(view.at(at)) && isLineBreak(view, at)); });
}

QString WrappedText::elided(const PageFont& font, const QString& text, qreal width, int maximumLines)
{
    const WrappedText whole(font, text, width);
    if (whole.lineCount() <= maximumLines)
        return text;
    const Line& last = whole.m_lines[size_t(maximumLines - 1)];
    QString shortened = whole.m_text.left(last.begin + last.length);
    QString shown = withEllipsis(shortened);
    // Doubled each time, because a character may be a mark without a width of its own, and so may a thousand of them.
    const auto overflows = [&] { return WrappedText(font, shown, width).lineCount() > maximumLines; };
    for (int spare = 1; !shortened.isEmpty() && overflows(); spare *= 2) {
        shortened.chop(spare);
        shown = withEllipsis(shortened);
    }
    return shown;
}

} // namespace uiutils
