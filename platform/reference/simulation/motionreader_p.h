#pragma once

#include "plan_p.h"

#include <QDir>
#include <QJsonObject>
#include <QStringList>

namespace kiv::simulation {

/// What a service file says of how an item moves.
struct MotionReading
{
    Motion motion;
    /// The place below the item and the reason: "/moves/from: ...".
    QString problem;
    /// What is left out of a file of values.
    QString note;
    /// Without a value the item stays as it is.
    bool hasValues = true;
};

/// Reads the object `moves` of an item. Files of values are looked up in `folder`.
MotionReading readMotion(const embedded::ItemDescription& item, const QJsonObject& moves, const QDir& folder);

/// A value of the item's type; otherwise why it is none.
QString notOfType(const embedded::ItemDescription& item, const QVariant& value);

/// The range that an object with "from" and "to" describes.
Range rangeOf(const QJsonObject& object);

} // namespace kiv::simulation
