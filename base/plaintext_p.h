#pragma once

#include <QString>
#include <QStringView>

/// Text as a terminal or a printer with letters of one width shows it.
namespace uiutils {

/// `text` without what would break the lines of a plain text: markupText(), all kinds of line ends as "\n", a tab as a
/// blank, and no controls that turn the direction of what follows them, other cells included. A clean text comes back
/// as the same shared string.
QString plainText(const QString& text);

/// Whether every character of `text` is one column wide and none is a control, which most texts can be told by quickly.
bool isSimpleText(const QString& text);

/// How many columns a line takes: two for a wide letter, none for a mark upon the letter before it.
int displayWidth(QStringView line);

/// Takes the next line of at most `width` columns off the front of `text`, a plainText(): up to a line end, else the
/// last blank that fits, else in the middle of a word. At least one letter goes, however narrow the line.
QStringView takeLine(QStringView& text, int width);

} // namespace uiutils
