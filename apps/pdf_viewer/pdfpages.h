#pragma once

#include "problem.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QVector>

#include <functional>
#include <memory>

namespace Poppler {
class Document;
}

namespace uiutils::viewer {

constexpr int mostPages = 20000;

/// The pages of a PDF file. Poppler does the work, and allows one thread at a time.
class PdfPages
{
public:
    /// The pages of a file with these contents, or null with the reason in `problem`.
    static std::unique_ptr<PdfPages> open(const QByteArray& contents, Problem* problem);
    ~PdfPages();
    Q_DISABLE_COPY_MOVE(PdfPages)

    /// The size of each page in points (1/72 inch), as it is to be read. A page that cannot be found counts too.
    QVector<QSizeF> sizes() const { return m_sizes; }
    /// Whether the file was damaged, so that something may be missing.
    bool isRepaired() const;

    /// A picture of a page (counted from 0) that fills `pixels`; it may be coarser, see renderedSize(). Null when the
    /// page cannot be drawn, when `isUnwanted`, which is called now and then, returns true, or when it takes too long.
    QImage render(int page, QSize pixels, const std::function<bool()>& isUnwanted) const;

    /// The size of a picture that is to fill `pixels`: smaller if that would take too much memory.
    static QSize renderedSize(QSize pixels);

private:
    explicit PdfPages(std::unique_ptr<Poppler::Document> document);

    std::unique_ptr<Poppler::Document> m_document;
    QVector<QSizeF> m_sizes;
};

} // namespace uiutils::viewer
