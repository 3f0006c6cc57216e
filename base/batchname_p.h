#pragma once

#include <QString>

/// Names of settings that travel in a batch, where the index of an indexed one stands behind a colon: "level_3" travels
/// as "level:3".
namespace uiutils {

/// Names of up to three characters stay as they are.
QString toBatchName(QString name);

/// The name that may have travelled as `batchName`.
QString fromBatchName(QString batchName);

} // namespace uiutils
