#include "contrast.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace uiutils::audit {

namespace {

// The steps of a channel within which two colours are taken for one.
constexpr int tolerance = 12;
// A text whose colour covers more of its area cannot be told from what is behind it.
constexpr double largestInk = 0.9;

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminanceOf(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

bool isNear(QRgb one, QRgb other)
{
    return std::abs(qRed(one) - qRed(other)) <= tolerance && std::abs(qGreen(one) - qGreen(other)) <= tolerance
            && std::abs(qBlue(one) - qBlue(other)) <= tolerance;
}

QHash<QRgb, int> colorsIn(const QImage& picture, const QRect& area)
{
    QHash<QRgb, int> counts;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = area.left(); x <= area.right(); ++x)
            ++counts[line[x] | 0xff000000U];
    }
    return counts;
}

} // namespace

double contrastOf(const QColor& one, const QColor& other)
{
    const double first = luminanceOf(one);
    const double second = luminanceOf(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor composed(const QColor& upper, double opacity, const QColor& lower)
{
    const double share = upper.alphaF() * opacity;
    const auto mixed = [share](double top, double bottom) { return share * top + (1 - share) * bottom; };
    return QColor::fromRgbF(mixed(upper.redF(), lower.redF()), mixed(upper.greenF(), lower.greenF()),
            mixed(upper.blueF(), lower.blueF()));
}

QColor colorBehind(const QImage& picture, const QRect& area, const QColor& text)
{
    const QRect inside = area & picture.rect();
    if (inside.isEmpty())
        return {};
    const QHash<QRgb, int> counts = colorsIn(picture, inside);
    QRgb color = text.rgb();
    int most = 0;
    int others = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (isNear(it.key(), text.rgb()))
            continue;
        others += it.value();
        if (it.value() > most) {
            most = it.value();
            color = it.key();
        }
    }
    const double pixels = double(inside.width()) * inside.height();
    return others < (1 - largestInk) * pixels ? QColor(text.rgb()) : QColor(color);
}

} // namespace uiutils::audit
