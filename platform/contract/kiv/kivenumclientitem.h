#pragma once

#include <kiv/kiv_export.h>
#include <kiv/kivclientitem.h>

/// The choices of an enumeration, in the order in which they are offered. They belong to their item and may change
/// while it lives. Positions outside 0 to count() - 1 give the neutral answer (-1, an empty text, false).
class KIV_EXPORT KIVEnumChoicesClientItem : public QObject
{
    Q_OBJECT

public:
    explicit KIVEnumChoicesClientItem(QObject* parent = nullptr);
    ~KIVEnumChoicesClientItem() override;

    /// How many choices there are.
    virtual int count() const = 0;
    /// The value that the item has with the choice.
    virtual int valueAt(int position) const = 0;
    /// The name in programs, for example "Internal"; unique among the choices.
    virtual QString nameAt(int position) const = 0;
    /// The text that the user reads.
    virtual QString labelAt(int position) const = 0;
    /// Whether the choice can be selected now.
    virtual bool isApplicableAt(int position) const = 0;

    /// The position of the choice with that value, or -1.
    virtual int indexOf(int value) const;
    /// Whether a choice has that value.
    bool contains(int value) const { return indexOf(value) >= 0; }
    /// The label of the choice with that value; empty without such a choice. Pass a negative value as its two's
    /// complement.
    QString labelForValue(unsigned value) const { return labelAt(indexOf(int(value))); }

Q_SIGNALS:
    /// The choices, or their names, labels or states, have changed.
    void valueChanged();
};

/// An item whose value is one of a few numbers.
class KIV_EXPORT KIVEnumClientItem : public KIVClientItem
{
    Q_OBJECT

public:
    explicit KIVEnumClientItem(QObject* parent = nullptr);
    ~KIVEnumClientItem() override;

    /// The choices, owned by the item; null when the service names none. Always the same object while the item lives.
    virtual KIVEnumChoicesClientItem* getChoices() const = 0;
};
