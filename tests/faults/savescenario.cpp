// Saves as a page does, as often and in such places as faultproof.py orders.
//
// Each line on standard input is an order, a JSON object; each is answered by a line on standard output. An order is
// carried out in a child process, which starts with everything ready (fonts, services, document) and may be killed. With
// the argument "bus" the base manager lives in a process of its own, on a bus that only these processes know.

#include "document/reportmetadata.h"
#include "module/uiutilsmodule.h"
#include "report/drafts/reportdraft.h"
#include "report/nsreport.h"
#include "report/report.h"
#include "writers/text/textreport.h"

#include <bus/busbackend.h>
#include <bus/buspublisher.h>
#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QSocketNotifier>
#include <QTemporaryDir>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <optional>
#include <string>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// An order that takes longer than this hangs.
constexpr unsigned patienceSeconds = 60;
/// The tracer's answer to a call that the system does not have.
constexpr long tracerIsHere = 7;
constexpr int noSuchPolicy = 99;

const QString listItem = ":config:basemgr:system:ss_nosync:stringARRAY:";

QStringList logLines;

/// In memory: lines on standard error would be writes of the order.
void keepLine(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        logLines << text;
}

/// The controller of a page with a small measurement.
class PageReport : public Report
{
public:
    PageReport()
    {
        auto* note = new StringUiData(this);
        note->setAttributes({{"name", "note"}, {"type", UiData::TYPE_STRING}, {"label", "Note"}});
        addSetting(note);
        for (int format = NSReport::REPORT_FORMAT_PDF; format <= NSReport::REPORT_FORMAT_ALL; ++format)
            setFormatApplicable(format, true);
        setTag("otdr");
        setFolder("otdr");
    }

    /// Everything that a user does before the report is saved.
    void getReady(const QJsonObject& order)
    {
        m_variant = order.value("variant").toString();
        m_filler = order.value("filler").toInt();
        setTitle("Fibre 12 " + m_variant);
        setSubject(m_variant);
        metadata().setInfo(QString("variant"), m_variant);
        setCompressionEnabled(order.value("compressed").toBool());
        slotCreateSettings();
        getSetting("note")->setValue(m_variant);
        getSetting("reportName")->setValue("Fibre 12");
        getSetting("reportFormat")->setValue(order.value("format").toInt());
        getSetting("reportSync_SS")->setValue(order.value("sync").toBool(true));
        fill();
    }

    QString generateTxtReport() override { return uiutils::reportText(document()) + filler(); }
    QString generateJsonReport() override { return uiutils::reportJson(document()); }

    using Report::saveSettings;

    QStringList written;
    bool hasLoaded = false;

protected:
    void settingsLoaded() override { hasLoaded = true; }
    void reportWritten(const QString& path) override { written << path; }

private:
    void fill()
    {
        ReportTemplate& page = document();
        page.beginReport("otdr");
        page.setKey("title", getTitle());
        page.beginSection("result", "Result");
        page.beginTable("events", "Events");
        for (int event = 1; event <= 12; ++event)
            page.addRow("event", QString("Event %1").arg(event), QString("%1 km, %2").arg(event * 1.7).arg(m_variant), {});
        page.endTable();
        page.endSection();
        page.endReport();
    }

    /// Makes the report as large as an order says, in different lines.
    QString filler() const
    {
        QString text;
        for (int line = 0; text.size() < m_filler; ++line)
            text += QString("%1 %2 %3\n").arg(line).arg(m_variant).arg(line * 2654435761u);
        return text;
    }

    QString m_variant;
    int m_filler = 0;
};

/// Returns when the tracer sees every call of this process.
void waitForTracer()
{
    while (::syscall(SYS_sched_get_priority_max, noSuchPolicy) != tracerIsHere)
        ::usleep(200);
}

void tellTracerOfEnd()
{
    ::syscall(SYS_sched_get_priority_min, noSuchPolicy);
}

QJsonObject texts(int kind, const QString& title, const QString& text)
{
    return {{"kind", kind}, {"title", title}, {"text", text}};
}

/// The contents of the tray and of dialogs; the dialogs are answered.
QJsonObject told()
{
    auto* manager = KIVNotificationModelManager::instance();
    QJsonArray tray;
    for (int row = 0; row < manager->count(); ++row) {
        const auto value = [&](int role) { return manager->data(manager->index(row), role); };
        tray.append(texts(value(KIVNotificationModelManager::KindRole).toInt(),
                value(KIVNotificationModelManager::LongLabelRole).toString(),
                value(KIVNotificationModelManager::MsgRole).toString()));
    }
    QJsonArray dialogs;
    while (const KIVNotification* dialog = manager->currentDialog()) {
        dialogs.append(texts(dialog->kind(), dialog->longLabel(), dialog->msg()));
        manager->reject();
    }
    return {{"tray", tray}, {"dialogs", dialogs}};
}

bool saveRecord(const QJsonObject& order)
{
    ReportMetadata record;
    record.setMetadataName("Fibre 12.pdf");
    record.updateMetadataPathBase("/cust/public/reports/otdr/");
    record.setType("result");
    record.setFormat("PDF");
    record.setTimeStamp("2026-01-02T03:04:05Z");
    record.setInfo(QString("variant"), order.value("variant").toString());
    return record.saveMetadataToFile();
}

/// What was found is given back, and is replaced.
bool saveDraft(const QJsonObject& order)
{
    uiutils::ReportDraft draft;
    draft.setDraftId("otdr");
    // What cannot be read stays, and the log says so.
    if (!draft.restore())
        return false;
    draft.setData({{"variant", order.value("variant").toString()}, {"values", QString(20'000, 'x')}});
    return draft.flush();
}

/// The order itself; returns what the library reports of it.
QJsonObject perform(PageReport& report, const QJsonObject& order)
{
    const QString kind = order.value("kind").toString();
    QJsonArray generated;
    QObject::connect(&report, &Report::reportGenerated, [&](const QString& name) { generated.append(name); });
    if (order.contains("preloaded"))
        qputenv("UIUTILS_FAULT", QFile::encodeName(order.value("preloaded").toString()));
    if (order.value("traced").toBool())
        waitForTracer();
    QJsonObject claim;
    if (kind == "settings")
        report.saveSettings();
    else if (kind == "record")
        claim.insert("saved", saveRecord(order));
    else if (kind == "draft")
        claim.insert("saved", saveDraft(order));
    else if (kind == "list")
        report.addReportToNoSyncList("/cust/public/reports/otdr/" + order.value("variant").toString() + ".pdf");
    else
        claim.insert("saved", report.save(order.value("overwrite").toBool()));
    // Objects released by deleteLater() take their dialogs with them, and services answer later.
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    tellTracerOfEnd();
    claim.insert("generated", generated);
    claim.insert("written", QJsonArray::fromStringList(report.written));
    claim.insert("told", told());
    claim.insert("refusal", KIVClientInterface::getBaseMgrClient()->getLastError());
    claim.insert("log", QJsonArray::fromStringList(logLines));
    return claim;
}

// --- The base manager ---

using kiv::embedded::EmbeddedBackend;
using kiv::embedded::EmbeddedService;

void load(EmbeddedBackend& backend)
{
    QString problem;
    if (!backend.loadFile(UIUTILS_SERVICES_DIR "/basemgr.service.json", &problem))
        qFatal("%s", qUtf8Printable(problem));
}

void setUp(EmbeddedService* basemgr, const QJsonObject& order)
{
    basemgr->setValue(":config:basemgr:system:saveLocation:", order.value("location").toInt());
    basemgr->setValue(":result:basemgr:system:usbAttached:", order.value("stick").toBool());
    basemgr->setMounted("/mnt/usb/", order.value("stick").toBool());
}

QJsonArray listToldTo(const EmbeddedService* basemgr)
{
    return QJsonArray::fromStringList(basemgr->item(listItem)->getValue().toStringList());
}

// Not read() and write(), which may be made to fail. A message is never empty, because that is how the end arrives.

void send(int socket, const QJsonObject& message)
{
    const QByteArray text = QJsonDocument(message).toJson(QJsonDocument::Compact);
    ::send(socket, text.constData(), size_t(text.size()), MSG_NOSIGNAL);
}

/// Empty at the end.
QJsonObject received(int socket)
{
    QByteArray text(1 << 20, '\0');
    text.truncate(int(std::max<ssize_t>(0, ::recv(socket, text.data(), size_t(text.size()), 0))));
    return QJsonDocument::fromJson(text).object();
}

/// For each order a base manager that knows of nothing before, on the bus from the answer until the next message, which
/// is answered by what it was told. A connection of its own gets no late requests of an earlier child.
[[noreturn]] void runManager(int argc, char** argv, int orders)
{
    const QCoreApplication application(argc, argv);
    const QSocketNotifier further(orders, QSocketNotifier::Read);
    for (QJsonObject order = received(orders); !order.isEmpty(); order = received(orders)) {
        EmbeddedBackend backend;
        load(backend);
        EmbeddedService* basemgr = backend.service("basemgr");
        setUp(basemgr, order);
        kiv::bus::BusPublisher publisher;
        QObject::connect(&publisher, &kiv::bus::BusPublisher::published, [&] { send(orders, {{"published", true}}); });
        QObject::connect(&further, &QSocketNotifier::activated, &publisher, &QCoreApplication::quit);
        if (!publisher.publish(basemgr))
            qFatal("the service is not published");
        QCoreApplication::exec();
        received(orders);
        send(orders, {{"list", listToldTo(basemgr)}});
    }
    ::_exit(0);
}

pid_t forked(int (&ends)[2], int type)
{
    if (::socketpair(AF_UNIX, type | SOCK_CLOEXEC, 0, ends) != 0)
        qFatal("no socket");
    const pid_t child = ::fork();
    if (child < 0)
        qFatal("no process");
    ::close(ends[child == 0 ? 0 : 1]);
    return child;
}

/// Starts a bus, which ends with this process.
void startBus()
{
    FILE* bus = ::popen("exec setpriv --pdeathsig KILL dbus-daemon --session --nofork --nopidfile --print-address "
                        "--address=unix:dir=\"$XDG_RUNTIME_DIR\"", "r");
    char address[256] {};
    if (!bus || !std::fgets(address, sizeof address, bus))
        qFatal("no bus");
    address[std::strcspn(address, "\n")] = '\0';
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

/// Returns the socket for its orders. To be called before there is an event loop, which processes must not share.
int startManager(int argc, char** argv)
{
    startBus();
    int ends[2] {};
    if (forked(ends, SOCK_SEQPACKET) == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        runManager(argc, argv, ends[1]);
    }
    return ends[0];
}

// --- The processes that save ---

void setUpProcess(const QJsonObject& order)
{
    const QJsonObject environment = order.value("environment").toObject();
    for (auto it = environment.begin(); it != environment.end(); ++it)
        qputenv(it.key().toLatin1().constData(), QFile::encodeName(it.value().toString()));
    // Children of one process would all choose the same names.
    QRandomGenerator::global()->discard(static_cast<unsigned long long>(::getpid()) % 100000);
}

/// Where the base manager of all orders is: in this process, or behind the socket.
struct Manager
{
    EmbeddedService* here = nullptr;
    int elsewhere = -1;
};

/// Connections to a bus do not survive a fork.
void connectToBus()
{
    auto* backend = new kiv::bus::BusBackend;
    if (!backend->waitForServices(patienceSeconds * 1000 / 2))
        qFatal("no services: %s", qUtf8Printable(backend->problem()));
}

[[noreturn]] void runChild(const Manager& manager, PageReport& report, const QJsonObject& order, int answer)
{
    ::alarm(patienceSeconds);
    ::prctl(PR_SET_PTRACER, PR_SET_PTRACER_ANY);
    if (manager.here)
        setUp(manager.here, order);
    else
        connectToBus();
    setUpProcess(order);
    report.getReady(order);
    QCoreApplication::processEvents();
    logLines.clear();
    // A tracer that attached earlier would count calls that are not part of the order.
    ::send(answer, "", 1, 0);
    QJsonObject claim = perform(report, order);
    if (manager.here)
        claim.insert("list", listToldTo(manager.here));
    send(answer, claim);
    ::_exit(0);
}

/// Sends to the base manager in another process, if that is where it is, and returns the answer.
QJsonObject ask(const Manager& manager, const QJsonObject& message)
{
    if (manager.here)
        return {};
    send(manager.elsewhere, message);
    const QJsonObject answer = received(manager.elsewhere);
    if (answer.isEmpty())
        qFatal("the base manager has ended");
    return answer;
}

void say(const QJsonObject& line)
{
    const QByteArray text = QJsonDocument(line).toJson(QJsonDocument::Compact);
    std::printf("%s\n", text.constData());
    std::fflush(stdout);
}

void serve(const Manager& manager, PageReport& report, const QJsonObject& order)
{
    ask(manager, order);
    int ends[2] {};
    const pid_t child = forked(ends, SOCK_SEQPACKET);
    if (child == 0)
        runChild(manager, report, order, ends[1]);
    char isReady = 0;
    ::recv(ends[0], &isReady, 1, 0);
    say({{"process", int(child)}});
    QJsonObject claim = received(ends[0]);
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    if (!manager.here)
        claim.insert("list", ask(manager, {{"ended", true}}).value("list"));
    say({{"signal", WIFSIGNALED(status) ? WTERMSIG(status) : 0},
            {"exit", WIFEXITED(status) ? WEXITSTATUS(status) : -1},
            {"claim", claim}});
}

/// Loads fonts and everything else that is loaded once. A controller reads its settings some time after its
/// construction.
void warmUp(PageReport& report)
{
    report.getReady({});
    if (report.generatePDFReport().isEmpty())
        qFatal("no pages");
    report.hasLoaded = false;
    while (!report.hasLoaded)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace

int main(int argc, char** argv)
{
    const bool isOnBus = argc > 1 && std::strcmp(argv[1], "bus") == 0;
    Manager manager;
    if (isOnBus)
        manager.elsewhere = startManager(argc, argv);
    const QGuiApplication application(argc, argv);
    std::optional<EmbeddedBackend> backend;
    if (!isOnBus) {
        load(backend.emplace());
        manager.here = backend->service("basemgr");
    }
    const QTemporaryDir root;
    qputenv("UIUTILS_ROOT", QFile::encodeName(root.path()));
    PageReport report;
    warmUp(report);
    qInstallMessageHandler(keepLine);
    std::string line;
    while (std::getline(std::cin, line))
        serve(manager, report, QJsonDocument::fromJson(QByteArray::fromStdString(line)).object());
    return 0;
}
