#pragma once

#include "servicedescription.h"

#include <kiv/baseformatter.h>

#include <memory>

namespace kiv::embedded {

/// What a service knows of one of its items. It exists even while the service cannot be reached and clients have no
/// object of the item. Code that reports a change holds a reference, because a slot may remove the service.
class ItemState
{
public:
    /// Which of the item's answers a new value has changed.
    struct Changes
    {
        bool value = false;
        bool unit = false;
    };

    /// The value and the limits must be convertible to the type.
    explicit ItemState(const ItemDescription& description);
    Q_DISABLE_COPY_MOVE(ItemState)

    ItemDescription description;
    const unsigned type;
    /// The clients' object of the item; null while the service cannot be reached.
    KIVClientItem* item = nullptr;
    /// Position of the item in the service's order.
    quint64 position = 0;
    /// Whether the value is stored in the service's state file.
    bool isKept = false;

    bool isSetting() const { return description.id.startsWith(QLatin1String(":config:")); }
    bool isEnumeration() const { return description.isEnumeration || !description.choices.isEmpty(); }
    /// The last word of the id that is not an array mark.
    QString name() const;
    /// The label; if it is empty, the name.
    QString title() const;

    QString typeName() const;
    QString valueText(bool showUnits) const;
    QString unitText() const;
    QVariant attribute(const QString& name) const;
    void setAttribute(const QString& name, const QVariant& value);

    /// Sets a value of the item's type, or an invalid one for none, and emits nothing.
    Changes takeValue(const QVariant& value);

private:
    BaseFormatter* formatter() const;
    QString choiceText() const;
    QString formattedText(bool showUnits) const;
    int precision() const;

    mutable std::unique_ptr<BaseFormatter> m_formatter;
    mutable bool m_hasLookedForFormatter = false;
};

/// Emits the change to clients. Do not use anything of the service after this.
void emitChanges(const std::shared_ptr<ItemState>& state, ItemState::Changes changes);

} // namespace kiv::embedded
