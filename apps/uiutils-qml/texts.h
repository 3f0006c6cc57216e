#pragma once

#include <QCoreApplication>

namespace uiutils::qmltool {

/// The program's texts outside its pages, under one context for translators.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(UiUtilsQml)
};

} // namespace uiutils::qmltool
