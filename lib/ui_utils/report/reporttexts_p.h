#pragma once

#include <QCoreApplication>

namespace uiutils {

/// The texts of what Report calls, which stand among its own for translators.
struct ReportTexts
{
    Q_DECLARE_TR_FUNCTIONS(Report)
};

} // namespace uiutils
