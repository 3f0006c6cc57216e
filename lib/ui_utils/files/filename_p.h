#pragma once

#include <QString>

#include <functional>

/// What is wrong with the name of a file, in words that are shown where it is typed. Empty if nothing is.
namespace uiutils {

/// The characters of the name that are not allowed, each once, and in words if they cannot be shown. Empty if it has
/// none.
QString forbiddenIn(const QString& name, const std::function<bool(const QString& character)>& isForbidden);

/// "The name may have 50 characters, it has 86".
QString nameTooLong(int most, int count);

/// "The name must not contain : ?".
QString nameMustNotContain(const QString& characters);

/// The same, in quotation marks, "is not a file name".
QString notAFileName(const QString& name);

/// The rules for files on USB drives, which other computers read.
QString fileNameProblem(const QString& name);

} // namespace uiutils
