#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

class KIVClientItem;

/// What the instrument reports about itself, its user and its job, read from the services at the moment of the call.
/// Everything is empty if the service or the item is missing.
namespace uiutils::instrument {

/// The base manager's item, which belongs to the back end, or null.
KIVClientItem* baseManagerItem(const QString& id);
/// The item's value; invalid if there is no item.
QVariant baseManagerValue(const QString& id);
/// The value as a text and as a list of texts.
QString baseManagerText(const QString& id);
QStringList baseManagerList(const QString& id);

} // namespace uiutils::instrument
