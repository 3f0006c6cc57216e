#pragma once

#include "servicedescription.h"

#include <kiv/baseformatter.h>

#include <memory>

namespace kiv::embedded {

class ItemState;

/// What a service says of an item and may change while the item lives. The numbers travel between processes.
enum class ItemField : quint8 {
    Value = 1,
    Label = 2,
    Unit = 3,
    Ready = 4,
    Quality = 5,
    Applicable = 6,
    Minimum = 7,
    Maximum = 8,
    Choices = 9,
    Attributes = 10,
};

/// Carries the items of a service further than its own process.
class ItemWatcher
{
public:
    ItemWatcher() = default;
    virtual ~ItemWatcher() = default;
    Q_DISABLE_COPY_MOVE(ItemWatcher)

    /// A field has changed, and nobody knows yet. Only notes it.
    virtual void fieldChanged(ItemState* state, ItemField field) = 0;
};

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
    /// The number that other processes know the item by; the watcher gives it.
    quint32 number = 0;
    /// Null when nobody watches.
    ItemWatcher* watcher = nullptr;

    bool isSetting() const { return description.id.startsWith(QLatin1String(":config:")); }
    bool isEnumeration() const { return description.isEnumeration || !description.choices.isEmpty(); }
    /// The last word of the id that is not an array mark.
    QString name() const;
    /// In the language of this process, as are all labels that are shown.
    QString label() const;
    /// The label; if it is empty, the name.
    QString title() const;

    QString typeName() const;
    QString valueText(bool showUnits) const;
    QString unitText() const;
    QVariant attribute(const QString& name) const;
    void setAttribute(const QString& name, const QVariant& value);
    void setAttributes(const QVariantMap& attributes);

    /// Sets a value of the item's type, or an invalid one for none. Only the watcher is notified.
    Changes takeValue(const QVariant& value);

    /// Tells the watcher.
    void note(ItemField field)
    {
        if (watcher)
            watcher->fieldChanged(this, field);
    }

private:
    QVariant sourceText(const QString& name) const;
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
