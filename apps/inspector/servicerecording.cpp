#include "servicerecording.h"

#include "texts.h"

#include "replay/recorder_p.h"
#include "replay/recordingfile_p.h"
#include "ui_host/host.h"

#include <kiv/kivclientinterface.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace uiutils::inspector {

using kiv::replay::Recorder;
using kiv::replay::RecordingFile;

ServiceRecording::ServiceRecording(Host* host, const QString& folder, QObject* parent)
    : QObject(parent)
    , m_host(host)
    , m_folder(folder)
{
    connect(host, &Host::serviceAdded, this, &ServiceRecording::follow);
}

ServiceRecording::~ServiceRecording() = default;

void ServiceRecording::begin()
{
    if (m_recorder)
        return;
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    m_path = QDir(m_folder).filePath(QStringLiteral("services-%1.kivlog").arg(time));
    QString problem;
    m_file = RecordingFile::create(m_path, RecordingFile::Plain, &problem);
    if (!m_file)
        return say(problem);
    connect(m_file.get(), &RecordingFile::failed, this, &ServiceRecording::end, Qt::QueuedConnection);
    m_recorder = std::make_unique<Recorder>([this](const QByteArray& line) { m_file->append(line); });
    const QStringList services = m_host->serviceNames();
    for (const QString& service : services)
        follow(service);
    say(Texts::tr("Recording to %1").arg(m_path));
}

void ServiceRecording::end()
{
    if (!m_recorder)
        return;
    const Recorder::Counts counts = m_recorder->counts();
    const double seconds = double(m_recorder->time()) / 1000;
    m_recorder.reset();
    const bool isWhole = m_file->close();
    const QString problem = m_file->problem();
    m_file.reset();
    say(isWhole ? Texts::tr("%1: %2 changes in %3 s")
                            .arg(m_path, QLocale().toString(counts.changes), QLocale().toString(seconds, 'f', 1))
                : problem);
}

void ServiceRecording::follow(const QString& service)
{
    KIVClientInterface* const client = m_recorder ? KIVClientInterface::getSessionBusClient(service) : nullptr;
    if (client)
        m_recorder->follow(client);
}

void ServiceRecording::say(const QString& text)
{
    m_text = text;
    Q_EMIT changed();
}

QString recordingsFolder()
{
    const QString working = QDir::currentPath();
    return QFileInfo(working).isWritable() ? working : QDir::homePath();
}

} // namespace uiutils::inspector
