#pragma once

#include "files.h"

#include "replay/player_p.h"
#include "replay/recorder_p.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivenumclientitem.h>

#include <QTemporaryDir>
#include <QTest>

/// Services that are recorded, with a clock that stands until it is set.
class RecordingBench
{
public:
    RecordingBench() = default;

    void publish(const QByteArray& description)
    {
        QString problem;
        const QString path = writeFile(folder.filePath("a.service.json"), description);
        if (!backend.loadFile(path, &problem))
            qFatal("%s", qPrintable(problem));
    }
    void follow(const QString& service) { recorder->follow(backend.serviceClient(service, nullptr)); }
    void start()
    {
        recorder = std::make_unique<kiv::replay::Recorder>(
                [this](const QByteArray& line) { lines += line; }, [this] { return now; });
    }
    /// The lines since the last call, without the header and what names the service.
    QByteArrayList take()
    {
        QByteArrayList taken;
        while (!lines.isEmpty())
            taken += lines.takeFirst().trimmed();
        return taken;
    }

    QTemporaryDir folder;
    kiv::embedded::EmbeddedBackend backend;
    QByteArrayList lines;
    qint64 now = 0;
    std::unique_ptr<kiv::replay::Recorder> recorder;
};
