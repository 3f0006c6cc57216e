#pragma once

#include <QString>

/// Names of settings in a batch, where the index of an indexed name follows a colon: "level_3" is sent as "level:3".
namespace uiutils {

/// Names of up to three characters are unchanged.
QString toBatchName(QString name);

/// The name that may have been sent as `batchName`.
QString fromBatchName(QString batchName);

} // namespace uiutils
