#pragma once

#include "servicedescription.h"

#include <QJsonObject>

namespace kiv::embedded {

/// What the object of an item in a service file describes, as far as it conforms to the schema.
ItemDescription describedItem(const QJsonObject& object);

/// What a service file describes, as far as it conforms to the schema.
ServiceDescription describedService(const QJsonObject& file);

/// Why `value`, which the file gives the item, is no value of an aggregate or table: "/value/2/NAME: REASON". Empty for
/// a value that is one, and for other items.
QString aggregatesProblem(const ItemDescription& item, const QJsonValue& value);

} // namespace kiv::embedded
