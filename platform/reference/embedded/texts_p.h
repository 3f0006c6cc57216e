#pragma once

#include <QCoreApplication>

namespace kiv::embedded {

// Texts of the back end, each kind under the context in which translators find it.

/// Errors in service files and descriptions of services.
struct ServiceFileTexts
{
    Q_DECLARE_TR_FUNCTIONS(ServiceFile)
};

/// Why a service rejects a client's request.
struct RequestTexts
{
    Q_DECLARE_TR_FUNCTIONS(ServiceRequest)
};

/// Why a value does not fit, and which values do.
struct ValueTexts
{
    Q_DECLARE_TR_FUNCTIONS(ServiceValue)
};

/// Results of storing a service's settings.
struct StateTexts
{
    Q_DECLARE_TR_FUNCTIONS(ServiceState)
};

} // namespace kiv::embedded
