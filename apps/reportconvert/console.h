#pragma once

#include <QString>

/// What the user reads on standard error.
namespace uiutils::convert {

/// Prints one line, the program's name in front. Control characters, which may come from a document or a
/// file's name, are shown as U+FFFD.
void say(const QString& message);

/// Shows what is being done, on one line that the next message or progress replaces; nothing unless standard
/// error is a terminal.
void showProgress(const QString& text);
void clearProgress();

/// Has the library's own warnings said as ours, with the name of the document that is being converted.
void installWarningHandler();
void setWarningSubject(const QString& name);

} // namespace uiutils::convert
