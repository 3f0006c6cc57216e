#pragma once

#include "plan_p.h"

#include <QJsonObject>
#include <QStringList>

namespace kiv::simulation {

/// What a service file says about simulation.
struct PlanReading
{
    Plan plan;
    /// The place and the reason when the file cannot be used: "/items/3/moves/from: ...".
    QString problem;
    /// What is left out, without harm to the rest: sentences.
    QStringList notes;
};

/// Reads it from a file that conforms to the schema. `service` is what the same file describes; files of values are
/// looked up beside `path`.
PlanReading readPlan(const QString& path, const QJsonObject& file, const embedded::ServiceDescription& service);

} // namespace kiv::simulation
