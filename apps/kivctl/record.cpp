#include "common/complaint.h"
#include "common/termination.h"
#include "output.h"
#include "recording.h"
#include "services.h"
#include "texts.h"

#include "replay/recorder_p.h"
#include "replay/recordingfile_p.h"

#include <bus/busbackend.h>
#include <kiv/kivclientinterface.h>

#include <QElapsedTimer>
#include <QLocale>
#include <QTimer>

namespace uiutils::kivctl {

using kiv::bus::BusBackend;
using kiv::replay::Recorder;
using kiv::replay::RecordingFile;

namespace {

RecordingFile::Form formOf(const Options& options)
{
    const bool isNamedSo = options.operands.constFirst().endsWith(QLatin1String(".gz"));
    return options.isCompressed || isNamedSo ? RecordingFile::Compressed : RecordingFile::Plain;
}

bool isWanted(const Options& options, const QString& service)
{
    return options.only.isEmpty() || options.only.contains(service);
}

void follow(Recorder* recorder, const QString& service)
{
    if (KIVClientInterface* const client = KIVClientInterface::getSessionBusClient(service))
        recorder->follow(client);
}

/// Those that are there, and those that were named and may come.
void followAll(Recorder* recorder, const Services& services, const Options& options)
{
    const QStringList present = services.names();
    const QStringList wanted = options.only.isEmpty() ? present : options.only;
    for (const QString& name : wanted) {
        if (!present.contains(name))
            complain(Texts::tr("The service %1 is not there. It is recorded when it comes.").arg(name),
                    apps::exitFailed);
        follow(recorder, name);
    }
}

void complainOfEnds(const BusBackend& bus)
{
    QObject::connect(&bus, &BusBackend::connectionFailed, &bus, [last = QString()](const QString& reason) mutable {
        if (reason != last)
            complain(reason, exitUnreachable);
        last = reason;
    });
}

/// Says what is in the file; on standard error where the recording has the other one.
int finish(RecordingFile* file, const Recorder& recorder, const QString& path)
{
    const Recorder::Counts counts = recorder.counts();
    const double seconds = double(recorder.time()) / 1000;
    const bool isWhole = file->close();
    if (counts.leftOut > 0)
        complain(Texts::tr("%1 values are too large to be recorded.").arg(counts.leftOut), apps::exitFailed);
    const QLocale locale = QLocale::c();
    const QString summary = Texts::tr("changes: %1, services: %2, seconds: %3, bytes: %4")
                                    .arg(QString::number(counts.changes), QString::number(counts.services),
                                            locale.toString(seconds, 'f', 1), QString::number(file->size()));
    if (path == QLatin1String("-"))
        complain(summary, apps::exitDone);
    else if (print(tableLine({summary})) != apps::exitDone)
        return apps::exitFailed;
    return isWhole ? apps::exitDone : apps::exitFailed;
}

} // namespace

int record(Services& services, const Options& options)
{
    // Before any thread starts.
    const apps::Termination termination;
    int exitStatus = apps::exitDone;
    if (!services.open({}, &exitStatus))
        return exitStatus;
    const QString path = options.operands.constFirst();
    QString problem;
    const std::unique_ptr<RecordingFile> file = RecordingFile::create(path, formOf(options), &problem);
    if (!file)
        return complain(problem, apps::exitFailed);
    // Time begins when everything has been read that is there.
    QElapsedTimer timer;
    Recorder recorder([&file](const QByteArray& line) { file->append(line); },
            [&timer] { return timer.isValid() ? timer.elapsed() : 0; });
    recorder.addAttributes(options.attributes);
    followAll(&recorder, services, options);
    timer.start();

    if (const BusBackend* bus = services.bus()) {
        QObject::connect(bus, &BusBackend::serviceAppeared, &recorder, [&](const QString& service) {
            if (isWanted(options, service))
                follow(&recorder, service);
        });
        complainOfEnds(*bus);
    }
    QObject::connect(file.get(), &RecordingFile::failed, &recorder, [](const QString& reason) {
        complain(reason, apps::exitFailed);
        QCoreApplication::quit();
    });
    QObject::connect(&termination, &apps::Termination::requested, qApp, &QCoreApplication::quit);
    if (options.durationMs > 0)
        QTimer::singleShot(options.durationMs, Qt::PreciseTimer, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    return finish(file.get(), recorder, path);
}

} // namespace uiutils::kivctl
