#pragma once

#include <QString>

namespace uiutils::names {

/// Whether QML code can spell the name: letters of any script, decimal digits and "_", the first one no digit.
bool isQmlName(const QString& name);

} // namespace uiutils::names
