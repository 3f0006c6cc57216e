#include "conversion.h"

#include "base/durablefile_p.h"
#include "common/complaint.h"
#include "console.h"
#include "document/reporttemplate.h"
#include "jsonschema_p.h"
#include "signals.h"
#include "streams.h"
#include "texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryFile>

#include <cstring>

namespace uiutils::convert {

namespace {

/// As in shells, the number of the signal that stopped the program is added.
constexpr int exitSignalled = 128;

const QJsonObject& documentSchema()
{
    static const QJsonObject schema = [] {
        QFile file(QStringLiteral(":/uiutils/reportconvert/report-document.schema.json"));
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
    }();
    return schema;
}

/// Devices are written to, never replaced by a file, which root could do even to /dev/null.
bool isNoFile(const QString& path)
{
    const QFileInfo info(path);
    const QString folder = QFileInfo(info.path()).canonicalFilePath() + QLatin1Char('/');
    return (info.exists() && !info.isFile()) || folder == QLatin1String("/dev/")
            || folder.startsWith(QLatin1String("/proc/"));
}

/// What to do about a file that could not be written.
QString advice(const QString& path)
{
    const QFileInfo folder(QFileInfo(path).path());
    if (!folder.exists())
        return Texts::tr("The folder %1 does not exist: create it, or name another with --output.")
                .arg(folder.filePath());
    if (!folder.isDir())
        return Texts::tr("%1 is not a folder: name another with --output.").arg(folder.filePath());
    return Texts::tr("Check the free space there and that you may write there, or name another folder with --output.");
}

} // namespace

int stoppedBy(int signal, int written, const Plan& plan)
{
    say(Texts::tr("Stopped by SIG%1: %2 of %3 files were written.")
                    .arg(QLatin1String(::sigabbrev_np(signal)))
                    .arg(written)
                    .arg(plan.targetCount()));
    return exitSignalled + signal;
}

Conversion::Conversion(const Plan& plan, const Options& options, const QString& scratchFolder)
    : m_plan(plan)
    , m_options(options)
    , m_scratchFolder(scratchFolder)
{
}

int Conversion::run()
{
    bool hasFailed = false;
    for (const Job& job : m_plan.jobs) {
        if (isStopped())
            break;
        hasFailed |= !convert(job);
    }
    clearProgress();
    if (m_signal != 0)
        return stoppedBy(m_signal, m_written, m_plan);
    return hasFailed ? apps::exitFailed : apps::exitDone;
}

bool Conversion::convert(const Job& job)
{
    m_hasFailed = false;
    setWarningSubject(job.name());
    writeTargets(job);
    setWarningSubject({});
    return !m_hasFailed;
}

void Conversion::writeTargets(const Job& job)
{
    announce(job.name());
    ReportTemplate report;
    if (!read(job, report) || !hasAcceptableLayout(job, report))
        return;
    for (const Target& target : job.targets) {
        if (isStopped())
            return;
        announce(target.path);
        writeTarget(target, report);
    }
}

void Conversion::writeTarget(const Target& target, const ReportTemplate& report)
{
    const auto mayContinue = [&](int page, int pageCount) {
        if (pageCount > 0)
            showProgress(Texts::tr("%1: page %2 of %3").arg(target.name()).arg(page).arg(pageCount));
        return !isStopped();
    };
    bool isWritten = true;
    const auto writePart = [&](const QString& name, const QByteArray& bytes) {
        isWritten = isWritten && !isStopped() && write(target.path + QLatin1Char('/') + name, bytes);
    };
    Generation generation {
            m_options.page, m_options.tables, target.packing, m_scratchFolder, mayContinue, writePart, {}};
    const QByteArray bytes = target.format->generate(report, generation);
    const QString path = generation.isPacked && !target.packedPath.isEmpty() ? target.packedPath : target.path;
    if (!generation.error.isEmpty())
        fail(target.name() + QStringLiteral(": ") + generation.error);
    else if (target.packing == Packing::Files ? isWritten : !bytes.isNull() && write(path, bytes))
        ++m_written;
}

bool Conversion::read(const Job& job, ReportTemplate& report)
{
    if (job.document == standardStream)
        return readStandardInput(job, report);
    report.readDiskFile(job.document);
    return !report.hasError() || fail(report.errorString());
}

bool Conversion::readStandardInput(const Job& job, ReportTemplate& report)
{
    const auto failNamed = [&](const QString& reason) { return fail(job.name() + QStringLiteral(": ") + reason); };
    // Through a file, so that the one reader of documents and its limits serve here too.
    QTemporaryFile copy(m_scratchFolder + QStringLiteral("/input"));
    if (!copy.open())
        return failNamed(Texts::tr("cannot be written to a temporary file: %1").arg(copy.errorString()));
    QString error;
    if (!copyStandardInput(copy, &error))
        return error.isEmpty() ? !isStopped() : failNamed(error);
    if (!copy.flush())
        return failNamed(Texts::tr("cannot be written to a temporary file: %1").arg(copy.errorString()));
    report.readDiskFile(copy.fileName());
    return !report.hasError() || fail(report.errorString().replace(copy.fileName(), job.name()));
}

bool Conversion::hasAcceptableLayout(const Job& job, const ReportTemplate& report)
{
    const QString violation = kiv::embedded::schemaViolation(documentSchema(), report.object());
    if (violation.isEmpty())
        return true;
    if (m_options.isStrict)
        return fail(job.name() + QStringLiteral(": ") + violation);
    say(Texts::tr("%1: warning: not the layout of a report document: %2").arg(job.name(), violation));
    return true;
}

bool Conversion::write(const QString& path, const QByteArray& bytes)
{
    QString error;
    if (path.isEmpty() ? writeStandardOutput(bytes, &error) : writeFile(path, bytes, &error))
        return true;
    // Without a reason it was a signal.
    if (error.isEmpty())
        isStopped();
    else
        fail(error);
    return false;
}

bool Conversion::writeFile(const QString& path, const QByteArray& bytes, QString* error) const
{
    if (isNoFile(path)) {
        *error = Texts::tr("%1 is not a regular file and is not replaced. Name another with --output, or \"-\" for "
                           "standard output.")
                         .arg(path);
        return false;
    }
    // Only now, so that a call without anything to write leaves no empty folder. The write reports why this failed.
    const QString folder = QFileInfo(path).path();
    if (m_plan.newFolders.contains(folder))
        QDir().mkpath(folder);
    if (writeFileDurably(path, bytes, error))
        return true;
    *error += QStringLiteral(". ") + advice(path);
    return false;
}

void Conversion::announce(const QString& name)
{
    const int count = m_plan.targetCount();
    if (count > 1)
        showProgress(Texts::tr("%1 of %2 files written, %3").arg(m_written).arg(count).arg(name));
}

bool Conversion::fail(const QString& message)
{
    say(message);
    m_hasFailed = true;
    return false;
}

bool Conversion::isStopped()
{
    if (m_signal == 0)
        m_signal = pendingSignal();
    return m_signal != 0;
}

} // namespace uiutils::convert
