#pragma once

#include "core/status.h"

#include <QString>

/// A line of a report's title block.
struct ReportField
{
    /// What the line is about.
    QString label;
    /// What it says.
    QString text;
    /// A code of uiutils::Status, which has an icon unless it is None.
    int status = uiutils::Status::None;
};
