#pragma once

#include <QCoreApplication>

namespace kiv::embedded {

// What the back end says, each kind under the context that translators find it in.

/// What is wrong with service files and descriptions of services.
struct ServiceFileTexts
{
    Q_DECLARE_TR_FUNCTIONS(ServiceFile)
};

/// Why a service does not do what a client asks for.
struct RequestTexts
{
    Q_DECLARE_TR_FUNCTIONS(ServiceRequest)
};

/// Why a value does not fit, and which ones do.
struct ValueTexts
{
    Q_DECLARE_TR_FUNCTIONS(ServiceValue)
};

/// What becomes of the settings that a service keeps.
struct StateTexts
{
    Q_DECLARE_TR_FUNCTIONS(ServiceState)
};

} // namespace kiv::embedded
