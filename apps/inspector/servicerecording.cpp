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
    if (!m_recorder)
        restart();
}

void ServiceRecording::restart()
{
    m_recorder.reset();
    m_lines.clear();
    m_recorder = std::make_unique<Recorder>([this](const QByteArray& line) { take(line); });
    const QStringList services = m_host->serviceNames();
    for (const QString& service : services)
        follow(service);
}

void ServiceRecording::follow(const QString& service)
{
    KIVClientInterface* const client = m_recorder ? KIVClientInterface::getSessionBusClient(service) : nullptr;
    if (client)
        m_recorder->follow(client);
}

void ServiceRecording::take(const QByteArray& line)
{
    const bool wasFull = m_lines.size() > mostBytes;
    m_lines += line;
    // Not now: the recorder is in the middle of a line.
    if (!wasFull && m_lines.size() > mostBytes)
        QMetaObject::invokeMethod(this, &ServiceRecording::restart, Qt::QueuedConnection);
}

void ServiceRecording::save()
{
    m_text = saved();
    Q_EMIT textChanged();
}

QString ServiceRecording::saved()
{
    begin();
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString path = QDir(m_folder).filePath(QStringLiteral("services-%1.kivlog").arg(time));
    QString problem;
    const std::unique_ptr<RecordingFile> file = RecordingFile::create(path, RecordingFile::Plain, &problem);
    if (!file)
        return problem;
    file->append(m_lines);
    if (!file->close())
        return file->problem();
    const QLocale locale;
    return Texts::tr("%1: %2 changes in %3 s")
            .arg(path, locale.toString(m_recorder->counts().changes),
                    locale.toString(double(m_recorder->time()) / 1000, 'f', 1));
}

QString recordingsFolder()
{
    const QString working = QDir::currentPath();
    return QFileInfo(working).isWritable() ? working : QDir::homePath();
}

} // namespace uiutils::inspector
