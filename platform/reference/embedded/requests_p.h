#pragma once

#include "servicedata_p.h"

#include <embedded/embedded_export.h>

#include <QMap>
#include <QString>

// What carries a client's request to a service in this process. Exported for the back ends that carry requests from
// other processes; not installed.

namespace kiv::embedded {

/// The result of a client's request: whether it succeeded, and the reply or the error in words.
struct Outcome
{
    bool isDone = false;
    QString text;
    /// Why settings of a batch were rejected, by the names under which they were sent.
    QMap<QString, QString> rejected = {};
};

// The service may have been removed when one of these returns, by a slot that heard of the change.

/// Sets the value of a setting.
KIVEMBEDDED_EXPORT Outcome setSetting(ServiceData& service, const QString& id, const QVariant& value);

/// Carries out an action.
KIVEMBEDDED_EXPORT Outcome carryOut(ServiceData& service, const QString& id, const QString& argument);

/// Milliseconds that an action takes in addition to the service's own delay.
KIVEMBEDDED_EXPORT int actionDelay(const ServiceData& service, const QString& id);

using Request = std::function<Outcome(ServiceData&)>;

/// Carries out a request of a client in this thread, which stands still for as long as the service takes, but at most
/// for `timeoutMs`; then the request is carried out later and counts as not answered. `delayMs` is what the request
/// takes in addition to the service's own delay.
KIVEMBEDDED_EXPORT Outcome callInProcess(EmbeddedService* service, int delayMs, int timeoutMs, const Request& request);

} // namespace kiv::embedded
