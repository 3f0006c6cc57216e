#include "check/pages/entryfit.h"

#include "check/pages/pageitems.h"

#include <QHash>

namespace uiutils::check {

namespace {

enum class Needs {
    Anything,
    Number,
    Text,
    /// Digits, as a number or as a text.
    Digits,
    Switch,
    Choices,
    Elements,
};

const QHash<QString, Needs>& entries()
{
    static const QHash<QString, Needs> needs {
            {QStringLiteral("ItemEntry"), Needs::Anything},
            {QStringLiteral("NumberEntry"), Needs::Number},
            {QStringLiteral("ItemStepper"), Needs::Number},
            {QStringLiteral("ItemSlider"), Needs::Number},
            {QStringLiteral("DurationEntry"), Needs::Number},
            {QStringLiteral("TextEntry"), Needs::Text},
            {QStringLiteral("IpEntry"), Needs::Text},
            {QStringLiteral("Ipv4Entry"), Needs::Text},
            {QStringLiteral("Ipv6Entry"), Needs::Text},
            {QStringLiteral("MacEntry"), Needs::Text},
            {QStringLiteral("UrlEntry"), Needs::Text},
            {QStringLiteral("FileNameEntry"), Needs::Text},
            {QStringLiteral("PasswordEntry"), Needs::Text},
            {QStringLiteral("PhoneEntry"), Needs::Text},
            {QStringLiteral("DateEntry"), Needs::Text},
            {QStringLiteral("TimeEntry"), Needs::Text},
            {QStringLiteral("DateTimeEntry"), Needs::Text},
            {QStringLiteral("DigitsEntry"), Needs::Digits},
            {QStringLiteral("HexEntry"), Needs::Digits},
            {QStringLiteral("OctalEntry"), Needs::Digits},
            {QStringLiteral("BinaryEntry"), Needs::Digits},
            {QStringLiteral("SwitchEntry"), Needs::Switch},
            {QStringLiteral("ChoiceEntry"), Needs::Choices},
            {QStringLiteral("SegmentedChoice"), Needs::Choices},
            {QStringLiteral("ListEntry"), Needs::Elements},
    };
    return needs;
}

/// What the item is, and which entry is made for it.
QString natureOf(const names::ItemFacts& item)
{
    if (isVector(item))
        return QStringLiteral("a list (%1): use ListEntry").arg(item.type);
    if (isChoice(item))
        return QStringLiteral("one of several choices: use ChoiceEntry");
    if (isSwitch(item))
        return QStringLiteral("true or false: use SwitchEntry");
    if (isNumber(item))
        return QStringLiteral("a number (%1): use NumberEntry").arg(item.type);
    return QStringLiteral("a text: use TextEntry");
}

bool isKnown(const names::ItemFacts& item)
{
    return isVector(item) || isChoice(item) || isSwitch(item) || isNumber(item) || isText(item);
}

bool suits(Needs needs, const names::ItemFacts& item)
{
    switch (needs) {
    case Needs::Anything:
        return true;
    case Needs::Number:
        return isNumber(item) && !isChoice(item);
    case Needs::Text:
        return isText(item) && !isChoice(item);
    case Needs::Digits:
        return (isNumber(item) || isText(item)) && !isChoice(item);
    case Needs::Switch:
        return isSwitch(item);
    case Needs::Choices:
        return isChoice(item);
    case Needs::Elements:
        return isVector(item);
    }
    return true;
}

/// Whether the entry writes values that the service converts, though another entry was made for them.
bool worksSomehow(Needs needs, const names::ItemFacts& item)
{
    return (needs == Needs::Text && isNumber(item))
            || (isChoice(item) && (needs == Needs::Number || needs == Needs::Text || needs == Needs::Digits));
}

} // namespace

bool isEntry(const QString& type)
{
    return entries().contains(type);
}

Misfit misfit(const QString& entry, const names::ItemFacts& item)
{
    const Needs needs = entries().value(entry, Needs::Anything);
    const QString name = item.contextName();
    if (item.isAction())
        return {Finding::Error,
                QStringLiteral("%1 is an action, which is carried out, not entered. Use a TouchButton with onClicked: "
                               "%1.invoke().")
                        .arg(name)};
    if (isRecord(item) && needs != Needs::Anything)
        return {Finding::Error,
                QStringLiteral("%1 is no single value: an ItemEntry shows it as text. For a member, write \"value\" "
                               "and \"storeWith\" instead of \"item\".")
                        .arg(name)};
    if (!isKnown(item) || suits(needs, item))
        return {};
    return {worksSomehow(needs, item) ? Finding::Warning : Finding::Error,
            QStringLiteral("%1 does not suit %2, which is %3, or ItemEntry, which chooses by itself.")
                    .arg(entry, name, natureOf(item))};
}

} // namespace uiutils::check
