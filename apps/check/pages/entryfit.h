#pragma once

#include "check/finding.h"
#include "names/itemfacts.h"

#include <QString>

namespace uiutils::check {

/// Why an item does not suit an entry of the kit.
struct Misfit
{
    Finding::Weight weight = Finding::Error;
    /// What is wrong and which entry suits; empty when the item suits.
    QString message;
};

/// Whether a type of the kit, such as "NumberEntry", is an entry that takes an item.
bool isEntry(const QString& type);

Misfit misfit(const QString& entry, const names::ItemFacts& item);

} // namespace uiutils::check
