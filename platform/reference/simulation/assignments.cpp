#include "assignments_p.h"

#include "simulationtexts_p.h"

#include "embedded/valueconversion_p.h"

#include <embedded/embeddedservice.h>

#include <QPointer>

#include <cmath>

namespace kiv::simulation {

namespace {

QVariant valueOf(const Assignment& assignment, const QString& argument)
{
    return assignment.value.userType() == QMetaType::QString
            ? QVariant(withArgument(assignment.value.toString(), argument))
            : assignment.value;
}

QVariant drawn(const Assignment& assignment, double share)
{
    const double from = *assignment.drawnFrom->from;
    const double to = *assignment.drawnFrom->to;
    if (assignment.type == KIVClientItem::TypeDouble)
        return from + (to - from) * share;
    return std::floor(std::ceil(from) + (std::floor(to) - std::ceil(from) + 1) * share);
}

} // namespace

/// Not QString::arg(), which would replace a "%2" inside a text.
QString withArgument(QString text, const QString& argument)
{
    return text.replace(QLatin1String("%1"), argument);
}

QString assignmentsProblem(const QVector<Assignment>& assignments, const QString& argument)
{
    for (const Assignment& assignment : assignments) {
        if (assignment.drawnFrom)
            continue;
        const QString problem
                = embedded::convertReported(assignment.type, assignment.members, valueOf(assignment, argument)).problem;
        if (!problem.isEmpty())
            return Texts::tr("the value of %1: %2").arg(assignment.id, problem);
    }
    return QString();
}

void assign(embedded::EmbeddedService* service, const QVector<Assignment>& assignments, const QString& argument,
        const RandomSequence& random, quint64* count)
{
    const QPointer<embedded::EmbeddedService> alive(service);
    for (const Assignment& assignment : assignments) {
        const QVariant value
                = assignment.drawnFrom ? drawn(assignment, random.at((*count)++)) : valueOf(assignment, argument);
        if (alive)
            alive->setValue(assignment.id, value);
    }
}

} // namespace kiv::simulation
