#pragma once

#include <QString>
#include <QStringView>

/// Text as a terminal or a printer with fixed-width letters shows it.
namespace uiutils {

/// `text` without anything that would break the lines of a plain text: markupText(), all kinds of line ends as "\n",
/// tabs as blanks, and no controls that change the direction of the text after them, in other cells too. A clean text
/// is returned as the same shared string.
QString plainText(const QString& text);

/// Whether every character of `text` takes one column and none is a control: a quick check that most texts pass.
bool isSimpleText(const QString& text);

/// The number of columns of a line: a wide letter takes two, a mark on the letter before it none.
int displayWidth(QStringView line);

/// Removes the next line of at most `width` columns from the front of `text`, a plainText(), and returns it. The line
/// ends at a line end, else at the last blank that fits, else in the middle of a word. It has at least one letter,
/// however small `width` is.
QStringView takeLine(QStringView& text, int width);

} // namespace uiutils
