#include "check/services/attributechecks.h"

#include "check/services/jsonwords.h"

#include "embedded/itemtypes_p.h"
#include "formatters/formatters_p.h"

#include <kiv/baseformatter.h>

#include <algorithm>
#include <memory>

namespace uiutils::check {

namespace {

enum Suits : unsigned {
    WholeNumbers = KIVClientItem::TypeInt | KIVClientItem::TypeUInt,
    Numbers = WholeNumbers | KIVClientItem::TypeDouble,
    Texts = KIVClientItem::TypeString,
};

struct EntryField
{
    const char* words;
    unsigned types;
};

/// By the value of `inputType`.
const EntryField entryFields[] = {
        {"none in particular", ~0U},
        {"an IP address", Texts},
        {"an IPv4 address", Texts},
        {"an IPv6 address", Texts},
        {"a MAC address", Texts},
        {"a hexadecimal number", Texts | WholeNumbers},
        {"an octal number", Texts | WholeNumbers},
        {"a binary number", Texts | WholeNumbers},
        {"letters and digits", Texts},
        {"a whole number", WholeNumbers},
        {"a whole number from 0", WholeNumbers},
        {"a number", Numbers},
        {"a number from 0", Numbers},
        {"a duration", Texts | Numbers},
        {"a file name", Texts},
        {"a URL", Texts},
        {"any text", Texts},
        {"a password", Texts},
        {"digits", Texts | WholeNumbers},
        {"a phone number", Texts},
        {"a DNS name", Texts},
};
constexpr int entryFieldCount = int(std::size(entryFields));

QString entryFieldList(unsigned type)
{
    QStringList words;
    for (int i = 0; i < entryFieldCount; ++i) {
        if (entryFields[i].types & type)
            words += QStringLiteral("%1 (%2)").arg(i).arg(QLatin1String(entryFields[i].words));
    }
    return words.join(QLatin1String(", "));
}

class AttributeCheck
{
public:
    AttributeCheck(FileFindings* findings, const ServiceItem& item, RegexCheck* regexes)
        : m_findings(*findings)
        , m_item(item)
        , m_type(kiv::embedded::elementType(item.type))
        , m_regexes(regexes)
    {
    }

    void checkFormatter(const JsonNode& value);
    void checkRegex(const JsonNode& value);
    void checkInputType(const JsonNode& value);
    void checkScale(const JsonNode& value);
    void checkLimit(const JsonNode& value);
    void checkMask(const JsonNode& value);
    void checkName(const JsonNode& value);

private:
    bool isKind(const JsonNode& value, JsonNode::Kind kind, const char* words);

    FileFindings& m_findings;
    const ServiceItem& m_item;
    const unsigned m_type;
    RegexCheck* const m_regexes;
};

bool AttributeCheck::isKind(const JsonNode& value, JsonNode::Kind kind, const char* words)
{
    if (value.kind == kind)
        return true;
    m_findings.error(value,
            QStringLiteral("%1 must be %2, but is %3.")
                    .arg(quoted(value.key), QLatin1String(words), shownValue(value)));
    return false;
}

void AttributeCheck::checkFormatter(const JsonNode& value)
{
    if (!isKind(value, JsonNode::Text, "the name of a formatter in quotation marks"))
        return;
    const QStringList names = kiv::formatters::names();
    const std::unique_ptr<BaseFormatter> formatter(kiv::formatters::create(value.text));
    const QString kind = value.text.section(QLatin1Char(':'), 0, 0);
    if (!formatter && names.contains(kind))
        m_findings.error(value,
                QStringLiteral(
                        "The formatter %1 takes no unit: only \"decimal\", \"scientific\" and \"si\" do, as in \"si:V\".")
                        .arg(quoted(kind)));
    else if (!formatter)
        m_findings.error(value,
                QStringLiteral("There is no formatter %1.").arg(quoted(value.text)) + didYouMean(kind, names)
                        + QStringLiteral(" Allowed are %1.").arg(names.join(QLatin1String(", "))));
    else if (!(m_type & Numbers))
        m_findings.warn(value,
                QStringLiteral("A formatter shows numbers; it does nothing for the type %1.")
                        .arg(quoted(m_item.description.type)));
}

void AttributeCheck::checkRegex(const JsonNode& value)
{
    if (!isKind(value, JsonNode::Text, "a regular expression in quotation marks"))
        return;
    if (m_type != Texts)
        return m_findings.warn(value,
                QStringLiteral("A regular expression is for texts; it does nothing for the type %1.")
                        .arg(quoted(m_item.description.type)));
    const RegexFacts& facts = m_regexes->facts(value.text);
    if (!facts.problem.isEmpty())
        m_findings.error(value,
                QStringLiteral("The regular expression %1 cannot be used, so that every text would be accepted: %2.")
                        .arg(quoted(value.text), facts.problem));
    else if (facts.isCostly)
        m_findings.error(value,
                QStringLiteral(
                        "The regular expression %1 needs too long for some texts of 40 characters, and the screen would freeze: "
                        "it repeats what is repeated already, as in \"(a+)+\". Write it so that every text can be split in only one way.")
                        .arg(quoted(value.text)));
}

void AttributeCheck::checkInputType(const JsonNode& value)
{
    const QString allowed = entryFieldList(m_type);
    if (!isKind(value, JsonNode::Number, "a whole number without quotation marks"))
        return;
    if (!value.isWholeNumber() || value.number < 0 || value.number >= entryFieldCount)
        return m_findings.error(value,
                QStringLiteral("There is no entry field %1. For the type %2 there are: %3.")
                        .arg(shownNumber(value.number), quoted(m_item.description.type), allowed));
    const int number = int(value.number);
    const EntryField& field = entryFields[number];
    if (!(field.types & m_type))
        return m_findings.warn(value,
                QStringLiteral("The entry field %1 is for %2, which does not suit the type %3. For that there are: %4.")
                        .arg(QString::number(number), QLatin1String(field.words), quoted(m_item.description.type),
                                allowed));
    const bool isFromZero = number == 10 || number == 12;
    if (isFromZero && m_item.description.minimum.isValid() && m_item.description.minimum.toDouble() < 0)
        m_findings.warn(value,
                QStringLiteral("The entry field %1 is for %2, but \"minimum\" is %3, which nobody could enter: use %4.")
                        .arg(QString::number(number), QLatin1String(field.words),
                                shownNumber(m_item.description.minimum.toDouble()), QString::number(number - 1)));
}

void AttributeCheck::checkScale(const JsonNode& value)
{
    static const QStringList scales {QStringLiteral("log"), QStringLiteral("duration"), QStringLiteral("date")};
    if (isKind(value, JsonNode::Text, "\"log\", \"duration\" or \"date\"") && !scales.contains(value.text))
        m_findings.error(value,
                QStringLiteral("There is no scale %1: it is \"log\", \"duration\" or \"date\".").arg(quoted(value.text))
                        + didYouMean(value.text, scales));
}

void AttributeCheck::checkLimit(const JsonNode& value)
{
    isKind(value, JsonNode::Number, "a number");
}

void AttributeCheck::checkMask(const JsonNode& value)
{
    isKind(value, JsonNode::Boolean, "true or false");
}

struct NamedCheck
{
    const char* name;
    void (AttributeCheck::*check)(const JsonNode& value);
};

const NamedCheck checks[] = {
        {"formatter", &AttributeCheck::checkFormatter},
        {"regex", &AttributeCheck::checkRegex},
        {"inputType", &AttributeCheck::checkInputType},
        {"scale", &AttributeCheck::checkScale},
        {"lowerLimit", &AttributeCheck::checkLimit},
        {"upperLimit", &AttributeCheck::checkLimit},
        {"mask", &AttributeCheck::checkMask},
};

/// Attributes are free, but one that is nearly called like a known one is a slip.
void AttributeCheck::checkName(const JsonNode& value)
{
    QStringList known;
    for (const NamedCheck& check : checks)
        known += QLatin1String(check.name);
    const QString nearest = didYouMean(value.key, known);
    if (!nearest.isEmpty())
        m_findings.warn(
                value.keyOffset, QStringLiteral("Nothing reads the attribute %1.").arg(quoted(value.key)) + nearest);
}

} // namespace

void checkAttributes(FileFindings* findings, const ServiceItem& item, RegexCheck* regexes)
{
    const JsonNode* attributes = item.node->member("attributes");
    if (!attributes || !attributes->isObject())
        return;
    AttributeCheck check(findings, item, regexes);
    for (const JsonNode& attribute : attributes->children) {
        const auto known = std::find_if(std::begin(checks), std::end(checks),
                [&attribute](const NamedCheck& one) { return attribute.key == QLatin1String(one.name); });
        if (known != std::end(checks))
            (check.*known->check)(attribute);
        else
            check.checkName(attribute);
    }
}

} // namespace uiutils::check
