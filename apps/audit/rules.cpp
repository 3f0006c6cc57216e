#include "rules.h"

#include "contrast.h"
#include "itemkinds.h"
#include "texts.h"

#include <QFont>
#include <QQuickItem>

#include <algorithm>
#include <cmath>

namespace uiutils::audit {

namespace {

// A finger in a glove: millimetres.
constexpr double touch = 9;
constexpr double touchGap = 2;
// Points.
constexpr double label = 8;
constexpr double entry = 9;
constexpr double millimetresPerPoint = 25.4 / 72;
// Ratios of contrast.
constexpr double readable = 4.5;
constexpr double readableDisabled = 3;
// Pixels: what rounding takes, and what two lines share without touching letters.
constexpr double rounding = 1;
constexpr double sharedLine = 2;

QString figure(double value)
{
    return QString::number(value, 'f', 1);
}

QString told(const QString& rule, const QQuickItem* item, const QString& measure)
{
    return QStringLiteral("%1: %2: %3").arg(rule, nameOf(item), measure);
}

/// What counts of a target: what scrolls can be moved into sight.
QRectF reached(const Shown& target)
{
    return target.scroller ? target.area : target.seen;
}

/// The middle of a target, as large as a finger needs: larger targets carry a part of the gap in themselves.
QRectF core(const QRectF& target, const Ruler& ruler)
{
    const auto spare = [&ruler](double length) {
        return std::clamp((length - ruler.pixels(touch)) / 2, 0.0, ruler.pixels(touchGap) / 2);
    };
    const double across = spare(target.width());
    const double down = spare(target.height());
    return target.adjusted(across, down, -across, -down);
}

double distance(const QRectF& one, const QRectF& other)
{
    const double across = std::max({0.0, one.left() - other.right(), other.left() - one.right()});
    const double down = std::max({0.0, one.top() - other.bottom(), other.top() - one.bottom()});
    return std::hypot(across, down);
}

bool areNeighbours(const Shown& one, const Shown& other)
{
    if (one.item->isAncestorOf(other.item) || other.item->isAncestorOf(one.item) || one.scroller != other.scroller)
        return false;
    // One lies above the other as a layer of its own.
    return !one.seen.isEmpty() && !other.seen.isEmpty() && !one.area.contains(other.area)
            && !other.area.contains(one.area);
}

double letterSize(const QQuickItem* text)
{
    const QFont font = text->property("font").value<QFont>();
    if (text->property("fontSizeMode").toInt() != 0)
        return std::min(font.pixelSize(), text->property("minimumPixelSize").toInt());
    return font.pixelSize();
}

/// Why a text is not complete; empty if it is.
QString cutBy(const Shown& text)
{
    const QQuickItem* const item = text.item;
    if (item->property("truncated").toBool())
        return mayElide(item) ? QString() : Texts::tr("is elided");
    const double width = text.area.width() - item->width();
    if (!isEditor(item) && width > rounding)
        return Texts::tr("is wider than its place by %1 pixels").arg(figure(width));
    const double height = text.area.height() - item->height();
    if (height > rounding)
        return Texts::tr("is higher than its place by %1 pixels").arg(figure(height));
    const QRectF inside = text.area & text.room;
    const double lost = std::max(text.area.width() - inside.width(), text.area.height() - inside.height());
    return lost > rounding ? Texts::tr("is outside of its surface by %1 pixels").arg(figure(lost)) : QString();
}

QString faint(const Shown& shown, const QImage& picture)
{
    if (shown.seen != shown.area)
        return {};
    const QColor color = shown.item->property("color").value<QColor>();
    const QColor behind = colorBehind(picture, shown.seen.toAlignedRect(), color);
    if (!behind.isValid() || color.alpha() == 0)
        return {};
    const double ratio = contrastOf(composed(color, shown.opacity, behind), behind);
    const double least = shown.item->isEnabled() ? readable : readableDisabled;
    if (ratio >= least)
        return {};
    return told(Texts::tr("Contrast"), shown.item,
            Texts::tr("%1 on %2 has %3 : 1, at least %4")
                    .arg(color.name(), behind.name(), QString::number(ratio, 'f', 2), figure(least)));
}

} // namespace

double Ruler::points(double pixels) const
{
    return millimetres(pixels) / millimetresPerPoint;
}

QStringList smallTargets(const Scene& scene, const Ruler& ruler)
{
    QStringList complaints;
    for (const Shown& target : scene.targets) {
        const QRectF area = reached(target);
        if (area.isEmpty() || std::min(area.width(), area.height()) + rounding >= ruler.pixels(touch))
            continue;
        complaints += told(Texts::tr("Target"), target.item,
                Texts::tr("%1 x %2 mm, at least %3")
                        .arg(figure(ruler.millimetres(area.width())), figure(ruler.millimetres(area.height())),
                                figure(touch)));
    }
    return complaints;
}

QStringList crowdedTargets(const Scene& scene, const Ruler& ruler)
{
    QStringList complaints;
    for (auto one = scene.targets.begin(); one != scene.targets.end(); ++one) {
        for (auto other = one + 1; other != scene.targets.end(); ++other) {
            if (!areNeighbours(*one, *other))
                continue;
            const double gap = distance(core(reached(*one), ruler), core(reached(*other), ruler));
            if (gap + rounding < ruler.pixels(touchGap)) {
                complaints += told(Texts::tr("Distance"), one->item,
                        Texts::tr("%1 mm to %2, at least %3")
                                .arg(figure(ruler.millimetres(gap)), nameOf(other->item), figure(touchGap)));
            }
        }
    }
    return complaints;
}

QStringList smallTexts(const Scene& scene, const Ruler& ruler)
{
    QStringList complaints;
    for (const Shown& text : scene.texts) {
        const double pixels = letterSize(text.item);
        const double least = isEditor(text.item) ? entry : label;
        if (ruler.points(pixels + rounding / 2) >= least)
            continue;
        complaints += told(Texts::tr("Letters"), text.item,
                Texts::tr("%1 pt, at least %2").arg(figure(ruler.points(pixels)), figure(least)));
    }
    return complaints;
}

QStringList cutTexts(const Scene& scene)
{
    QStringList complaints;
    for (const Shown& text : scene.texts) {
        const QString reason = cutBy(text);
        if (!reason.isEmpty())
            complaints += told(Texts::tr("Cut"), text.item, reason);
    }
    return complaints;
}

QStringList overlappingTexts(const Scene& scene)
{
    QStringList complaints;
    for (auto one = scene.texts.begin(); one != scene.texts.end(); ++one) {
        for (auto other = one + 1; other != scene.texts.end(); ++other) {
            const QRectF shared = one->seen & other->seen;
            if (std::min(shared.width(), shared.height()) > sharedLine)
                complaints += told(Texts::tr("Overlap"), one->item,
                        Texts::tr("%1 x %2 pixels of %3")
                                .arg(figure(shared.width()), figure(shared.height()), nameOf(other->item)));
        }
    }
    return complaints;
}

QStringList strayTargets(const Scene& scene)
{
    QStringList complaints;
    for (const Shown& target : scene.targets) {
        const QRectF inside = target.area & target.room;
        const double lost = std::max(target.area.width() - inside.width(), target.area.height() - inside.height());
        if (lost > rounding)
            complaints += told(Texts::tr("Outside"), target.item,
                    Texts::tr("%1 pixels are outside of its surface").arg(figure(lost)));
    }
    return complaints;
}

QStringList coveredFields(const QQuickItem* opened, const QQuickItem* field)
{
    const auto areaOf = [](const QQuickItem* item) { return item->mapRectToScene(QRectF(QPointF(), item->size())); };
    const QRectF shared = areaOf(opened) & areaOf(field);
    if (std::min(shared.width(), shared.height()) <= rounding)
        return {};
    return {told(Texts::tr("Covered"), field,
            Texts::tr("%1 x %2 pixels by what opens for it").arg(figure(shared.width()), figure(shared.height())))};
}

QStringList faintWords(const Scene& scene, const QImage& picture)
{
    QStringList complaints;
    for (const QVector<Shown>& all : {scene.texts, scene.icons}) {
        for (const Shown& shown : all)
            complaints += faint(shown, picture);
    }
    complaints.removeAll(QString());
    return complaints;
}

} // namespace uiutils::audit
