#pragma once

#include <QCoreApplication>

namespace uiutils::convert {

/// The program's texts, under one context for translators.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ReportConvert)
};

} // namespace uiutils::convert
