#include "ownrecording.h"

#include "workload.h"

#include "replay/linesource_p.h"

#include <kiv/kivclientinterface.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace bench {

namespace {

const QString fileName = QStringLiteral("load.kivlog");

} // namespace

OwnRecording::OwnRecording(KIVClientInterface* client, bool isCompressed)
{
    using kiv::replay::RecordingFile;
    QString problem;
    m_file = RecordingFile::create(
            m_folder.filePath(fileName), isCompressed ? RecordingFile::Compressed : RecordingFile::Plain, &problem);
    if (!m_file)
        qFatal("%s", qPrintable(problem));
    m_recorder = std::make_unique<kiv::replay::Recorder>([this](const QByteArray& line) { m_file->append(line); });
    m_recorder->follow(client);
}

bool OwnRecording::isComplete(int loads)
{
    m_recorder.reset();
    kiv::replay::LineSource lines;
    QString problem;
    if (!m_file->close() || !lines.open(m_folder.filePath(fileName), &problem))
        return false;
    int changes = 0;
    QByteArray line;
    while (lines.next(&line)) {
        const QJsonObject entry = QJsonDocument::fromJson(line).object();
        if (entry.contains(QLatin1String("type")) || !entry.contains(QLatin1String("value")))
            continue;
        const int change = changes++ % loadChanges;
        const int item = change % itemCount;
        if (entry.value(QLatin1String("id")).toString() != itemId(item)
                || entry.value(QLatin1String("value")) != QJsonValue::fromVariant(valueOf(item, change)))
            return false;
    }
    return changes == loads * loadChanges;
}

} // namespace bench
