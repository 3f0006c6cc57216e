#include "judgement_p.h"

namespace kiv::simulation {

namespace {

bool holds(const std::optional<Range>& range, const QVariant& value)
{
    return range && range->holds(value.toDouble());
}

} // namespace

KIVClientItem::Quality Judgement::qualityOf(const QVariant& value) const
{
    if (!value.isValid())
        return KIVClientItem::QualityNone;
    if (holds(passing, value))
        return KIVClientItem::QualityPassing;
    return holds(warning, value) ? KIVClientItem::QualityWarning : KIVClientItem::QualityFailing;
}

bool Judgement::isReadyWith(const QVariant& value) const
{
    return value.isValid() && holds(ready, value);
}

} // namespace kiv::simulation
