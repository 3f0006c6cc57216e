#pragma once

#include "servicedescription.h"

#include <QJsonObject>

#include <optional>

namespace kiv::embedded {

/// A service file: what it says, and the service that it describes.
struct ServiceFile
{
    QJsonObject document;
    ServiceDescription service;
};

/// Reads and checks a service file. Returns nothing, with file, place and reason in `problem`, when it cannot be used.
std::optional<ServiceFile> readServiceFile(const QString& path, QString* problem);

} // namespace kiv::embedded
