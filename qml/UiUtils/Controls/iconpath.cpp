#include "iconpath.h"

#include <QLineF>
#include <QRectF>
#include <QtMath>

namespace uiutils {

namespace {

/// The letters and numbers of an outline, one after the other.
class Words
{
public:
    explicit Words(const QStringRef& text)
        : m_text(text)
    {
    }

    bool isAtEnd()
    {
        while (m_position < m_text.size() && m_text.at(m_position).isSpace())
            ++m_position;
        return m_position == m_text.size();
    }

    bool isAtLetter() { return !isAtEnd() && m_text.at(m_position).isLetter(); }

    QChar letter() { return m_text.at(m_position++); }

    /// Whether every number was there that was asked for.
    bool isComplete() const { return m_isComplete; }

    qreal number()
    {
        const int begin = isAtEnd() ? m_position : m_position++;
        while (m_position < m_text.size()
                && (m_text.at(m_position).isDigit() || m_text.at(m_position) == QLatin1Char('.')))
            ++m_position;
        bool isNumber = false;
        const qreal value = m_text.mid(begin, m_position - begin).toDouble(&isNumber);
        m_isComplete = m_isComplete && isNumber;
        return value;
    }

    QPointF point()
    {
        const qreal x = number();
        return {x, number()};
    }

private:
    const QStringRef m_text;
    int m_position = 0;
    bool m_isComplete = true;
};

/// Of a circle, from the present position to `end`: the longer of the two arcs or the shorter one, clockwise or not.
void addArc(QPainterPath* path, qreal radius, bool isLong, bool isClockwise, const QPointF& end)
{
    const QPointF begin = path->currentPosition();
    const QPointF half = (begin - end) / 2;
    const qreal distance = QLineF(QPointF(), half).length();
    if (qFuzzyIsNull(distance))
        return;
    // A circle that is too small for the ends grows until it reaches both.
    radius = qMax(radius, distance);
    const qreal height = qSqrt(radius * radius - distance * distance) / distance * (isLong == isClockwise ? -1 : 1);
    const QPointF middle = (begin + end) / 2 + QPointF(height * half.y(), -height * half.x());
    const auto angle = [&](const QPointF& point) { return QLineF(middle, point).angle(); };
    // QPainterPath counts against the clock.
    qreal sweep = angle(end) - angle(begin);
    if (isClockwise && sweep > 0)
        sweep -= 360;
    if (!isClockwise && sweep < 0)
        sweep += 360;
    path->arcTo(QRectF(middle - QPointF(radius, radius), middle + QPointF(radius, radius)), angle(begin), sweep);
}

/// Returns false for a command that is unknown.
bool addCommand(QChar command, Words* words, QPainterPath* path)
{
    const QPointF position = path->currentPosition();
    switch (command.unicode()) {
    case 'M':
        path->moveTo(words->point());
        return true;
    case 'L':
        path->lineTo(words->point());
        return true;
    case 'H':
        path->lineTo(words->number(), position.y());
        return true;
    case 'V':
        path->lineTo(position.x(), words->number());
        return true;
    case 'C': {
        const QPointF first = words->point();
        const QPointF second = words->point();
        path->cubicTo(first, second, words->point());
        return true;
    }
    case 'A': {
        const QPointF radii = words->point();
        const bool isUpright = words->number() == 0;
        const bool isLong = words->number() != 0;
        const bool isClockwise = words->number() != 0;
        addArc(path, radii.x(), isLong, isClockwise, words->point());
        return isUpright && radii.x() == radii.y();
    }
    case 'Z':
        path->closeSubpath();
        return true;
    default:
        return false;
    }
}

} // namespace

QString readIconPath(const QStringRef& text, QPainterPath* path)
{
    Words words(text);
    while (!words.isAtEnd()) {
        // What follows a command without a letter of its own would be a number too many.
        const QChar command = words.isAtLetter() ? words.letter() : QChar();
        if (!addCommand(command, &words, path) || !words.isComplete())
            return QStringLiteral("has the outline ") + text;
    }
    return QString();
}

} // namespace uiutils
