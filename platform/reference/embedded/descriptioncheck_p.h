#pragma once

#include "servicedescription.h"

namespace kiv::embedded {

// Each returns the error in words, or an empty text; places are JSON pointers as into a service file.

/// Checks a service's description with its items: "PLACE: REASON".
QString serviceProblem(const ServiceDescription& service);

/// Checks a single item: "REASON", or "PLACE: REASON" for a part of it.
QString itemProblem(const ItemDescription& item);

/// Checks the choices of an enumeration of this type.
QString choicesProblem(unsigned type, const QVector<ChoiceDescription>& choices);

/// Limits in the type of an item's limits: the type of its elements, for texts that of a length.
struct Limits
{
    QVariant minimum;
    QVariant maximum;
    QString problem;
};
Limits convertLimits(unsigned type, const QVariant& minimum, const QVariant& maximum);

} // namespace kiv::embedded
