#pragma once

#include "scene.h"

#include <QImage>
#include <QStringList>

namespace uiutils::audit {

/// One length for all rules: pixels in a millimetre of the screen.
struct Ruler
{
    double pixelsPerMillimetre = 0;

    double pixels(double millimetres) const { return millimetres * pixelsPerMillimetre; }
    double millimetres(double pixels) const { return pixels / pixelsPerMillimetre; }
    /// The size of letters.
    double points(double pixels) const;
};

/// Each returns one line for each violation: the rule, the item, the measure.
QStringList smallTargets(const Scene& scene, const Ruler& ruler);
QStringList crowdedTargets(const Scene& scene, const Ruler& ruler);
QStringList smallTexts(const Scene& scene, const Ruler& ruler);
QStringList cutTexts(const Scene& scene);
QStringList overlappingTexts(const Scene& scene);
QStringList strayTargets(const Scene& scene);
/// What opens for a field must leave the field in sight.
QStringList coveredFields(const QQuickItem* opened, const QQuickItem* field);
/// Texts and icons that cannot be read in the picture of the scene.
QStringList faintWords(const Scene& scene, const QImage& picture);

} // namespace uiutils::audit
