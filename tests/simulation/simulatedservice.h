#pragma once

#include "files.h"
#include "simulation/driver_p.h"
#include "simulation/planreader_p.h"

#include <embedded/embeddedbackend.h>
#include <embedded/embeddedservice.h>
#include <kiv/kivclientinterface.h>
#include <kiv/kivclientitem.h>

#include <QTemporaryDir>

/// A service from a file, driven by a clock that the test sets.
class SimulatedService
{
public:
    explicit SimulatedService(const QByteArray& json, bool isStill = false, bool mayBeWrong = false)
    {
        backend.setFileReader([this, isStill](const QString& path, const QJsonObject& file,
                                      const kiv::embedded::ServiceDescription& service) {
            const auto reading = kiv::simulation::readPlan(path, file, service);
            notes = reading.notes;
            kiv::embedded::EmbeddedBackend::FileExtras extras {reading.problem, reading.notes, {}};
            extras.begin = [this, isStill, plan = reading.plan](kiv::embedded::EmbeddedService* published) {
                driver = std::make_shared<kiv::simulation::Driver>(published, plan, [this] { return now; });
                driver->begin(isStill);
            };
            return extras;
        });
        if (backend.loadFile(writeFile(folder.filePath("s.service.json"), json), &problem))
            client = KIVClientInterface::getSessionBusClient("s");
        else if (!mayBeWrong)
            qFatal("%s", qPrintable(problem));
    }

    /// Lets time pass in one go.
    void to(qint64 time)
    {
        now = time;
        driver->advance();
    }
    KIVClientItem* item(const QString& id) const { return client->getItem(id); }
    QVariant value(const QString& id) const { return item(id)->getValue(); }
    /// The reply, or "!" and the error.
    QString act(const QString& id, const QString& argument = {})
    {
        QString reply;
        return client->sendAction(id, argument, &reply, 500) ? reply : "!" + client->getLastError();
    }

    QTemporaryDir folder;
    kiv::embedded::EmbeddedBackend backend;
    QString problem;
    QStringList notes;
    qint64 now = 0;
    std::shared_ptr<kiv::simulation::Driver> driver;
    /// Null for a file that is wrong.
    KIVClientInterface* client = nullptr;
};
