#pragma once

#include "servicedescription.h"

#include <kiv/baseformatter.h>

#include <memory>

namespace kiv::embedded {

/// What a service knows of one of its items. It is there also while the service cannot be reached and no client has the
/// item's object; whoever reports a change holds it, since a slot may end the service.
class ItemState
{
public:
    /// What a new value made of the item's answers.
    struct Changes
    {
        bool value = false;
        bool unit = false;
    };

    /// The value and the limits must convert to the type.
    explicit ItemState(const ItemDescription& description);
    Q_DISABLE_COPY_MOVE(ItemState)

    ItemDescription description;
    const unsigned type;
    /// What clients have of the item; null while the service cannot be reached.
    KIVClientItem* item = nullptr;
    /// Counts the items of a service in their order.
    quint64 position = 0;
    /// Whether the value goes into the service's state file.
    bool isKept = false;

    bool isSetting() const { return description.id.startsWith(QLatin1String(":config:")); }
    bool isEnumeration() const { return description.isEnumeration || !description.choices.isEmpty(); }
    /// The last word of the id that is no array mark.
    QString name() const;
    /// The label, or else the name.
    QString title() const;

    QString typeName() const;
    QString valueText(bool showUnits) const;
    QString unitText() const;
    QVariant attribute(const QString& name) const;
    void setAttribute(const QString& name, const QVariant& value);

    /// Takes a value of the item's type, or an invalid one for none, and tells nobody.
    Changes takeValue(const QVariant& value);

private:
    BaseFormatter* formatter() const;
    QString choiceText() const;
    QString formattedText(bool showUnits) const;
    int precision() const;

    mutable std::unique_ptr<BaseFormatter> m_formatter;
    mutable bool m_hasLookedForFormatter = false;
};

/// Emits what clients shall hear of a change. Nothing of the service may be touched after that.
void tell(const std::shared_ptr<ItemState>& state, ItemState::Changes changes);

} // namespace kiv::embedded
