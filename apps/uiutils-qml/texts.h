#pragma once

#include <QCoreApplication>

namespace uiutils::qmltool {

/// What the program says outside of its pages, under one context for translators.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(UiUtilsQml)
};

} // namespace uiutils::qmltool
