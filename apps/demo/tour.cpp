#include "tour.h"

#include "core/durablefile.h"
#include "instrumentroot.h"
#include "loopbackmeasurement.h"

#include <QBuffer>
#include <QImage>
#include <QQuickItem>
#include <QVariant>

namespace uiutils::demo {

namespace {

/// Time in which a window that is drawn at all has drawn a picture, in milliseconds.
constexpr int picturePatience = 20000;

/// The image as PNG; empty when there is no image.
QByteArray pngOf(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? bytes : QByteArray();
}

} // namespace

Tour::Tour(QQuickWindow* window, LoopbackMeasurement* measurement, const QString& pictures)
    : m_window(window)
    , m_measurement(measurement)
    , m_folder(pictures)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(picturePatience);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        fail(tr("The window was not drawn for %1 s. Keep it in sight.").arg(picturePatience / 1000));
    });
}

void Tour::start()
{
    QString error;
    if (!makeFolder(m_folder, &error)) {
        fail(error);
        return;
    }
    connect(m_measurement, &LoopbackMeasurement::sampleTaken, this, &Tour::watchSamples);
    connect(m_measurement, &LoopbackMeasurement::finished, this, &Tour::visitAll);
    connect(m_measurement, &LoopbackMeasurement::failed, this, &Tour::fail);
    connect(m_measurement, &LoopbackMeasurement::cancelled, this, [this] {
        fail(tr("The measurement was cancelled before the tour was over. Start the tour again."));
    });
    m_measurement->start();
}

void Tour::watchSamples()
{
    // The measure page in the midst of its work: half of the second quantity is there.
    if (m_measurement->throughput()->count() == m_measurement->throughputSamples() / 2)
        visit({MeasurePage, QStringLiteral("1-measuring")});
}

void Tour::visitAll()
{
    m_isMeasured = true;
    visit({MeasurePage, QStringLiteral("2-measured")});
    visit({ResultsPage, QStringLiteral("3-results")});
    visit({ReportPage, QStringLiteral("4-report"), true});
}

void Tour::visit(const Stop& stop)
{
    m_stops.enqueue(stop);
    if (!m_grab)
        visitNext();
}

void Tour::visitNext()
{
    if (m_isOver)
        return;
    if (m_stops.isEmpty()) {
        m_isOver = m_isMeasured;
        if (m_isOver)
            Q_EMIT finished();
        return;
    }
    const Stop stop = m_stops.dequeue();
    m_window->setProperty("page", stop.page);
    if (!stop.savesReport || saveReport())
        takePicture(stop.picture);
}

void Tour::takePicture(const QString& name)
{
    const QString path = m_folder + name + QStringLiteral(".png");
    m_grab = m_window->contentItem()->grabToImage();
    if (!m_grab) {
        fail(tr("The window gives no picture for %1. Run the demo without a display, with DISPLAY and "
                "WAYLAND_DISPLAY unset.")
                        .arg(path));
        return;
    }
    m_patience.start();
    // Queued, because the result must outlive its own signal.
    connect(
            m_grab.data(), &QQuickItemGrabResult::ready, this, [this, path] { keepPicture(path); },
            Qt::QueuedConnection);
}

void Tour::keepPicture(const QString& path)
{
    m_patience.stop();
    const QByteArray bytes = pngOf(m_grab->image());
    m_grab.clear();
    if (m_isOver)
        return;

    QString error;
    if (bytes.isEmpty()) {
        fail(tr("The window gave an empty picture for %1. Run the demo without a display, with DISPLAY and "
                "WAYLAND_DISPLAY unset.")
                        .arg(path));
    } else if (!writeFileDurably(path, bytes, &error)) {
        fail(error + QLatin1Char(' ')
                + tr("Check the free space and that you may write there, or name another folder with "
                     "--root."));
    } else {
        m_pictures += path;
        visitNext();
    }
}

bool Tour::saveReport()
{
    QVariant problem;
    if (!QMetaObject::invokeMethod(m_window, "saveReport", Q_RETURN_ARG(QVariant, problem))) {
        fail(tr("The main page cannot save a report; its QML files do not belong to this program. Install it "
                "anew."));
        return false;
    }
    if (problem.toString().isEmpty())
        return true;
    fail(problem.toString());
    return false;
}

void Tour::fail(const QString& text)
{
    if (m_isOver)
        return;
    m_isOver = true;
    m_patience.stop();
    Q_EMIT failed(text);
}

} // namespace uiutils::demo
