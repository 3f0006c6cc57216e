#pragma once

#include "plan_p.h"

namespace kiv::embedded {
class EmbeddedService;
}

namespace kiv::simulation {

/// A text with the argument of an action in the place of "%1".
QString withArgument(QString text, const QString& argument);

/// Why an item does not take its value; empty when all do.
QString assignmentsProblem(const QVector<Assignment>& assignments, const QString& argument);

/// Gives the items their values. What is drawn depends on `random` and on `drawn`, which counts the numbers. The
/// service may be gone after that.
void assign(embedded::EmbeddedService* service, const QVector<Assignment>& assignments, const QString& argument,
        const RandomSequence& random, quint64* drawn);

} // namespace kiv::simulation
