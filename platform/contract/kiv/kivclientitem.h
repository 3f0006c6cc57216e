#pragma once

#include <kiv/kiv_export.h>

#include <QObject>
#include <QString>
#include <QVariant>

/// One item that a service publishes, as its clients see it.
///
/// **Ids** are colon-separated words that begin and end with a colon. The first word is the category: ":config:" is
/// settable, ":result:" read-only, ":action:" invocable. A last word "stringARRAY" or "doubleARRAY" marks an array.
///
/// **Values** are a QString, bool, int, uint or double; a "stringARRAY" item holds a QStringList, a "doubleARRAY"
/// item a QVariantList of doubles. An item without a value holds an invalid variant.
///
/// **Ownership**: items belong to the back end. They live as long as their service is published; keep one over a
/// return to the event loop only in a QPointer.
///
/// **Blocking**: no accessor blocks; a back end that talks to another process answers from what it last heard.
class KIV_EXPORT KIVClientItem : public QObject
{
    Q_OBJECT

public:
    explicit KIVClientItem(QObject* parent = nullptr);
    ~KIVClientItem() override;

    /// The full id, for example ":config:basemgr:system:saveLocation:". Never empty, never changes.
    virtual QString getId() const = 0;

    /// The last word of the id that is no array mark, for example "saveLocation".
    virtual QString getName() const;

    /// What the item is called on a screen, in the language of the user; may be empty.
    virtual QString getLabel() const = 0;

    virtual QVariant getValue() const = 0;

    /// The value as a user reads it, in the user's locale; with the unit behind a blank when `showUnits` is true and
    /// the item has one. Elements of an array are separated by ", ".
    virtual QString getValueString(bool showUnits = true) const = 0;

    /// The unit alone, for example "Mbit/s"; empty without one.
    virtual QString getUnitString() const = 0;

    /// A further attribute by its name; invalid when the item has none of that name.
    virtual QVariant getAttribute(const QString& name) const = 0;

Q_SIGNALS:
    /// The value differs from what it was. Emitted after the accessors give the new value, once per change, and not
    /// when a value equal to the old one is reported.
    void valueChanged();
};
