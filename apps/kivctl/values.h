#pragma once

#include <QJsonObject>
#include <QString>
#include <QVariant>

class KIVClientItem;

namespace uiutils::kivctl {

/// A value in the same form in every locale, as a script reads it and "set" takes it; JSON for arrays and aggregates,
/// empty for none.
QString valueText(const QVariant& value);

/// What the service says of an item.
QJsonObject itemJson(const QString& service, const KIVClientItem& item);

/// The value that a text of the command line stands for: the service converts texts to the item's type. Invalid, with
/// the reason in `problem`, when the item needs JSON and this is none.
QVariant settingValue(const KIVClientItem& item, const QString& text, QString* problem);

/// Whether the item can be ready, failing and so on, in one word; empty when there is nothing to say.
QString stateText(const KIVClientItem& item);

} // namespace uiutils::kivctl
