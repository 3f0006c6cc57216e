#pragma once

#include <QString>
#include <QVariant>
#include <QVector>

#include <optional>

namespace kiv::embedded {

struct ItemDescription
{
    QString id;
    QString type;
    QString label;
    QString unit;
    QVariant value;
    QVariantMap attributes;
    /// Decimals of a shown double; -1: as many as the value needs.
    int precision = -1;
};

struct ServiceDescription
{
    QString service;
    QVector<ItemDescription> items;
};

/// Reads a service file and checks it. Returns nothing, with file, place and reason in `problem`, when it cannot be
/// used.
std::optional<ServiceDescription> readServiceFile(const QString& path, QString* problem);

} // namespace kiv::embedded
