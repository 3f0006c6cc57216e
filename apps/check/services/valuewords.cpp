#include "check/services/valuewords.h"

#include "check/services/jsonwords.h"

#include "embedded/itemtypes_p.h"
#include "embedded/valueconversion_p.h"

#include <algorithm>

namespace uiutils::check {

using kiv::embedded::ChoiceDescription;

namespace {

constexpr unsigned numbers = KIVClientItem::TypeInt | KIVClientItem::TypeUInt | KIVClientItem::TypeDouble;

QString choiceWords(const ServiceItem& item)
{
    constexpr int mostShown = 8;
    QStringList words;
    const QVector<ChoiceDescription> shown = item.description.choices.mid(0, mostShown);
    for (const ChoiceDescription& choice : shown)
        words += QStringLiteral("%1 (%2)").arg(choice.value).arg(choice.name.left(30));
    if (item.description.choices.size() > mostShown)
        words += QString(QChar(0x2026));
    return words.join(QLatin1String(", "));
}

bool isOutside(double number, const ServiceItem& item)
{
    const QVariant& minimum = item.description.minimum;
    const QVariant& maximum = item.description.maximum;
    return (minimum.isValid() && number < minimum.toDouble()) || (maximum.isValid() && number > maximum.toDouble());
}

QString numberProblem(const ServiceItem& item, double number)
{
    const auto& choices = item.description.choices;
    if (isOutside(number, item))
        return QStringLiteral("%1 is outside %2.").arg(shownNumber(number), limitWords(item));
    const bool isChoice = choices.isEmpty()
            || std::any_of(choices.cbegin(), choices.cend(),
                    [number](const ChoiceDescription& choice) { return double(choice.value) == number; });
    return isChoice
            ? QString()
            : QStringLiteral("%1 is none of the choices, which are %2.").arg(shownNumber(number), choiceWords(item));
}

QString textProblem(const ServiceItem& item, const QString& text, RegexCheck* regexes)
{
    if (isOutside(text.size(), item))
        return QStringLiteral("The text %1 has %2 characters, which is outside %3.")
                .arg(quoted(text), QString::number(text.size()), limitWords(item));
    const QVariant regex = item.description.attributes.value(QStringLiteral("regex"));
    const QString pattern = regex.toString();
    if (pattern.isEmpty() || regex.userType() != QMetaType::QString)
        return QString();
    const RegexFacts& facts = regexes->facts(pattern);
    if (!facts.problem.isEmpty() || facts.isCostly || facts.form.match(text).hasMatch())
        return QString();
    return QStringLiteral("The text %1 does not match the item's own \"regex\" %2 completely.")
            .arg(quoted(text), quoted(pattern));
}

QString simpleProblem(const ServiceItem& item, unsigned type, const JsonNode& value, RegexCheck* regexes)
{
    if ((type & numbers) && value.isNumber())
        return numberProblem(item, value.number);
    return type == KIVClientItem::TypeString && value.isText() ? textProblem(item, value.text, regexes) : QString();
}

QVariant variantOf(const JsonNode& value)
{
    switch (value.kind) {
    case JsonNode::Null:
        return QVariant();
    case JsonNode::Boolean:
        return value.boolean;
    case JsonNode::Number:
        return value.number;
    case JsonNode::Text:
        return value.text;
    case JsonNode::List: {
        QVariantList list;
        for (const JsonNode& element : value.children)
            list.append(variantOf(element));
        return list;
    }
    case JsonNode::Object: {
        QVariantMap map;
        for (const JsonNode& member : value.children)
            map.insert(member.key, variantOf(member));
        return map;
    }
    }
    return QVariant();
}

} // namespace

QString limitWords(const ServiceItem& item)
{
    const QVariant& minimum = item.description.minimum;
    const QVariant& maximum = item.description.maximum;
    if (!minimum.isValid() && !maximum.isValid())
        return QString();
    if (!maximum.isValid())
        return QStringLiteral("the limits: at least %1").arg(shownNumber(minimum.toDouble()));
    return minimum.isValid() ? QStringLiteral("the limits %1 to %2")
                                       .arg(shownNumber(minimum.toDouble()), shownNumber(maximum.toDouble()))
                             : QStringLiteral("the limits: at most %1").arg(shownNumber(maximum.toDouble()));
}

ValueProblem unsuitableValue(const ServiceItem& item, const JsonNode& value, RegexCheck* regexes)
{
    const unsigned element = kiv::embedded::elementType(item.type);
    if (element == item.type)
        return {&value, simpleProblem(item, item.type, value, regexes)};
    for (const JsonNode& one : value.children) {
        const QString message = simpleProblem(item, element, one, regexes);
        if (!message.isEmpty())
            return {&one, message};
    }
    return {&value, QString()};
}

QString typeProblem(const ServiceItem& item, const JsonNode& value)
{
    const auto& members = item.description.members;
    const QString problem = kiv::embedded::convertReported(item.type, members, variantOf(value)).problem;
    if (problem.isEmpty())
        return QString();
    QString sentence = QStringLiteral("%1 cannot be the value of %2, whose type is \"%3\": %4.")
                               .arg(shownValue(value), item.description.id, item.description.type, problem);
    sentence[0] = sentence.at(0).toUpper();
    return sentence;
}

} // namespace uiutils::check
