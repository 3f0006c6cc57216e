#pragma once

#include "plan.h"

#include <QByteArray>

namespace uiutils::convert {

class Conversion;

/// How a worker, a process that converts one document after the other, and the crew that it belongs to understand each
/// other: by lines. The crew sends numbers of documents, as the plan has them. The first letter of a worker's line says
/// what it is.
namespace answers {
/// The worker can convert.
constexpr char ready = 'r';
/// A message for the user follows.
constexpr char message = 'm';
/// The document is done: 1 if all of it was converted, else 0, a blank, and the number of files that were written.
constexpr char done = 'd';
} // namespace answers

/// Sends the line, without its end, as far as the other side reads it.
void sendLine(int channel, const QByteArray& line);

/// Appends what has come to `pending` and takes the complete lines off it. False at the end of the channel.
bool takeLines(int channel, QByteArray* pending, QList<QByteArray>* lines);

/// The work of a worker: converts the documents of the lines that come until the channel ends or a signal comes.
void serve(int channel, Conversion& conversion, const Plan& plan);

} // namespace uiutils::convert
