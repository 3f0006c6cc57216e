#pragma once

#include <QString>

namespace uiutils::viewer {

/// Why a file cannot be shown.
enum class Problem {
    None,
    Missing,
    NoFile,
    Unreadable,
    TooLarge,
    NotPdf,
    Damaged,
    Locked,
    NoPages,
    TooManyPages,
};

/// What happened, in a sentence for the user; empty for Problem::None.
QString descriptionOf(Problem problem);

/// What the user can do about it.
QString adviceOn(Problem problem);

} // namespace uiutils::viewer
