#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QString>
#include <QStringList>

namespace uiutils::kivctl {

// Beside those of all programs.
constexpr int exitUnknown = 3;
constexpr int exitUnreachable = 4;

/// A text on one line, without anything that a terminal would obey: such characters become escapes, as "\n" or
/// "\u001B".
QString visible(const QString& text);

/// The document, with nothing that a terminal would obey.
QByteArray jsonText(const QJsonDocument& document, QJsonDocument::JsonFormat format);

/// Cells of one line, separated by tabs.
QByteArray tableLine(const QStringList& cells);

/// Writes to standard output at once. Returns the exit status, having complained. A reader that has gone is no failure.
int print(const QByteArray& bytes);

/// Says on standard error what went wrong, in words that may come from a service. Returns the exit status.
int complain(const QString& text, int exitStatus);

/// Has the warnings of the libraries said as ours.
void complainOfWarnings();

} // namespace uiutils::kivctl
