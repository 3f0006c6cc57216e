#pragma once

#include <QCoreApplication>

namespace uiutils::kivd {

/// What the program says, under one context for translators.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Kivd)
};

} // namespace uiutils::kivd
