#pragma once

#include <QImage>
#include <QStringList>

class QQuickWindow;

namespace uiutils::qmltool {

/// The texts that a window shows, a line each, in the order in which they are painted: the item's name and those of the
/// own components and named items that it stands in, then the text.
QStringList shownTexts(const QQuickWindow* window);

/// What differs: the lines of both in their order, those of `expected` alone after "- ", those of `actual` alone after
/// "+ "; lines that both have are left out.
QStringList lineDifferences(const QStringList& expected, const QStringList& actual);

/// How two pictures differ, in words; empty when nobody would see a difference. Machines draw the edges of letters a
/// little differently.
QString pictureDifference(const QImage& expected, const QImage& actual);

} // namespace uiutils::qmltool
