#include "writers/html/style.h"

#include <QStringList>

namespace {

QString length(int px)
{
    return px == -1 ? QStringLiteral("auto") : QStringLiteral("%1px").arg(px);
}

} // namespace

Style::Style(const QString& selector)
    : m_selector(selector)
{
}

void Style::setMarginTop(int px)
{
    setProperty(QStringLiteral("margin-top"), length(px));
}

void Style::setMarginBottom(int px)
{
    setProperty(QStringLiteral("margin-bottom"), length(px));
}

void Style::setMarginLeft(int px)
{
    setProperty(QStringLiteral("margin-left"), length(px));
}

void Style::setFontFamily(const QString& family)
{
    setProperty(QStringLiteral("font-family"), family);
}

void Style::setBackground(const QString& background)
{
    setProperty(QStringLiteral("background"), background);
}

void Style::setPadding(int vertical, int horizontal)
{
    setProperty(QStringLiteral("padding"), QString(length(vertical) + QLatin1Char(' ') + length(horizontal)));
}

void Style::setProperty(const QString& name, const QVariant& value)
{
    m_properties.insert(name, value);
}

QString Style::toCss() const
{
    QStringList properties;
    for (auto it = m_properties.cbegin(); it != m_properties.cend(); ++it)
        properties += QStringLiteral("%1:%2").arg(it.key(), it.value().toString());
    return properties.join(QLatin1String("; "));
}
