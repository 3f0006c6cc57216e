#pragma once

#include <QCoreApplication>

namespace uiutils::audit {

/// What the audit says, under one context for translators.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ScreenAudit)
};

} // namespace uiutils::audit
