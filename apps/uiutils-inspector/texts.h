#pragma once

#include <QCoreApplication>

namespace uiutils::inspectortool {

/// The program's texts outside the panel, under one context for translators.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(UiUtilsInspector)
};

} // namespace uiutils::inspectortool
