#pragma once

#include <QString>
#include <QStringList>

namespace uiutils::apps {

/// The ids, or names of services, that somebody who wrote `wanted` may have meant, the likeliest first, at most three:
/// those that differ in a few characters, and those that end in the same word.
QStringList nearest(const QString& wanted, const QStringList& known);

} // namespace uiutils::apps
