#include "check/services/itemchecks.h"

#include "check/services/attributechecks.h"
#include "check/services/jsonwords.h"
#include "check/services/valuewords.h"

#include "embedded/descriptioncheck_p.h"
#include "embedded/filedescription_p.h"
#include "embedded/itemtypes_p.h"

#include <QSet>

namespace uiutils::check {

using kiv::embedded::ItemDescription;

namespace {

constexpr unsigned numbers = KIVClientItem::TypeInt | KIVClientItem::TypeUInt | KIVClientItem::TypeDouble;

/// The checks of one item.
class ItemCheck
{
public:
    ItemCheck(ServiceDocument* document, const ServiceItem& item, RegexCheck* regexes)
        : m_findings(document->findings)
        , m_item(item)
        , m_description(item.description)
        , m_regexes(regexes)
    {
    }

    void checkId();
    void checkLimits();
    void checkChoices();
    void checkMembers();
    void checkValue();
    void checkWhatIsMissing();

private:
    bool isSetting() const { return m_item.facts.isSetting(); }

    FileFindings& m_findings;
    const ServiceItem& m_item;
    const ItemDescription& m_description;
    RegexCheck* const m_regexes;
};

void ItemCheck::checkId()
{
    const QString& id = m_description.id;
    const JsonNode& place = m_item.part("id");
    for (const QString& array : {QStringLiteral("stringARRAY"), QStringLiteral("doubleARRAY")}) {
        const bool isMarked = id.endsWith(QLatin1Char(':') + array + QLatin1Char(':'));
        if (m_description.type == array && !isMarked)
            return m_findings.error(place,
                    QStringLiteral("The id of an item of the type \"%1\" ends with its type: %2.")
                            .arg(array, quoted(id + array + QLatin1Char(':'))));
        if (m_description.type != array && isMarked)
            return m_findings.error(m_item.part("type"),
                    QStringLiteral("The id ends with \"%1:\", so \"type\" must be \"%1\", but is %2.")
                            .arg(array, quoted(m_description.type)));
    }
    const bool isAction = id.startsWith(QLatin1String(":action:"));
    if (isAction && m_item.type != KIVClientItem::TypeAction)
        m_findings.error(m_item.part("type"),
                QStringLiteral(
                        "An id that begins with :action: belongs to an action, so \"type\" must be \"action\", but is %1.")
                        .arg(quoted(m_description.type)));
    else if (!isAction && m_item.type == KIVClientItem::TypeAction)
        m_findings.error(
                place, QStringLiteral("The id of an action begins with :action:, but this one is %1.").arg(quoted(id)));
    else if (m_item.facts.name.isEmpty() || id.section(QLatin1Char(':'), 2).isEmpty())
        m_findings.error(place,
                QStringLiteral("The id has a category and no name: write it like %1.")
                        .arg(quoted(id.section(QLatin1Char(':'), 0, 1) + QLatin1String(":service:group:name:"))));
}

void ItemCheck::checkLimits()
{
    const QVariant& minimum = m_description.minimum;
    const QVariant& maximum = m_description.maximum;
    const bool isLimited = kiv::embedded::elementType(m_item.type) & (numbers | KIVClientItem::TypeString);
    if (!isLimited && (minimum.isValid() || maximum.isValid()))
        return m_findings.error(m_item.part(minimum.isValid() ? "minimum" : "maximum"),
                QStringLiteral("A value of the type %1 has no limits: remove \"minimum\" and \"maximum\".")
                        .arg(quoted(m_description.type)));
    if (minimum.isValid() && maximum.isValid() && minimum.toDouble() > maximum.toDouble())
        m_findings.error(m_item.part("minimum"),
                QStringLiteral("\"minimum\" %1 is above \"maximum\" %2, so that no value would be allowed.")
                        .arg(shownNumber(minimum.toDouble()), shownNumber(maximum.toDouble())));
}

void ItemCheck::checkChoices()
{
    const JsonNode& list = m_item.part("choices");
    if (!m_description.isEnumeration || !list.isList())
        return;
    if (m_item.type != KIVClientItem::TypeInt && m_item.type != KIVClientItem::TypeUInt)
        return m_findings.error(list,
                QStringLiteral("Only an item of the type \"int\" or \"uint\" has \"choices\", but the type is %1.")
                        .arg(quoted(m_description.type)));
    if (list.children.empty())
        m_findings.warn(list, QStringLiteral("\"choices\" is empty: nothing can be selected."));
    QSet<double> values;
    QSet<QString> names;
    for (const JsonNode& choice : list.children) {
        const JsonNode* value = choice.member("value");
        const JsonNode* name = choice.member("name");
        if (!value || !name)
            continue;
        if (values.contains(value->number))
            m_findings.error(*value,
                    QStringLiteral("Two choices have the value %1: each needs its own.")
                            .arg(shownNumber(value->number)));
        if (m_item.type == KIVClientItem::TypeUInt && value->number < 0)
            m_findings.error(*value, QStringLiteral("A \"uint\" has no value below 0: use the type \"int\"."));
        if (names.contains(name->text))
            m_findings.error(
                    *name, QStringLiteral("Two choices have the name %1: each needs its own.").arg(quoted(name->text)));
        values.insert(value->number);
        names.insert(name->text);
    }
}

void ItemCheck::checkMembers()
{
    const JsonNode& list = m_item.part("members");
    if (!list.isList())
        return;
    if (m_item.type != KIVClientItem::TypeAggregate && m_item.type != KIVClientItem::TypeListAggregate)
        return m_findings.error(list,
                QStringLiteral("Only an \"aggregate\" or a \"listAggregate\" has \"members\", but the type is %1.")
                        .arg(quoted(m_description.type)));
    QSet<QString> names;
    for (const JsonNode& member : list.children) {
        const JsonNode* name = member.member("name");
        if (name && names.contains(name->text))
            m_findings.error(
                    *name, QStringLiteral("Two members have the name %1: each needs its own.").arg(quoted(name->text)));
        names.insert(name ? name->text : QString());
    }
}

void ItemCheck::checkValue()
{
    const JsonNode* value = m_item.node->member("value");
    if (!value)
        return;
    const ValueProblem problem = unsuitableValue(m_item, *value, m_regexes);
    if (problem.message.isEmpty())
        return;
    // What users have not entered yet is loaded like this, and is no text that they could have entered.
    if (isSetting() && value->isText() && value->text.isEmpty())
        m_findings.warn(*problem.place,
                problem.message + QLatin1String(" For a setting that nobody has entered yet, leave \"value\" out."));
    else if (isSetting() || m_description.isEnumeration)
        m_findings.error(*problem.place, problem.message);
    else
        m_findings.warn(*problem.place, problem.message);
}

/// What works, and is hardly what was meant.
void ItemCheck::checkWhatIsMissing()
{
    const bool isWritten = isSetting() && m_description.refusal.isEmpty();
    const bool isOpenBelow = !m_description.minimum.isValid() && m_item.type != KIVClientItem::TypeUInt;
    const bool isOpenAbove = !m_description.maximum.isValid();
    if (isWritten && (m_item.type & numbers) && !m_description.isEnumeration && (isOpenBelow || isOpenAbove))
        m_findings.warn(m_item.part("id"),
                QStringLiteral("The number has no %1: users may set any value. Give it limits.")
                        .arg(isOpenBelow && isOpenAbove ? QStringLiteral("\"minimum\" and no \"maximum\"")
                                        : isOpenBelow   ? QStringLiteral("\"minimum\"")
                                                        : QStringLiteral("\"maximum\"")));
    if (m_item.type == KIVClientItem::TypeAction && !m_description.does)
        m_findings.warn(m_item.part("id"),
                QStringLiteral("The action has no \"does\", so that it fails until C++ code gives it a handler."));
}

/// What only the rules of the platform find, in its words: "/PLACE: REASON" or "REASON".
void checkByPlatform(ServiceDocument* document, const ServiceItem& item)
{
    QString problem;
    if (!item.description.members.isEmpty())
        problem = kiv::embedded::aggregatesProblem(item.description, QJsonValue::fromVariant(item.description.value));
    if (problem.isEmpty())
        problem = kiv::embedded::itemProblem(item.description);
    if (problem.isEmpty())
        return;
    const bool hasPlace = problem.startsWith(QLatin1Char('/'));
    const QString reason = hasPlace ? problem.section(QLatin1String(": "), 1) : problem;
    const JsonNode* place = item.node->at(hasPlace ? problem.section(QLatin1String(": "), 0, 0) : QString());
    if (place->key.isEmpty())
        return document->findings.error(*place, QStringLiteral("The item cannot be used: %1.").arg(reason));
    document->findings.error(*place,
            QStringLiteral("%1 is %2, which cannot be used: %3.").arg(quoted(place->key), shownValue(*place), reason));
}

void checkDuplicates(ServiceDocument* document)
{
    for (int i = 0; i < document->items.size(); ++i) {
        const ServiceItem& item = document->items.at(i);
        if (!item.description.id.isEmpty() && document->byId.value(item.description.id) != i)
            document->findings.error(item.part("id"),
                    QStringLiteral("An item with this id is further up already: each id may appear once."));
    }
}

} // namespace

void checkItems(ServiceDocument* document, RegexCheck* regexes)
{
    for (const ServiceItem& item : qAsConst(document->items)) {
        // What contradicts the schema would be told twice.
        if (!document->isSound(item))
            continue;
        ItemCheck check(document, item, regexes);
        check.checkId();
        check.checkLimits();
        check.checkChoices();
        check.checkMembers();
        if (document->isSound(item))
            checkByPlatform(document, item);
        if (document->isSound(item))
            check.checkValue();
        check.checkWhatIsMissing();
        checkAttributes(&document->findings, item, regexes);
    }
    checkDuplicates(document);
}

} // namespace uiutils::check
