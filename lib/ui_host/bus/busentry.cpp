// What the host library calls in this library.

#include "ui_host/busplatform_p.h"

extern "C" Q_DECL_EXPORT uiutils::ServicePlatform* uiutilsBusPlatform(
        const uiutils::HostSetup& setup, QStringList* problems)
{
    return uiutils::startBusPlatform(setup, problems).release();
}
