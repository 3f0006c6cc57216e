#pragma once

#include <QCoreApplication>

namespace uiutils::inspector {

/// The texts outside the pages, under one context for translators.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Inspector)
};

} // namespace uiutils::inspector
