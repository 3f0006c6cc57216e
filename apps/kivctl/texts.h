#pragma once

#include <QCoreApplication>

namespace uiutils::kivctl {

/// What the program says, under one context for translators.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Kivctl)
};

} // namespace uiutils::kivctl
