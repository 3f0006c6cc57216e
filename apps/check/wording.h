#pragma once

#include <QString>
#include <QStringList>

namespace uiutils::check {

/// " Did you mean A, B or C?", or an empty text.
QString proposal(const QStringList& names);
/// The same for what is nearest to a name that does not exist; of slips and others, only the slips.
QString proposal(const QString& wanted, const QStringList& known);
/// "A, B, C and 7 more".
QString enumeration(QStringList names);
/// Whether one character too many, too few or wrong, or two that changed places, make one name of the other.
bool isSlip(const QString& a, const QString& b);

} // namespace uiutils::check
