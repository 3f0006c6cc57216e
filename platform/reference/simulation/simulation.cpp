#include "simulation_p.h"

#include "planreader_p.h"
#include "servicesimulation_p.h"

#include <embedded/embeddedbackend.h>

namespace kiv::simulation {

void simulate(embedded::EmbeddedBackend& backend, Simulated what)
{
    backend.setFileReader(
            [what](const QString& path, const QJsonObject& file, const embedded::ServiceDescription& service) {
                const PlanReading reading = readPlan(path, file, service);
                embedded::EmbeddedBackend::FileExtras extras {reading.problem, reading.notes, {}};
                if (!reading.plan.isEmpty()) {
                    extras.begin = [plan = reading.plan, what](embedded::EmbeddedService* published) {
                        new ServiceSimulation(published, plan, what == Simulated::Actions);
                    };
                }
                return extras;
            });
}

} // namespace kiv::simulation
