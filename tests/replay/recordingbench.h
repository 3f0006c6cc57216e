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

const QByteArray recordingHeader = "{\"format\":\"kiv-recording\",\"version\":1,\"started\":\"2026-01-01T00:00:00.000Z\"}\n";

/// Services that are recorded, with a clock that stands until it is set.
class RecordingBench
{
public:
    /// A service of that name with the items of a service file.
    void publish(const QByteArray& name, const QByteArray& items)
    {
        QString problem;
        const QByteArray text = R"({"service": ")" + name + R"(", "items": [)" + items + "]}";
        if (!backend.loadFile(writeFile(folder.filePath(name + ".service.json"), text), &problem))
            qFatal("%s", qPrintable(problem));
    }
    kiv::embedded::EmbeddedService* service(const QString& name = "otdr") const { return backend.service(name); }
    KIVClientInterface* client(const QString& name = "otdr") { return backend.serviceClient(name, nullptr); }
    void follow(const QStringList& services)
    {
        recorder = std::make_unique<kiv::replay::Recorder>(
                [this](const QByteArray& line) { text += line; }, [this] { return now; });
        for (const QString& name : services)
            recorder->follow(client(name));
    }
    /// The lines since the last call, each without the service and the item that are named everywhere here.
    QByteArrayList take()
    {
        QByteArrayList lines = text.mid(taken).split('\n');
        taken = text.size();
        lines.removeLast();
        for (QByteArray& line : lines)
            line.replace(R"("service":"otdr",)", "").replace(R"("id":":result:otdr:a:",)", "");
        return lines;
    }

    QTemporaryDir folder;
    kiv::embedded::EmbeddedBackend backend;
    QByteArray text;
    int taken = 0;
    qint64 now = 0;
    std::unique_ptr<kiv::replay::Recorder> recorder;
};

/// A recording that is played.
class PlayingBench
{
public:
    explicit PlayingBench(const QByteArray& text, const QByteArray& header = recordingHeader)
    {
        isOpen = player.open(writeFile(folder.filePath("a.kivlog"), header + text), &problem);
    }
    KIVClientInterface* client(const QString& service = "otdr") { return backend.serviceClient(service, nullptr); }
    KIVClientItem* item(const QString& id = ":result:otdr:a:") { return client() ? client()->getItem(id) : nullptr; }
    QVariant value(const QString& id = ":result:otdr:a:") { return item(id) ? item(id)->getValue() : QVariant("gone"); }

    QTemporaryDir folder;
    kiv::embedded::EmbeddedBackend backend;
    kiv::replay::Player player {&backend};
    QString problem;
    bool isOpen = false;
};
