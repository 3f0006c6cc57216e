#pragma once

#include <QStringList>

class QQmlEngine;
class QQuickWindow;

namespace uiutils::qmltool {

/// What a technician could not touch or read on a page that is shown, one line for each violation: places and sizes
/// once, what a theme can spoil for every theme, with its name. 0 dots per inch stand for the density of the screen.
QStringList auditPage(QQmlEngine* engine, QQuickWindow* window, int dotsPerInch);

} // namespace uiutils::qmltool
