#pragma once

#include <QString>
#include <QXmlStreamWriter>

/// What the rows of long tables put straight into the text that a stream writer writes into, to the same effect as the
/// writer's own operations and in a fraction of their time: it copies every word several times over.
namespace uiutils {

/// Begins a line of `output`, indented by `level` steps of four blanks, as an auto-formatting writer does before an
/// element. Auto-formatting has to be off.
void beginLine(QXmlStreamWriter& writer, QString& output, int level);

/// Writes an attribute of the element that was just started. `value` may hold anything; see markupText().
void writeAttribute(QXmlStreamWriter& writer, QString& output, const QString& name, const QString& value);

/// Writes text. It may hold anything; see markupText().
void writeText(QXmlStreamWriter& writer, QString& output, const QString& text);

/// Makes room in `output` for `characters` more. Room grows by half at the least, so that asking often stays cheap.
void makeRoom(QString& output, qint64 characters);

} // namespace uiutils
