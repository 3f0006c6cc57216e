#pragma once

#include "servicedescription.h"

namespace kiv::embedded {

// Each gives what is wrong, in words, or an empty text; places are JSON pointers as into a service file.

/// A service's description with its items: "PLACE: REASON".
QString serviceProblem(const ServiceDescription& service);

/// One item for itself: "REASON", or "PLACE: REASON" for a part of it.
QString itemProblem(const ItemDescription& item);

/// The choices of an enumeration of this type.
QString choicesProblem(unsigned type, const QVector<ChoiceDescription>& choices);

/// Limits in the type that an item's limits have: its elements' own, for texts the type of a length.
struct Limits
{
    QVariant minimum;
    QVariant maximum;
    QString problem;
};
Limits convertLimits(unsigned type, const QVariant& minimum, const QVariant& maximum);

} // namespace kiv::embedded
