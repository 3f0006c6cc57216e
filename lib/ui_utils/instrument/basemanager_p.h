#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

class KIVClientItem;

/// What the instrument says of itself, its user and its job, read from the services at the moment of the call. All of
/// it is empty where the service or the item is missing.
namespace uiutils::instrument {

/// The base manager's item, or null; belongs to the back end.
KIVClientItem* baseManagerItem(const QString& id);
/// The item's value; invalid without it.
QVariant baseManagerValue(const QString& id);
/// The value as a text and as a list of texts.
QString baseManagerText(const QString& id);
QStringList baseManagerList(const QString& id);

} // namespace uiutils::instrument
