#pragma once

#include <QString>

#include <functional>

/// The texts on standard error.
namespace uiutils::convert {

/// Prints one line after the program's name. Control characters, which may come from a document or a file's name, are
/// shown as U+FFFD.
void say(const QString& message);

/// Shows the progress on one line, which the next message or progress replaces; does nothing unless standard error is a
/// terminal.
void showProgress(const QString& text);
void clearProgress();

/// Has `sink` called with each message in place of printing it, and no progress shown. The messages have no line ends.
void setMessageSink(const std::function<void(const QString& message)>& sink);

/// Prints the library's warnings as ours, with the name of the document that is being converted.
void installWarningHandler();
void setWarningSubject(const QString& name);

} // namespace uiutils::convert
