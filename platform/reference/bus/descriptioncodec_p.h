#pragma once

#include "message_p.h"

#include <embedded/servicedescription.h>

namespace kiv::bus {

void writeChoices(Writer& writer, const QVector<embedded::ChoiceDescription>& choices);
QVector<embedded::ChoiceDescription> readChoices(Reader& reader);

/// A description in the map of GetItems: type, value and whatever differs from the usual.
void writeDescription(Writer& writer, const embedded::ItemDescription& item);
/// Reads such a map; fields that are not known are passed over.
void readDescription(Reader& reader, embedded::ItemDescription* item);

/// About how many bytes a description takes in a message.
int descriptionSize(const embedded::ItemDescription& item);

/// Whether all of a description can travel, see canTravel() of a value.
bool canTravel(const embedded::ItemDescription& item);

} // namespace kiv::bus
