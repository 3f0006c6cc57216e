#pragma once

#include <QString>

#include <optional>

namespace uiutils {

/// Turns an applicability expression of a service into one that QML evaluates in a context where items are known by
/// their names.
///
/// "cfg.mode" becomes "TAG_cfg_mode", where TAG is `tag`, the service's own; "module.cfg.mode" becomes
/// "module_cfg_mode". An item's name without a member access stands for the item's value. Only names of items, their
/// properties, their accessors that change nothing, literals and operators are accepted, because what a service
/// publishes must not run as a program. Anything else is rejected: nothing is returned, and `problem` has the reason.
std::optional<QString> translatedApplicability(const QString& expression, const QString& tag, QString* problem);

/// Whether QML reads the text as one name, reserved words aside.
bool isQmlName(const QString& text);

} // namespace uiutils
