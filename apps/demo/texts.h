#pragma once

#include <QCoreApplication>

namespace uiutils::demo {

/// What the program says outside of its pages, under one context for translators.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Demo)
};

} // namespace uiutils::demo
