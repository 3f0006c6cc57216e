#pragma once

#include "servicedata_p.h"

namespace kiv::embedded {

/// What came of a client's request: whether it was done, and the reply or the error in words.
struct Outcome
{
    bool isDone = false;
    QString text;
};

// The service may be gone when one of these returns: somebody heard of what it did.

/// Takes a value for a setting.
Outcome setSetting(ServiceData& service, const QString& id, const QVariant& value);

/// Carries out an action.
Outcome carryOut(ServiceData& service, const QString& id, const QString& argument);

/// Milliseconds that an action takes beside the service's own delay.
int actionDelay(const ServiceData& service, const QString& id);

} // namespace kiv::embedded
