#include "descriptioncheck_p.h"

#include "itemtypes_p.h"
#include "texts_p.h"
#include "valueconversion_p.h"

#include <QHash>
#include <QSet>

#include <cmath>

namespace kiv::embedded {

namespace {

constexpr int maximumNameLength = 255;
constexpr int maximumPrecision = 15;

QString idProblem(const ItemDescription& item, unsigned type)
{
    const QString& id = item.id;
    const bool isAction = id.startsWith(QLatin1String(":action:"));
    const bool hasCategory
            = isAction || id.startsWith(QLatin1String(":config:")) || id.startsWith(QLatin1String(":result:"));
    if (!hasCategory || !id.endsWith(QLatin1Char(':')) || id.size() > maximumNameLength)
        return ServiceFileTexts::tr("the id %1 lacks its category or the colon at its end, or has more than %2 "
                                    "characters")
                .arg(id.left(maximumNameLength), QString::number(maximumNameLength));
    if (type == KIVClientItem::TypeNone)
        return ServiceFileTexts::tr("the type %1 of %2 is unknown").arg(item.type, id);
    for (const QString& array : {QStringLiteral("stringARRAY"), QStringLiteral("doubleARRAY")}) {
        const bool isMarked = id.endsWith(QLatin1Char(':') + array + QLatin1Char(':'));
        if (isMarked != (item.type == array))
            return ServiceFileTexts::tr("the type %1 and the id %2 disagree on whether it is an array")
                    .arg(item.type, id);
    }
    if (isAction != (type == KIVClientItem::TypeAction))
        return ServiceFileTexts::tr("the type %1 and the id %2 disagree on whether it is an action").arg(item.type, id);
    return QString();
}

QString membersProblem(const ItemDescription& item, unsigned type)
{
    const bool needsMembers = type == KIVClientItem::TypeAggregate || type == KIVClientItem::TypeListAggregate;
    if (needsMembers == item.members.isEmpty())
        return needsMembers ? ServiceFileTexts::tr("an aggregate or table without members")
                            : ServiceFileTexts::tr("the type %1 has no members").arg(item.type);
    QSet<QString> names;
    for (int i = 0; i < item.members.size(); ++i) {
        const MemberDescription& member = item.members.at(i);
        const QString place = QStringLiteral("/members/%1: ").arg(i);
        if (member.name.isEmpty() || names.contains(member.name))
            return place + ServiceFileTexts::tr("the name \"%1\" is empty or appears twice").arg(member.name);
        if (!isSimpleType(typeCode(member.type)))
            return place + ServiceFileTexts::tr("a member cannot have the type %1").arg(member.type);
        names += member.name;
    }
    return QString();
}

QString valueProblem(const ItemDescription& item, unsigned type)
{
    if (!item.value.isValid())
        return QString();
    const QString problem = convertToType(type, item.members, item.value).problem;
    return problem.isEmpty() ? QString() : QLatin1String("/value: ") + problem;
}

QString enumerationProblem(const ItemDescription& item, unsigned type)
{
    const bool isEnumeration = item.isEnumeration || !item.choices.isEmpty();
    if (isEnumeration && type != KIVClientItem::TypeInt && type != KIVClientItem::TypeUInt)
        return ServiceFileTexts::tr("the type %1 has no choices").arg(item.type);
    return choicesProblem(type, item.choices);
}

QString actionProblem(const ItemDescription& item, unsigned type)
{
    if (item.does && type != KIVClientItem::TypeAction)
        return ServiceFileTexts::tr("only an action can have \"does\", not the type %1").arg(item.type);
    return item.does && item.does->delayMs < 0 ? ServiceFileTexts::tr("a negative delay") : QString();
}

QString clearableProblem(const ItemDescription& item, unsigned type)
{
    const bool isTextResult = type == KIVClientItem::TypeString && item.id.startsWith(QLatin1String(":result:"));
    return item.isClearable && !isTextResult ? ServiceFileTexts::tr("only a text that is a result can be clearable")
                                             : QString();
}

QString rangeProblem(const ItemDescription& item, unsigned type)
{
    return convertLimits(type, item.minimum, item.maximum).problem;
}

QString precisionProblem(const ItemDescription& item, unsigned)
{
    const bool isSound = item.precision >= -1 && item.precision <= maximumPrecision;
    return isSound ? QString() : ServiceFileTexts::tr("a precision outside 0 to %1").arg(maximumPrecision);
}

/// The items that an action sets must exist; a text with a placeholder for the argument is known only when the action
/// runs.
QString setProblem(const ItemDescription& action, const QHash<QString, const ItemDescription*>& items)
{
    for (auto it = action.does->set.cbegin(); it != action.does->set.cend(); ++it) {
        const ItemDescription* item = items.value(it.key());
        if (!item)
            return ServiceFileTexts::tr("/does/set: there is no item %1").arg(it.key());
        const bool waitsForArgument
                = it->userType() == QMetaType::QString && it->toString().contains(QLatin1String("%1"));
        const QString problem = convertReported(typeCode(item->type), item->members, *it).problem;
        if (!waitsForArgument && !problem.isEmpty())
            return ServiceFileTexts::tr("/does/set: the value of %1: %2").arg(it.key(), problem);
    }
    return QString();
}

QString mountedProblem(const QStringList& paths)
{
    for (int i = 0; i < paths.size(); ++i) {
        if (!paths.at(i).startsWith(QLatin1Char('/')))
            return QStringLiteral("/mounted/%1: ").arg(i) + ServiceFileTexts::tr("a mount point begins with a slash");
    }
    return QString();
}

QString atItem(int index, const QString& problem)
{
    const QLatin1String separator = problem.startsWith(QLatin1Char('/')) ? QLatin1String() : QLatin1String(": ");
    return QStringLiteral("/items/%1").arg(index) + separator + problem;
}

} // namespace

QString serviceProblem(const ServiceDescription& service)
{
    if (service.service.isEmpty() || service.service.size() > maximumNameLength)
        return ServiceFileTexts::tr("/service: a name has 1 to %1 characters").arg(maximumNameLength);
    QHash<QString, const ItemDescription*> items;
    for (int i = 0; i < service.items.size(); ++i) {
        const ItemDescription& item = service.items.at(i);
        const QString problem = items.contains(item.id) ? ServiceFileTexts::tr("the id %1 appears twice").arg(item.id)
                                                        : itemProblem(item);
        if (!problem.isEmpty())
            return atItem(i, problem);
        items.insert(item.id, &item);
    }
    for (int i = 0; i < service.items.size(); ++i) {
        const QString problem = service.items.at(i).does ? setProblem(service.items.at(i), items) : QString();
        if (!problem.isEmpty())
            return atItem(i, problem);
    }
    return mountedProblem(service.mounted);
}

QString itemProblem(const ItemDescription& item)
{
    const unsigned type = typeCode(item.type);
    for (const auto check : {idProblem, membersProblem, valueProblem, rangeProblem, enumerationProblem, actionProblem,
                 clearableProblem, precisionProblem}) {
        const QString problem = check(item, type);
        if (!problem.isEmpty())
            return problem;
    }
    return QString();
}

QString choicesProblem(unsigned type, const QVector<ChoiceDescription>& choices)
{
    QSet<int> values;
    QSet<QString> names;
    for (int i = 0; i < choices.size(); ++i) {
        const ChoiceDescription& choice = choices.at(i);
        const QString place = QStringLiteral("/choices/%1: ").arg(i);
        if (values.contains(choice.value) || (type == KIVClientItem::TypeUInt && choice.value < 0))
            return place + ServiceFileTexts::tr("the value %1 appears twice or is negative").arg(choice.value);
        if (choice.name.isEmpty() || names.contains(choice.name))
            return place + ServiceFileTexts::tr("the name \"%1\" is empty or appears twice").arg(choice.name);
        values += choice.value;
        names += choice.name;
    }
    return QString();
}

Limits convertLimits(unsigned type, const QVariant& minimum, const QVariant& maximum)
{
    if (!minimum.isValid() && !maximum.isValid())
        return {};
    const unsigned element = elementType(type);
    if (element != KIVClientItem::TypeString && element != KIVClientItem::TypeInt && element != KIVClientItem::TypeUInt
            && element != KIVClientItem::TypeDouble)
        return {{}, {}, ServiceFileTexts::tr("a value of this type has no limits")};
    // Lengths are whole numbers.
    const unsigned limitType = element == KIVClientItem::TypeString ? unsigned(KIVClientItem::TypeInt) : element;
    Limits limits;
    for (const bool isMinimum : {true, false}) {
        const QVariant& limit = isMinimum ? minimum : maximum;
        const Conversion conversion = limit.isValid() ? convertToType(limitType, {}, limit) : Conversion();
        if (!conversion.problem.isEmpty() || std::isnan(conversion.value.toDouble()))
            return {{}, {},
                    (isMinimum ? QLatin1String("/minimum: ") : QLatin1String("/maximum: "))
                            + (conversion.problem.isEmpty() ? ServiceFileTexts::tr("not a number")
                                                            : conversion.problem)};
        (isMinimum ? limits.minimum : limits.maximum) = conversion.value;
    }
    if (limits.minimum.isValid() && limits.maximum.isValid() && limits.minimum.toDouble() > limits.maximum.toDouble())
        limits.problem = ServiceFileTexts::tr("the minimum is above the maximum");
    return limits;
}

} // namespace kiv::embedded
