#include "valuelimits_p.h"

#include "itemtypes_p.h"
#include "texts_p.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace kiv::embedded {

namespace {

bool isBelow(double number, const QVariant& minimum)
{
    return minimum.isValid() && number < minimum.toDouble();
}

bool isAbove(double number, const QVariant& maximum)
{
    return maximum.isValid() && number > maximum.toDouble();
}

QString numberProblem(const ItemDescription& item, double number)
{
    if (!std::isfinite(number))
        return ValueTexts::tr("not a finite number");
    return isBelow(number, item.minimum) || isAbove(number, item.maximum) ? ValueTexts::tr("out of range") : QString();
}

QString textProblem(const ItemDescription& item, const QString& text)
{
    if (isBelow(text.size(), item.minimum))
        return ValueTexts::tr("too short");
    if (isAbove(text.size(), item.maximum))
        return ValueTexts::tr("too long");
    const QString pattern = item.attributes.value(QStringLiteral("regex")).toString();
    if (pattern.isEmpty())
        return QString();
    const QRegularExpression form(QRegularExpression::anchoredPattern(pattern));
    return form.isValid() && !form.match(text).hasMatch() ? ValueTexts::tr("not of the expected form") : QString();
}

QString choiceProblem(const ItemDescription& item, const QVariant& value)
{
    if (item.choices.isEmpty())
        return QString();
    const bool isChoice = std::any_of(item.choices.cbegin(), item.choices.cend(),
            [&](const ChoiceDescription& choice) { return double(choice.value) == value.toDouble(); });
    return isChoice ? QString() : ValueTexts::tr("not one of the choices");
}

QString simpleProblem(const ItemDescription& item, unsigned type, const QVariant& value)
{
    if (type == KIVClientItem::TypeString)
        return textProblem(item, value.toString());
    if (type != KIVClientItem::TypeInt && type != KIVClientItem::TypeUInt && type != KIVClientItem::TypeDouble)
        return QString();
    const QString problem = numberProblem(item, value.toDouble());
    return problem.isEmpty() ? choiceProblem(item, value) : problem;
}

/// Members have no limits, but NaN and infinity can be neither sent nor stored.
QString finiteProblem(const QVariantMap& aggregate)
{
    for (auto it = aggregate.cbegin(); it != aggregate.cend(); ++it) {
        if (it->userType() == QMetaType::Double && !std::isfinite(it->toDouble()))
            return ValueTexts::tr("member \"%1\": %2").arg(it.key(), ValueTexts::tr("not a finite number"));
    }
    return QString();
}

QString settableProblem(const ItemDescription& item, unsigned type, const QVariant& value)
{
    if (type == KIVClientItem::TypeAggregate)
        return finiteProblem(value.toMap());
    if (isSimpleType(type))
        return simpleProblem(item, type, value);
    const QVariantList elements = value.toList();
    for (int i = 0; i < elements.size(); ++i) {
        const QString problem = type == KIVClientItem::TypeListAggregate
                ? finiteProblem(elements.at(i).toMap())
                : simpleProblem(item, elementType(type), elements.at(i));
        if (!problem.isEmpty())
            return atElement(i, problem);
    }
    return QString();
}

} // namespace

Conversion convertForItem(const ItemDescription& item, unsigned type, const QVariant& value)
{
    Conversion conversion = convertToType(type, item.members, value);
    if (conversion.problem.isEmpty())
        conversion.problem = settableProblem(item, type, conversion.value);
    return conversion;
}

} // namespace kiv::embedded
