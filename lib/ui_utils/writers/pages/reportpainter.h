#pragma once

#include "core/uiutils_export.h"

#include <QSizeF>

#include <memory>

class QPainter;
class ReportPDF;

namespace uiutils {
class ReportPainterPrivate;
}

/// Paints the pages of a ReportPDF, on a screen or on paper: the same pages as in its files, without making a file.
///
/// Call layOutMore() until it returns false, then paint the pages in any order. It needs a QGuiApplication. Several
/// painters may have the same items, also while a file is printed; that costs a new layout each time that another one
/// was used.
class UIUTILS_EXPORT ReportPainter
{
public:
    /// Takes what `pages` is to show as it is set now; the items must outlive the painter. `paper` is the size of the
    /// pages in points, 1/72 inch, at least 200 along each side; if it is empty, pages have the size that files have.
    explicit ReportPainter(const ReportPDF& pages, const QSizeF& paper = QSizeF());
    ~ReportPainter();
    Q_DISABLE_COPY_MOVE(ReportPainter)

    /// Does a part of the layout: about one item. Returns whether more is to be done. So a page can go on with other
    /// work meanwhile, and one that is not wanted any more can be deleted.
    bool layOutMore();
    /// 0 until layOutMore() has returned false, and without a QGuiApplication.
    int pageCount() const;

    /// The size of a page in points. `page` counts from 0.
    QSizeF pageSize(int page) const;
    /// Paints a page, counted from 0, from (0, 0) to pageSize(): the painter's units are to be points. What is under it
    /// shows through. Paints nothing if there is no such page.
    void paint(QPainter& painter, int page);

private:
    const std::unique_ptr<uiutils::ReportPainterPrivate> d;
};
