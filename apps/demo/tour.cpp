#include "tour.h"

#include "instrumentroot.h"
#include "loopbackmeasurement.h"
#include "loopbackreport.h"
#include "report/nsreport.h"
#include "savefile.h"
#include "screencamera.h"

#include <kiv/kivnotificationmodelmanager.h>

#include <QLocale>
#include <QQuickItem>
#include <QVariant>

#include <utility>

namespace uiutils::demo {

namespace {

/// Time in which any window that is being drawn gives a picture, in milliseconds.
constexpr int picturePatience = 20000;

const QString formatSetting = QStringLiteral("reportFormat");

/// The text of the open dialog; empty without one.
QString openDialogText()
{
    const KIVNotification* const dialog = KIVNotificationModelManager::instance()->currentDialog();
    return dialog ? dialog->msg() : QString();
}

void closeDialogs()
{
    KIVNotificationModelManager* const dialogs = KIVNotificationModelManager::instance();
    while (dialogs->currentDialog())
        dialogs->reject();
}

} // namespace

Tour::Tour(QQuickWindow* window, LoopbackMeasurement* measurement, LoopbackReport* report, ScreenCamera* camera,
        const QString& pictures)
    : m_window(window)
    , m_measurement(measurement)
    , m_report(report)
    , m_camera(camera)
    , m_folder(pictures)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(picturePatience);
    connect(&m_patience, &QTimer::timeout, this,
            [this] { fail(tr("The window was not drawn for %1 s. Keep it in sight.").arg(picturePatience / 1000)); });
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
    connect(m_camera, &ScreenCamera::failed, this, &Tour::fail);
    connect(m_measurement, &LoopbackMeasurement::cancelled, this,
            [this] { fail(tr("The measurement was cancelled before the tour was over. Start the tour again.")); });
    m_measurement->start();
}

void Tour::watchSamples()
{
    // The measure page during its work: half of the second quantity has been taken.
    if (m_measurement->throughput()->count() == m_measurement->throughputSamples() / 2)
        visit({MeasurePage, QStringLiteral("1-measuring")});
}

void Tour::visitAll()
{
    m_isMeasured = true;
    visit({MeasurePage, QStringLiteral("2-measured")});
    visit({ResultsPage, QStringLiteral("3-results"), &Tour::takeScreenshot});
    visit({SettingsPage, QStringLiteral("4-changing"), &Tour::changeSettings});
    visit({SettingsPage, QStringLiteral("5-settings"), &Tour::applySettings});
    visit({ReportPage, QStringLiteral("6-report"), &Tour::saveReport});
    visit({ReportPage, QStringLiteral("7-question"), &Tour::saveAgain});
    visit({GalleryPage, QStringLiteral("8-entries"), &Tour::leaveQuestion});
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
        if (!m_isMeasured || !restoreSettings())
            return;
        m_isOver = true;
        Q_EMIT finished();
        return;
    }
    const Stop stop = m_stops.dequeue();
    m_window->setProperty("page", stop.page);
    if (!stop.deed || (this->*stop.deed)())
        takePicture(stop.picture);
}

void Tour::takePicture(const QString& name)
{
    const QString path = m_folder + name + QStringLiteral(".png");
    m_grab = m_window->contentItem()->grabToImage();
    if (!m_grab) {
        fail(tr("No picture of the window could be taken for %1. Run the demo without a display, with DISPLAY and "
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
        fail(tr("The picture of the window for %1 is empty. Run the demo without a display, with DISPLAY and "
                "WAYLAND_DISPLAY unset.")
                        .arg(path));
    } else if (!saveFile(path, bytes, &error)) {
        fail(error + QLatin1Char(' ')
                + tr("Check the free space and that you may write there, or name another folder with "
                     "--root."));
    } else {
        m_pictures += path;
        visitNext();
    }
}

/// It is stored before the tour's own picture of the page, because windows give pictures in the order of the requests.
bool Tour::takeScreenshot()
{
    m_camera->shoot(m_window);
    return !m_isOver;
}

bool Tour::saveReport()
{
    KivData* const format = m_report->getSetting(formatSetting);
    m_formatBefore = format->getValue();
    format->setValue(int(NSReport::REPORT_FORMAT_ALL));
    bool isSaved = false;
    if (!pressSave(&isSaved))
        return false;
    if (!isSaved)
        fail(tr("The report was not saved. %1").arg(openDialogText()));
    return isSaved;
}

bool Tour::saveAgain()
{
    bool isSaved = false;
    if (!pressSave(&isSaved))
        return false;
    const KIVNotification* const question = KIVNotificationModelManager::instance()->currentDialog();
    if (!isSaved && question && question->kind() == KIVNotification::Request)
        return true;
    fail(tr("An existing report was saved again without a question."));
    return false;
}

bool Tour::leaveQuestion()
{
    closeDialogs();
    return true;
}

bool Tour::pressSave(bool* isSaved)
{
    QVariant saved;
    if (!QMetaObject::invokeMethod(m_window, "saveReport", Q_RETURN_ARG(QVariant, saved)))
        return failAsForeign();
    *isSaved = saved.toBool();
    return true;
}

bool Tour::changeSettings()
{
    return enter(QStringLiteral(":config:basemgr:system:userInfo_lastName:"), QStringLiteral("Solheim"))
            && enter(QStringLiteral(":config:loopback:limits:maximumRtt:"), QLocale().toString(2));
}

bool Tour::applySettings()
{
    return doOnPage("applySettings");
}

bool Tour::restoreSettings()
{
    if (m_formatBefore.isValid()) {
        m_report->getSetting(formatSetting)->setValue(std::exchange(m_formatBefore, {}));
        m_report->keepSettings();
    }
    const QMap<QString, QString> before = std::exchange(m_before, {});
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (!enter(it.key(), it.value()))
            return false;
    }
    m_before.clear();
    return before.isEmpty() || applySettings();
}

bool Tour::enter(const QString& setting, const QString& text)
{
    QVariant before;
    if (!QMetaObject::invokeMethod(m_window, "enterSetting", Q_RETURN_ARG(QVariant, before), Q_ARG(QVariant, setting),
                Q_ARG(QVariant, text)))
        return failAsForeign();
    // The user's own services may lack the setting.
    if (before.isValid())
        m_before.insert(setting, before.toString());
    return true;
}

bool Tour::doOnPage(const char* function)
{
    QVariant problem;
    if (!QMetaObject::invokeMethod(m_window, function, Q_RETURN_ARG(QVariant, problem)))
        return failAsForeign();
    if (problem.toString().isEmpty())
        return true;
    fail(problem.toString());
    return false;
}

bool Tour::failAsForeign()
{
    fail(tr("The main page lacks what the tour uses; its QML files do not belong to this program. Install it again."));
    return false;
}

void Tour::fail(const QString& text)
{
    if (m_isOver)
        return;
    m_isOver = true;
    m_patience.stop();
    restoreSettings();
    Q_EMIT failed(text);
}

} // namespace uiutils::demo
