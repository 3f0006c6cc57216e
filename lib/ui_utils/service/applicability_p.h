#pragma once

#include <QString>

#include <optional>

namespace uiutils {

/// Turns an applicability expression of a service into one that QML evaluates in a context where items go by their
/// names.
///
/// "cfg.mode" becomes "TAG_cfg_mode" and "module.cfg.mode" "module_cfg_mode", `tag` being that of the service. An
/// item's name that no member access follows stands for the item's value. Only names of items, their properties and
/// their accessors that change nothing, literals and operators are let through, because what a service publishes is not
/// to run as a program. Returns nothing, with the reason in `problem`, for anything else.
std::optional<QString> translatedApplicability(const QString& expression, const QString& tag, QString* problem);

} // namespace uiutils
