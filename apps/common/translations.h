#pragma once

#include <QString>

namespace uiutils::apps {

/// The folder with the installed translations of a set of pages, such as "examples"; empty if they are not installed.
QString translationsOf(const QString& pages);

} // namespace uiutils::apps
