#pragma once

#include <QCoreApplication>

namespace uiutils {

/// Texts of functions that Report calls, in the same context as those of Report.
struct ReportTexts
{
    Q_DECLARE_TR_FUNCTIONS(Report)
};

} // namespace uiutils
