// Saves as a page does, as often and in such places as faultproof.py orders.
//
// Each line on standard input is an order, a JSON object; each is answered by a line on standard output. An order is
// carried out in a child process, which starts with everything ready (fonts, services, document) and may be killed.

#include "document/reportmetadata.h"
#include "module/uiutilsmodule.h"
#include "report/nsreport.h"
#include "report/report.h"
#include "writers/text/textreport.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivnotificationmodelmanager.h>

#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <cstdio>
#include <iostream>
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

QJsonValue listToldToBaseManager()
{
    const auto* client = KIVClientInterface::getBaseMgrClient();
    const auto* item = client->getItem(":config:basemgr:system:ss_nosync:stringARRAY:");
    return QJsonArray::fromStringList(item->getValue().toStringList());
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
    claim.insert("list", listToldToBaseManager());
    claim.insert("log", QJsonArray::fromStringList(logLines));
    return claim;
}

void setUp(const kiv::embedded::EmbeddedBackend& backend, const QJsonObject& order)
{
    const QJsonObject environment = order.value("environment").toObject();
    for (auto it = environment.begin(); it != environment.end(); ++it)
        qputenv(it.key().toLatin1().constData(), QFile::encodeName(it.value().toString()));
    kiv::embedded::EmbeddedService* basemgr = backend.service("basemgr");
    basemgr->setValue(":config:basemgr:system:saveLocation:", order.value("location").toInt());
    basemgr->setValue(":result:basemgr:system:usbAttached:", order.value("stick").toBool());
    basemgr->setMounted("/mnt/usb/", order.value("stick").toBool());
    // Children of one process would all choose the same names.
    QRandomGenerator::global()->discard(static_cast<unsigned long long>(::getpid()) % 100000);
}

[[noreturn]] void runChild(const kiv::embedded::EmbeddedBackend& backend, PageReport& report, const QJsonObject& order, int answer)
{
    ::alarm(patienceSeconds);
    ::prctl(PR_SET_PTRACER, PR_SET_PTRACER_ANY);
    setUp(backend, order);
    report.getReady(order);
    QCoreApplication::processEvents();
    logLines.clear();
    // A tracer that attached earlier would count calls that are not part of the order.
    ::send(answer, "", 1, 0);
    const QByteArray claim = QJsonDocument(perform(report, order)).toJson(QJsonDocument::Compact);
    // Not write(), which may be made to fail.
    ::send(answer, claim.constData(), size_t(claim.size()), 0);
    ::_exit(0);
}

QByteArray received(int socket)
{
    QByteArray all;
    char part[4096];
    for (ssize_t n = 1; n > 0;) {
        n = ::recv(socket, part, sizeof part, 0);
        if (n > 0)
            all.append(part, int(n));
    }
    return all;
}

void say(const QJsonObject& line)
{
    const QByteArray text = QJsonDocument(line).toJson(QJsonDocument::Compact);
    std::printf("%s\n", text.constData());
    std::fflush(stdout);
}

void serve(const kiv::embedded::EmbeddedBackend& backend, PageReport& report, const QJsonObject& order)
{
    int ends[2] {};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        qFatal("no socket");
    const pid_t child = ::fork();
    if (child < 0)
        qFatal("no process");
    if (child == 0) {
        ::close(ends[0]);
        runChild(backend, report, order, ends[1]);
    }
    ::close(ends[1]);
    char isReady = 0;
    ::recv(ends[0], &isReady, 1, 0);
    say({{"process", int(child)}});
    const QByteArray claim = received(ends[0]);
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    say({{"signal", WIFSIGNALED(status) ? WTERMSIG(status) : 0},
            {"exit", WIFEXITED(status) ? WEXITSTATUS(status) : -1},
            {"claim", QJsonDocument::fromJson(claim).object()}});
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
    const QGuiApplication application(argc, argv);
    kiv::embedded::EmbeddedBackend backend;
    QString problem;
    if (!backend.loadFile(UIUTILS_SERVICES_DIR "/basemgr.service.json", &problem))
        qFatal("%s", qUtf8Printable(problem));
    const QTemporaryDir root;
    qputenv("UIUTILS_ROOT", QFile::encodeName(root.path()));
    PageReport report;
    warmUp(report);
    qInstallMessageHandler(keepLine);
    std::string line;
    while (std::getline(std::cin, line))
        serve(backend, report, QJsonDocument::fromJson(QByteArray::fromStdString(line)).object());
    return 0;
}
