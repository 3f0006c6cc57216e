#include "tour.h"

#include "files/diskpath.h"
#include "instrumentroot.h"
#include "loopbackmeasurement.h"
#include "loopbackreport.h"
#include "report/nsreport.h"
#include "report/reportpreview.h"
#include "savefile.h"
#include "screencamera.h"

#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <QDir>
#include <QFileInfo>
#include <QQuickItem>
#include <QVariant>

#include <memory>
#include <utility>

namespace uiutils::demo {

namespace {

/// Between two attempts at a step, in milliseconds.
constexpr int pace = 15;
/// Time in which any window that is being drawn comes to every step, in milliseconds.
constexpr int patience = 30 * 1000;

/// What the tour changes in the settings of the report.
const char* const changedOwn[] = {"reportFormat", "reportName"};
const QString otherJob = QStringLiteral("WO-88217");
const QString otherName = QStringLiteral("Solheim");

/// What the tour changes in services.
const char* const changedSettings[] = {":config:basemgr:system:userInfo_lastName:",
        ":config:basemgr:system:customerInfo_name:", ":config:basemgr:system:customerInfo_address:",
        ":config:basemgr:system:customerInfo_circuitID:", ":config:basemgr:system:customerInfo_contact:",
        ":config:loopback:limits:maximumRtt:", ":config:unit:display:theme:", ":config:unit:display:language:",
        ":config:workflow_manager_app:workflow_manager_reg_module:activeWorkOrderId:",
        ":config:workflow_manager_app:workflow_manager_reg_module:activeWorkOrderWorkflowId:"};
/// The job in hand: each value and the action that sets it.
const struct
{
    const char* value;
    const char* action;
} jobValues[] = {{":result:basemgr:jobmanager:jobBAN:", ":action:basemgr:jobmanager:setJobBAN:"},
        {":result:basemgr:jobmanager:jobTechnician:", ":action:basemgr:jobmanager:setJobTechnician:"},
        {":result:basemgr:jobmanager:jobID:", ":action:basemgr:jobmanager:openJob:"}};

/// Ends when the event loop would have to wait for a service.
constexpr int serviceTimeout = 500;

/// What a report may be called, as a customer's office would: one that is not there yet, of letters.
QString freeName(const QString& name, const QString& folder)
{
    QString free = name;
    while (!QDir(folder).entryList({free + QStringLiteral(".*")}).isEmpty())
        free += QLatin1Char('b');
    return free;
}

bool isList(const QQuickItem* item)
{
    return item->inherits("QQuickListView");
}

KIVClientInterface* clientOf(const QString& id)
{
    const QString service = id.section(QLatin1Char(':'), 2, 2);
    return KIVClientInterface::getSessionBusClient(service == QLatin1String("workflow_manager_app")
                    ? QStringLiteral("orb.base.workflow_manager_app")
                    : service);
}

KIVClientItem* itemOf(const QString& id)
{
    KIVClientInterface* const client = clientOf(id);
    return client ? client->getItem(id) : nullptr;
}

bool isQuestionOpen()
{
    const KIVNotification* const dialog = KIVNotificationModelManager::instance()->currentDialog();
    return dialog && dialog->kind() == KIVNotification::Request;
}

bool isAnyDialogOpen()
{
    return KIVNotificationModelManager::instance()->currentDialog();
}

} // namespace

Tour::Tour(QQuickWindow* window, LoopbackMeasurement* measurement, LoopbackReport* report, ScreenCamera* camera,
        const QString& pictures)
    : m_window(window)
    , m_measurement(measurement)
    , m_report(report)
    , m_camera(camera)
    , m_folder(pictures)
    , m_touch(window)
    , m_typist(window, &m_touch)
{
    m_clock.setInterval(pace);
    connect(&m_clock, &QTimer::timeout, this, &Tour::step);
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        fail(tr("The tour waited for %1 s in vain: %2. Keep the window in sight, and leave it alone.")
                        .arg(patience / 1000)
                        .arg(m_steps.isEmpty() ? QString() : m_steps.head().what));
    });
}

void Tour::start()
{
    QString error;
    if (!makeFolder(m_folder, &error)) {
        fail(error);
        return;
    }
    connect(m_measurement, &LoopbackMeasurement::failed, this, &Tour::fail);
    connect(m_camera, &ScreenCamera::failed, this, &Tour::fail);
    remember();
    plan();
    m_patience.start();
    m_clock.start();
}

void Tour::plan()
{
    planJob();
    planRun();
    planReport();
    planRest();
}

void Tour::planJob()
{
    picture(QStringLiteral("01-home"));
    press(QStringLiteral("peopleButton"));
    type(QStringLiteral("userInfo_lastName/field"), otherName);
    picture(QStringLiteral("02-people"));
    press(QStringLiteral("home"));
    press(QStringLiteral("jobsButton"));
    type(QStringLiteral("jobSearch/searchField"), QStringLiteral("lin 1g"));
    picture(QStringLiteral("03-jobs"));
    press(QStringLiteral("job ") + otherJob);
    waitFor(tr("the job is open"), [] {
        const KIVClientItem* const job = itemOf(QStringLiteral(":result:basemgr:jobmanager:jobID:"));
        return job && job->getValue().toString() == otherJob;
    });
    press(QStringLiteral("setup"));
    press(QStringLiteral("maximumRtt/moreButton"));
    picture(QStringLiteral("04-setup"));
    press(QStringLiteral("reviewButton"));
    picture(QStringLiteral("05-review"));
    press(QStringLiteral("applyButton"));
}

void Tour::planRun()
{
    press(QStringLiteral("run"));
    press(QStringLiteral("startButton"));
    waitFor(tr("half of the run"),
            [this] { return m_measurement->throughput()->count() >= m_measurement->throughputSamples() / 2; });
    picture(QStringLiteral("06-running"));
    waitFor(tr("the end of the run"), [this] { return m_measurement->state() == LoopbackMeasurement::Finished; });
    picture(QStringLiteral("07-measured"));
    press(QStringLiteral("results"));
    press(QStringLiteral("orderChoice/#2"));
    picture(QStringLiteral("08-results"));
    press(QStringLiteral("failuresChoice/#1"));
    picture(QStringLiteral("09-failures"));
    press(QStringLiteral("failuresChoice/#0"));
}

void Tour::planReport()
{
    press(QStringLiteral("report"));
    type(QStringLiteral("nameEntry/field"),
            freeName(QStringLiteral("lindhof"), QFileInfo(diskPath(m_report->getReportFilePath())).path()));
    choose(QStringLiteral("formatEntry/box"), [this] {
        return m_report->getSetting(QStringLiteral("reportFormat"))->enumLabelForValue(NSReport::REPORT_FORMAT_ALL);
    });
    waitFor(tr("the format of all files"), [this] { return m_report->isAll(); });
    picture(QStringLiteral("10-report"));
    press(QStringLiteral("previewButton"));
    waitFor(tr("the pages of the preview"), [this] {
        const auto* const preview = m_window->findChild<ReportPreview*>();
        return preview && !preview->isBusy() && preview->pageCount() > 0;
    });
    picture(QStringLiteral("11-preview"));
    press(QStringLiteral("closeButton"));
    press(QStringLiteral("saveButton"));
    waitFor(tr("the report is saved"), [this] { return m_report->savedFiles().size() >= 5 && !m_report->isSaving(); });
    press(QStringLiteral("saveButton"));
    waitFor(tr("a question before files are overwritten"), isQuestionOpen);
    picture(QStringLiteral("12-question"));
    waitFor(tr("the answer"), [this] {
        if (QQuickItem* const button = m_touch.find(QStringLiteral("rejectButton")); button && isAnyDialogOpen())
            m_touch.press(button);
        return !isAnyDialogOpen();
    });
}

void Tour::planRest()
{
    press(QStringLiteral("files"));
    picture(QStringLiteral("13-files"));
    press(QStringLiteral("fileList/#0"));
    picture(QStringLiteral("14-file"));
    press(QStringLiteral("backButton"));
    press(QStringLiteral("home"));
    press(QStringLiteral("settingsTile"));
    press(QStringLiteral("cameraButton"));
    waitFor(tr("the screenshot"), [this] { return !m_camera->pictures().isEmpty(); });
    press(QStringLiteral("themeChoice/#1"));
    picture(QStringLiteral("15-settings"));
    press(QStringLiteral("themeChoice/#2"));
    picture(QStringLiteral("16-sunlight"));
    press(QStringLiteral("themeChoice/#0"));
    press(QStringLiteral("languageRow"));
    press(QStringLiteral("language ar"));
    press(QStringLiteral("home"));
    picture(QStringLiteral("17-arabic"));
    press(QStringLiteral("settingsTile"));
    press(QStringLiteral("languageRow"));
    press(QStringLiteral("language en"));
    press(QStringLiteral("bellItem"));
    picture(QStringLiteral("18-notifications"));
    press(QStringLiteral("home"));
    press(QStringLiteral("deskHandle"));
    waitFor(tr("the drawer of the desk"), [this] {
        const QObject* const drawer = m_window->findChild<QObject*>(QStringLiteral("deskDrawer"));
        return drawer && drawer->property("opened").toBool();
    });
    picture(QStringLiteral("19-desk"));
}

void Tour::press(const QString& name, double along)
{
    m_steps.enqueue({tr("\"%1\" can be pressed").arg(name), [this, name, along] {
                         QQuickItem* const item = isAnyDialogOpen() ? nullptr : m_touch.find(name);
                         if (item)
                             m_touch.press(item, along);
                         return item != nullptr;
                     }});
}

void Tour::type(const QString& field, const QString& text)
{
    // The cursor is to be behind what is there.
    constexpr double end = 0.95;
    press(field, end);
    waitFor(tr("\"%1\" is typed").arg(text), [this, text] { return m_typist.type(text); });
}

/// Rows that are not in sight are dragged there.
void Tour::choose(const QString& entry, const std::function<QString()>& choice)
{
    press(entry);
    waitFor(tr("\"%1\" can be pressed").arg(entry), [this, choice] {
        QQuickItem* const list = m_touch.findIf(isList);
        if (!list || list->property("moving").toBool())
            return false;
        QQuickItem* const row = m_touch.find(QLatin1Char('=') + choice());
        if (row)
            m_touch.press(row);
        else
            m_touch.drag(list, {0, -list->height() / 3});
        return row != nullptr;
    });
}

void Tour::waitFor(const QString& what, const std::function<bool()>& condition)
{
    m_steps.enqueue({what, condition});
}

void Tour::picture(const QString& name)
{
    const auto grab = std::make_shared<QSharedPointer<QQuickItemGrabResult>>();
    const auto isReady = std::make_shared<bool>(false);
    const QString path = m_folder + name + QStringLiteral(".png");
    // Nothing of the step before is pressed any more.
    m_steps.enqueue({tr("a picture of the window can be taken"), [this, grab, isReady] {
                         *grab = m_window->contentItem()->grabToImage();
                         if (*grab)
                             connect(grab->data(), &QQuickItemGrabResult::ready, this, [isReady] { *isReady = true; });
                         return !grab->isNull();
                     }});
    m_steps.enqueue({tr("the picture %1").arg(path),
            [this, grab, isReady, path] { return *isReady && keepPicture(path, *grab); }});
}

bool Tour::keepPicture(const QString& path, const QSharedPointer<QQuickItemGrabResult>& grab)
{
    const QByteArray bytes = pngOf(grab->image());
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
    }
    return true;
}

void Tour::step()
{
    if (m_touch.isPressed()) {
        m_touch.goOn();
        return;
    }
    if (m_isOver)
        return;
    if (m_steps.isEmpty()) {
        m_isOver = true;
        m_clock.stop();
        m_patience.stop();
        restore();
        Q_EMIT finished();
        return;
    }
    if (!m_steps.head().attempt() || m_isOver)
        return;
    m_steps.dequeue();
    m_patience.start();
}

void Tour::remember()
{
    for (const char* id : changedSettings) {
        if (const KIVClientItem* const item = itemOf(QLatin1String(id)))
            m_before.insert(QLatin1String(id), item->getValue());
    }
    for (const char* name : changedOwn)
        m_ownBefore.insert(QLatin1String(name), m_report->getSetting(QLatin1String(name))->getValue());
    for (const auto& job : jobValues) {
        if (const KIVClientItem* const item = itemOf(QLatin1String(job.value)))
            m_before.insert(QLatin1String(job.value), item->getValue());
    }
}

/// The tour is the user's guest.
void Tour::restore()
{
    const QMap<QString, QVariant> own = std::exchange(m_ownBefore, {});
    for (auto it = own.cbegin(); it != own.cend(); ++it)
        m_report->getSetting(it.key())->setValue(it.value());
    if (!own.isEmpty())
        m_report->keepSettings();
    const QMap<QString, QVariant> before = std::exchange(m_before, {});
    for (const char* id : changedSettings) {
        const auto value = before.constFind(QLatin1String(id));
        if (value != before.cend() && clientOf(value.key()))
            clientOf(value.key())->setItem(value.key(), *value);
    }
    for (const auto& job : jobValues) {
        const QString value = before.value(QLatin1String(job.value)).toString();
        QString reply;
        if (!value.isEmpty())
            clientOf(QLatin1String(job.action))->sendAction(QLatin1String(job.action), value, &reply, serviceTimeout);
    }
}

void Tour::fail(const QString& text)
{
    if (m_isOver)
        return;
    m_isOver = true;
    m_clock.stop();
    m_patience.stop();
    restore();
    Q_EMIT failed(text);
}

} // namespace uiutils::demo
