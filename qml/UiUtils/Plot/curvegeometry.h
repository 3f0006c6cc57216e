#pragma once

#include "plotscene.h"

#include <QSGNode>

namespace uiutils {

/// Makes the children of a node the geometry of curves: a rectangle with soft edges for each line. `ratio` is the
/// number of the screen's pixels for each of the item.
void updateCurves(QSGNode* parent, const QVector<SceneStroke>& strokes, double ratio);

} // namespace uiutils
