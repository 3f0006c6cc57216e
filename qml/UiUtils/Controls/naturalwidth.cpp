#include "naturalwidth.h"

#include <QFontMetricsF>
#include <QtMath>

namespace uiutils {

void NaturalWidth::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    measure();
    Q_EMIT textChanged();
}

void NaturalWidth::setFont(const QFont& font)
{
    if (font == m_font)
        return;
    m_font = font;
    measure();
    Q_EMIT fontChanged();
}

void NaturalWidth::componentComplete()
{
    m_isComplete = true;
    measure();
}

void NaturalWidth::measure()
{
    if (!m_isComplete)
        return;
    const int before = m_oneLine;
    m_oneLine = 0;
    if (!m_text.isEmpty()) {
        const QFontMetricsF metrics(m_font);
        // Letters may stand out, as in slanted fonts.
        const qreal width = qMax(metrics.horizontalAdvance(m_text), metrics.boundingRect(m_text).width());
        m_oneLine = qCeil(width) + 2;
    }
    if (m_oneLine != before)
        Q_EMIT oneLineChanged();
}

} // namespace uiutils
