#pragma once

#include <kiv/kiv_export.h>

#include <QObject>
#include <QString>
#include <QVariant>

/// One item that a service publishes, as its clients see it.
///
/// **Ids** are colon-separated words that begin and end with a colon. The first word is the category: ":config:" is
/// settable, ":result:" read-only, ":action:" invocable. A last word "stringARRAY" or "doubleARRAY" marks an array. The
/// id of a service's manifest, through which a batch of settings is applied, ends in ":manifest:".
///
/// **Values** are a QString, bool, int, uint or double; a "stringARRAY" item holds a QStringList, a "doubleARRAY" item
/// a QVariantList of doubles, an aggregate a QVariantMap, a list aggregate a QVariantList of those. An item without a
/// value holds an invalid variant. A client sets values through KIVClientInterface::setItem().
///
/// **Kinds**: an enumeration is a KIVEnumClientItem, an array a KIVVecClientItem, an aggregate a
/// KivAggregateClientItem, a table a KivListAggregateClientItem; qobject_cast distinguishes them.
///
/// **Signals** are emitted on the item's thread, after the accessors give the new answer, once for each change, and not
/// when the reported value equals the old one. A slot may do anything except delete the item.
///
/// **Ownership**: items belong to the back end. They live as long as their service is reachable and publishes them.
/// Across a return to the event loop keep an item only in a QPointer. An item that returns under its id is a new
/// object, see KIVClientInterface::itemsChanged().
///
/// **Blocking**: no accessor blocks; a back end that talks to another process answers with what it last received.
class KIV_EXPORT KIVClientItem : public QObject
{
    Q_OBJECT

public:
    /// The results of getType(); a kind that is not listed is a single value.
    enum TypeCode : unsigned {
        TypeNone = 0,
        TypeString = 0x1,
        TypeBool = 0x2,
        TypeInt = 0x4,
        TypeUInt = 0x8,
        TypeDouble = 0x10,
        TypeStringArray = 0x20,
        TypeDoubleArray = 0x40,
        TypeAction = 0x80,
        /// A KivAggregateClientItem.
        TypeAggregate = 0x4000000,
        /// A KivListAggregateClientItem.
        TypeListAggregate = 0x8000000,
    };

    /// The results of getQualityCode(): how the service judges the value.
    enum Quality {
        QualityNone = 0,
        QualityPassing = 16,
        QualityWarning = 32,
        QualityFailing = 64,
    };

    explicit KIVClientItem(QObject* parent = nullptr);
    ~KIVClientItem() override;

    /// A TypeCode.
    virtual unsigned getType() const = 0;

    /// The type's name: "std::string", "bool", "int", "uint", "double", "std::vector<string>", "std::vector<double>",
    /// "action", "aggregate" or "listAggregate"; empty for an item without a type. An enumeration has the type of its
    /// value.
    virtual QString getTypeName() const = 0;

    /// The full id, for example ":config:basemgr:system:saveLocation:". Never empty, never changes.
    virtual QString getId() const = 0;

    /// The last word of the id that is not an array mark, for example "saveLocation".
    virtual QString getName() const;

    /// The item's name on a screen, in the user's language; may be empty.
    virtual QString getLabel() const = 0;

    /// The value; invalid for an item without one.
    virtual QVariant getValue() const = 0;

    /// The value as a user reads it, in the user's locale; followed by a blank and the unit when `showUnits` is true
    /// and the item has one. Elements of an array are separated by ", "; an enumeration reads as its choice's label.
    virtual QString getValueString(bool showUnits = true) const = 0;

    /// Only the unit, for example "Mbit/s"; empty without one.
    virtual QString getUnitString() const = 0;

    /// The limits of the value, or of the length of a text; invalid without a limit.
    virtual QVariant getMinRange() const = 0;
    /// See getMinRange().
    virtual QVariant getMaxRange() const = 0;

    /// Whether the service can report or accept the value now; an item that is not ready keeps its last value.
    virtual bool isReady() const = 0;

    /// A Quality.
    virtual int getQualityCode() const = 0;

    /// Whether the item has a meaning in the service's present state. Only for items without an expression.
    virtual bool isApplicable() const = 0;

    /// When the item has a meaning, as an expression over other items such as "cfg.mode == 2" or "module.res.state !=
    /// 0"; empty when isApplicable() decides.
    virtual QString getApplicableExpr() const = 0;

    /// Another attribute by its name; invalid when the item has no such attribute. Screens know these: "label", "type",
    /// "minRange", "maxRange" (as the accessors give them), "precision" (decimals), "inputType" (which entry field, a
    /// number), "regex" (of an acceptable text), "formatter" (a name for getFormatter()) and "enum" (not empty on an
    /// enumeration). A platform that translates what it shows says here what it has translated, for recordings:
    /// "sourceLabel", "sourceUnit" and, of an enumeration, "sourceChoices", a list of labels.
    virtual QVariant getAttribute(const QString& name) const = 0;

Q_SIGNALS:
    /// getValue() and getValueString() give another answer.
    void valueChanged();
    /// getUnitString() gives another answer.
    void unitsChanged();
    /// isReady() gives another answer.
    void isReadyChanged();
    /// getQualityCode() gives another answer.
    void qualityChanged();
    /// Not emitted when an expression decides.
    void isApplicableChanged();
};
