#pragma once

#include "motion_p.h"

#include <kiv/kivclientitem.h>

namespace kiv::simulation {

/// What the quality and the readiness of an item follow: its own value. A Boolean counts as 0 or 1.
struct Judgement
{
    QString id;
    std::optional<Range> passing;
    std::optional<Range> warning;
    /// Where the item is ready.
    std::optional<Range> ready;

    bool judgesQuality() const { return passing || warning; }
    /// The first range of both that holds the value; failing if none does, none without a value.
    KIVClientItem::Quality qualityOf(const QVariant& value) const;
    bool isReadyWith(const QVariant& value) const;
};

} // namespace kiv::simulation
