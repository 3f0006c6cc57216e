#pragma once

#include "scene.h"

#include <QStringList>

class QQuickWindow;

namespace uiutils::audit {

/// The texts of the scene that no object of the accessible tree says as name, description or value. The
/// tree has to be active: QAccessible::setActive(), before the page is loaded.
QStringList unsaidWords(QQuickWindow* window, const Scene& scene);

} // namespace uiutils::audit
