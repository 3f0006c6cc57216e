#pragma once

#include <kiv/kivclientitem.h>

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <optional>

namespace kiv::embedded {

/// One of the values that an enumeration can have.
struct ChoiceDescription
{
    /// The value that the item has with the choice.
    int value = 0;
    /// The name in programs, unique among the choices.
    QString name;
    /// The text that the user reads; the name when it is empty.
    QString label;
    /// Whether the choice can be selected now.
    bool isApplicable = true;

    /// Whether both are the same in everything.
    friend bool operator==(const ChoiceDescription& a, const ChoiceDescription& b)
    {
        return a.value == b.value && a.name == b.name && a.label == b.label && a.isApplicable == b.isApplicable;
    }
};

/// A member of an aggregate, or a column of a table.
struct MemberDescription
{
    /// The name in programs, unique among the members.
    QString name;
    /// "std::string", "bool", "int", "uint" or "double".
    QString type;

    /// Whether both are the same in everything.
    friend bool operator==(const MemberDescription& a, const MemberDescription& b)
    {
        return a.name == b.name && a.type == b.type;
    }
};

/// What an action does at a client's request. In `reply` and in the texts of `set`, "%1" stands for the argument.
struct ActionDescription
{
    /// Values by the id of an item of the same service, of any category.
    QVariantMap set;
    /// The answer in words.
    QString reply;
    /// Not empty: the action fails with this text and sets nothing.
    QString fail;
    /// Milliseconds until the answer, in addition to the service's own delay.
    int delayMs = 0;
};

/// An item as it is when its service is published; docs/service-files.md says what each field means.
struct ItemDescription
{
    /// The full id, for example ":config:optical:test:range:".
    QString id;
    /// As in a service file: "std::string", "bool", "int", "uint", "double", "stringARRAY", "doubleARRAY", "aggregate",
    /// "listAggregate" or "action".
    QString type;
    /// What the item is called on a screen.
    QString label;
    /// The unit of the value; empty without one.
    QString unit;
    /// Converted to the item's type; invalid for an item without a value.
    QVariant value;
    /// Further attributes by their names; see KIVClientItem::getAttribute().
    QVariantMap attributes;
    /// Decimals of a double that is shown; -1 for as many as the value needs.
    int precision = -1;
    /// Limits of values from clients: of a number, or of the length of a text; invalid for none. For an array, the
    /// limits of each element.
    QVariant minimum;
    /// See `minimum`.
    QVariant maximum;
    /// An int or uint with choices is an enumeration; with `isEnumeration` it is one even without choices.
    QVector<ChoiceDescription> choices;
    /// Whether an item without choices is an enumeration.
    bool isEnumeration = false;
    /// Members of an aggregate or a list aggregate.
    QVector<MemberDescription> members;
    /// How the service judges the value.
    KIVClientItem::Quality quality = KIVClientItem::QualityNone;
    /// Whether the service can report or accept the value.
    bool isReady = true;
    /// Whether the item has a meaning now.
    bool isApplicable = true;
    /// Takes the place of `isApplicable` unless it is empty.
    QString applicableExpr;
    /// Not empty: every write of a client is rejected with this text.
    QString refusal;
    /// For a text that is a result: clients may clear it.
    bool isClearable = false;
    /// What an action does; without it the action needs a handler.
    std::optional<ActionDescription> does;
};

/// A service as it is published; docs/service-files.md says what each field means.
struct ServiceDescription
{
    /// The name under which clients find the service; 1 to 255 characters.
    QString service;
    /// In the order in which clients see them.
    QVector<ItemDescription> items;
    /// Milliseconds until the service answers a call.
    int delayMs = 0;
    /// The instrument's mount points, such as "/mnt/usb/", at which the service has a drive mounted.
    QStringList mounted;
};

} // namespace kiv::embedded
