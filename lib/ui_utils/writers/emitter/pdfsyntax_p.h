#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

/// The lexical forms of a PDF file.
namespace uiutils::pdf {

/// Appends a number with at most two decimals, without an exponent.
void appendNumber(QByteArray& bytes, qreal number);
/// The same for a number of hundredths.
void appendHundredths(QByteArray& bytes, qint64 hundredths);
/// Appends the numbers, each with a blank after it.
void appendNumbers(QByteArray& bytes, std::initializer_list<qreal> numbers);

/// Appends an integer, and "12 0 R".
void appendInteger(QByteArray& bytes, qint64 number);
void appendReference(QByteArray& bytes, int object);

/// A text for readers: of a title, an alternative, a date. Lone surrogates are replaced.
QByteArray textString(const QString& text);
/// Any bytes.
QByteArray byteString(const QByteArray& bytes);
QByteArray hexString(const QByteArray& bytes);
/// A time in its own zone.
QByteArray dateString(const QDateTime& time);
/// A name, with the slash in front. Bytes that a name may not have are written by their numbers.
QByteArray nameOf(const QByteArray& text);
/// "12 0 R".
QByteArray referenceTo(int object);

} // namespace uiutils::pdf
