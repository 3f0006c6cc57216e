#pragma once

#include <QCoreApplication>

namespace kiv::replay {

/// What users read about recordings, under one context for translators.
struct ReplayTexts
{
    Q_DECLARE_TR_FUNCTIONS(Recording)
};

} // namespace kiv::replay
