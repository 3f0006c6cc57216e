#pragma once

#include "servicedata_p.h"

namespace kiv::embedded {

/// The result of a client's request: whether it succeeded, and the reply or the error in words.
struct Outcome
{
    bool isDone = false;
    QString text;
};

// The service may have been removed when one of these returns, by a slot that heard of the change.

/// Sets the value of a setting.
Outcome setSetting(ServiceData& service, const QString& id, const QVariant& value);

/// Carries out an action.
Outcome carryOut(ServiceData& service, const QString& id, const QString& argument);

/// Milliseconds that an action takes in addition to the service's own delay.
int actionDelay(const ServiceData& service, const QString& id);

} // namespace kiv::embedded
