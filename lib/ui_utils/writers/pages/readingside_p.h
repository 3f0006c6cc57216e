#pragma once

#include <QStringView>

#include <Qt>

namespace uiutils {

/// Whether most letters of a text belong to scripts that are read from right to left; false without letters. Only the
/// beginning of a long text counts.
bool isReadFromRight(QStringView text);
/// Whether a text has any letter, by which it is read from one side or the other.
bool hasReadingSide(QStringView text);

/// The side at which lines of the text begin.
Qt::Alignment readingSideOf(QStringView text);

} // namespace uiutils
