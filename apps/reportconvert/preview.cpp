#include "preview.h"

#include "document/reporttemplate.h"
#include "previewwindow.h"
#include "writers/html/templatetopdfwriter.h"
#include "writers/pages/reportpainter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QTimer>

namespace uiutils::convert {

namespace {

constexpr qreal dotsOfAPoint = 150.0 / 72;
/// How soon a signal closes the window.
constexpr int signalMs = 200;

QByteArray pictureOf(ReportPainter& pages, int page)
{
    QImage image((pages.pageSize(page) * dotsOfAPoint).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(dotsOfAPoint, dotsOfAPoint);
    pages.paint(painter, page);
    painter.end();
    QByteArray bytes;
    QBuffer file(&bytes);
    image.save(&file, "PNG");
    return bytes;
}

void writePictures(ReportPainter& pages, Generation& generation)
{
    for (int page = 0; page < pages.pageCount(); ++page) {
        if (!generation.mayContinue(page, pages.pageCount()))
            return;
        generation.writePart(QStringLiteral("page-%1.png").arg(page + 1), pictureOf(pages, page));
    }
}

void showWindow(ReportPainter& pages, Generation& generation)
{
    PreviewWindow window(pages);
    window.show();
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &window, [&] {
        if (!generation.mayContinue(0, 0))
            window.close();
    });
    watch.start(signalMs);
    QCoreApplication::exec();
}

/// Nothing for a file to hold.
QByteArray previewOf(const ReportTemplate& report, Generation& generation)
{
    QList<ReportItem*> items;
    {
        TemplateToPdfWriter writer(report, &items);
        setUpPages(writer, report, generation);
        writer.collectItems();
        ReportPainter pages(writer.pages());
        while (generation.mayContinue(0, 0) && pages.layOutMore()) { }
        if (pages.pageCount() > 0)
            generation.packing == Packing::Files ? writePictures(pages, generation) : showWindow(pages, generation);
    }
    qDeleteAll(items);
    return QByteArray();
}

} // namespace

const Format& previewFormat()
{
    static const Format format {QLatin1String("preview"), QLatin1String("png"), "",
            Format::HasTitle | Format::IsPage | Format::IsPaper | Format::HasTables, previewOf};
    return format;
}

} // namespace uiutils::convert
