#include "check/services/schemawords.h"

#include "check/services/jsonwords.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace uiutils::check {

namespace {

/// How values of a type are called; `kind` is the schema's word.
QString typeWords(const QString& kind)
{
    static const QHash<QString, QString> words {
            {QStringLiteral("object"), QStringLiteral("an object in braces { }")},
            {QStringLiteral("array"), QStringLiteral("a list in brackets [ ]")},
            {QStringLiteral("string"), QStringLiteral("a text in quotation marks")},
            {QStringLiteral("integer"), QStringLiteral("a whole number")},
            {QStringLiteral("number"), QStringLiteral("a number")},
            {QStringLiteral("boolean"), QStringLiteral("true or false")},
    };
    return words.value(kind, kind);
}

/// What a form means that the schema has as a regular expression.
QString patternWords(const QString& pattern)
{
    static const QHash<QString, QString> words {
            {QStringLiteral("^:(config|result|action):"),
                    QStringLiteral("begin with :config: (a setting), :result: or :action:")},
            {QStringLiteral(":$"), QStringLiteral("end with a colon")},
            {QStringLiteral("^/"), QStringLiteral("begin with a slash")},
    };
    return words.value(pattern, QStringLiteral("have the form %1").arg(pattern));
}

bool isOfType(const JsonNode& value, const QString& type)
{
    if (type == QLatin1String("integer"))
        return value.isWholeNumber();
    static const QHash<QString, JsonNode::Kind> kinds {
            {QStringLiteral("object"), JsonNode::Object},
            {QStringLiteral("array"), JsonNode::List},
            {QStringLiteral("string"), JsonNode::Text},
            {QStringLiteral("number"), JsonNode::Number},
            {QStringLiteral("boolean"), JsonNode::Boolean},
    };
    return kinds.value(type, JsonNode::Null) == value.kind;
}

bool isSame(const JsonNode& a, const JsonNode& b)
{
    return a.kind == b.kind && a.boolean == b.boolean && a.number == b.number && a.text == b.text && a.children.empty()
            && b.children.empty();
}

QString asWritten(const JsonNode& value)
{
    if (value.isText())
        return quoted(value.text);
    if (value.kind == JsonNode::Boolean)
        return value.boolean ? QStringLiteral("true") : QStringLiteral("false");
    return value.isNumber() ? shownNumber(value.number) : QStringLiteral("null");
}

QStringList keysOf(const JsonNode* object)
{
    QStringList keys;
    if (object) {
        for (const JsonNode& child : object->children)
            keys += child.key;
    }
    return keys;
}

QString inQuotes(const QStringList& words)
{
    QStringList list;
    for (const QString& word : words)
        list += quoted(word);
    return list.join(QLatin1String(", "));
}

/// How messages call a value. Words are made when something is wrong, which is rare.
struct Name
{
    /// A key, or what stands for one.
    QString text;
    bool isKey = true;
    /// From 1, of an element of the list that is called so.
    int element = 0;

    QString words() const
    {
        const QString name = isKey ? quoted(text) : text;
        return element > 0 ? QStringLiteral("Element %1 of %2").arg(QString::number(element), name) : name;
    }
};

/// The value beside it with which a rule holds; null where it always does.
struct Condition
{
    const JsonNode* value = nullptr;

    QString words() const
    {
        return value ? QStringLiteral(" where %1 is %2").arg(quoted(value->key), asWritten(*value)) : QString();
    }
};

/// Whether the value is the one, or one of those, that a condition names.
bool isNamed(const JsonNode& rule, const JsonNode& value)
{
    const JsonNode* only = rule.member("const");
    const JsonNode* any = rule.member("enum");
    const auto isIt = [&value](const JsonNode& one) { return isSame(one, value); };
    return only ? isIt(*only) : any && std::any_of(any->children.cbegin(), any->children.cend(), isIt);
}

/// Walks schema and document together.
class Walk
{
public:
    explicit Walk(const JsonNode& schema)
        : m_root(schema)
    {
    }

    void check(const JsonNode& rule, const JsonNode& value, const Name& name, const Condition& condition);
    QVector<Violation> take() { return m_violations; }

private:
    void checkType(const JsonNode& rule, const JsonNode& value);
    void checkEnum(const JsonNode& allowed, const JsonNode& value);
    void checkNumber(const JsonNode& rule, const JsonNode& value);
    void checkText(const JsonNode& rule, const JsonNode& value);
    bool hasForm(const QString& text, const JsonNode& pattern);
    void checkSize(const JsonNode& rule, const JsonNode& value);
    void checkList(const JsonNode& rule, const JsonNode& value, const Condition& condition);
    void checkObject(const JsonNode& rule, const JsonNode& value, const Condition& condition);
    void checkKeys(const JsonNode& rule, const JsonNode& value);
    void checkDependencies(const JsonNode& dependencies, const JsonNode& value);
    void checkCondition(const JsonNode& rule, const JsonNode& value, const Name& name);
    void checkOneOf(const JsonNode& branches, const JsonNode& value, const Name& name, const Condition& condition);
    void checkNot(const JsonNode& rule, const JsonNode& value);
    const JsonNode& resolved(const JsonNode& rule) const;
    QString placeFor(const QString& key, const JsonNode& properties) const;
    void mustBe(const JsonNode& value, const QString& what);
    void tell(int offset, const QString& message);

    const JsonNode& m_root;
    /// Of the value that is looked at.
    Name m_name;
    Condition m_condition;
    QString m_meaning;
    /// By the rule that has them.
    QHash<const JsonNode*, QRegularExpression> m_forms;
    QVector<Violation> m_violations;
};

const JsonNode& Walk::resolved(const JsonNode& rule) const
{
    const JsonNode* reference = rule.member("$ref");
    return reference && reference->isText() ? *m_root.at(reference->text.mid(1)) : rule;
}

void Walk::tell(int offset, const QString& message)
{
    m_violations.append({offset, message});
}

void Walk::mustBe(const JsonNode& value, const QString& what)
{
    const QString meaning = m_meaning.isEmpty() ? QString() : QStringLiteral(" Meaning: ") + m_meaning;
    tell(value.offset,
            QStringLiteral("%1 must %2%3, but is %4.").arg(m_name.words(), what, m_condition.words(), shownValue(value))
                    + meaning);
}

void Walk::check(const JsonNode& written, const JsonNode& value, const Name& name, const Condition& condition)
{
    const JsonNode& rule = resolved(written);
    m_name = name;
    m_condition = condition;
    m_meaning = written.textOf("description");
    if (m_meaning.isEmpty())
        m_meaning = rule.textOf("description");
    const int before = m_violations.size();
    checkType(rule, value);
    if (const JsonNode* allowed = rule.member("enum"))
        checkEnum(*allowed, value);
    if (const JsonNode* only = rule.member("const")) {
        if (!isSame(*only, value))
            mustBe(value, QStringLiteral("be ") + asWritten(*only));
    }
    // What is of the wrong type is told once.
    if (m_violations.size() > before)
        return;
    checkNumber(rule, value);
    checkText(rule, value);
    checkSize(rule, value);
    checkList(rule, value, condition);
    checkObject(rule, value, condition);
    m_name = name;
    m_condition = condition;
    if (const JsonNode* all = rule.member("allOf")) {
        for (const JsonNode& part : all->children)
            check(part, value, name, condition);
    }
    checkCondition(rule, value, name);
    if (const JsonNode* branches = rule.member("oneOf"))
        checkOneOf(*branches, value, name, condition);
    if (const JsonNode* forbidden = rule.member("not"))
        checkNot(*forbidden, value);
}

void Walk::checkType(const JsonNode& rule, const JsonNode& value)
{
    const JsonNode* type = rule.member("type");
    if (!type)
        return;
    QStringList words;
    bool isAny = false;
    const auto allow = [&](const QString& name) {
        words += typeWords(name);
        isAny = isAny || isOfType(value, name);
    };
    if (type->isText())
        allow(type->text);
    for (const JsonNode& name : type->children)
        allow(name.text);
    if (!isAny)
        mustBe(value, QStringLiteral("be ") + words.join(QLatin1String(", or ")));
}

void Walk::checkEnum(const JsonNode& allowed, const JsonNode& value)
{
    QStringList words;
    QStringList texts;
    for (const JsonNode& one : allowed.children) {
        if (isSame(one, value))
            return;
        words += asWritten(one);
        texts += one.text;
    }
    mustBe(value, QStringLiteral("be one of ") + words.join(QLatin1String(", ")));
    if (value.isText())
        m_violations.last().message += didYouMean(value.text, texts);
}

void Walk::checkNumber(const JsonNode& rule, const JsonNode& value)
{
    if (!value.isNumber())
        return;
    const JsonNode* least = rule.member("minimum");
    const JsonNode* most = rule.member("maximum");
    const JsonNode* above = rule.member("exclusiveMinimum");
    if (least && value.number < least->number)
        mustBe(value, QStringLiteral("be at least ") + shownNumber(least->number));
    if (most && value.number > most->number)
        mustBe(value, QStringLiteral("be at most ") + shownNumber(most->number));
    if (above && value.number <= above->number)
        mustBe(value, QStringLiteral("be greater than ") + shownNumber(above->number));
}

bool Walk::hasForm(const QString& text, const JsonNode& pattern)
{
    auto form = m_forms.find(&pattern);
    if (form == m_forms.end())
        form = m_forms.insert(&pattern, QRegularExpression(pattern.text));
    return form->match(text).hasMatch();
}

void Walk::checkText(const JsonNode& rule, const JsonNode& value)
{
    if (!value.isText())
        return;
    const JsonNode* least = rule.member("minLength");
    const JsonNode* most = rule.member("maxLength");
    const JsonNode* pattern = rule.member("pattern");
    const int length = least || most ? value.text.toUcs4().size() : 0;
    if (least && length < least->number)
        tell(value.offset, m_name.words() + QStringLiteral(" must not be empty."));
    if (most && length > most->number)
        tell(value.offset,
                QStringLiteral("%1 must have at most %2 characters, but has %3.")
                        .arg(m_name.words(), shownNumber(most->number), QString::number(length)));
    if (pattern && !hasForm(value.text, *pattern))
        mustBe(value, patternWords(pattern->text));
}

void Walk::checkSize(const JsonNode& rule, const JsonNode& value)
{
    const JsonNode* least = rule.member(value.isList() ? "minItems" : "minProperties");
    const JsonNode* most = rule.member("maxItems");
    if (least && (value.isList() || value.isObject()) && double(value.children.size()) < least->number)
        tell(value.offset,
                QStringLiteral("%1 is empty%2: write something into it, or remove it.")
                        .arg(m_name.words(),
                                value.isObject() ? QStringLiteral(" (it may have %1)")
                                                           .arg(inQuotes(keysOf(rule.member("properties"))))
                                                 : QString()));
    if (most && value.isList() && double(value.children.size()) > most->number)
        tell(value.offset,
                QStringLiteral("%1 must have at most %2 elements, but has %3.")
                        .arg(m_name.words(), shownNumber(most->number), QString::number(value.children.size())));
}

void Walk::checkList(const JsonNode& rule, const JsonNode& value, const Condition& condition)
{
    const JsonNode* elements = rule.member("items");
    if (!elements || !value.isList())
        return;
    Name name = m_name;
    name.element = 0;
    for (const JsonNode& element : value.children) {
        ++name.element;
        check(*elements, element, name, condition);
    }
}

void Walk::checkObject(const JsonNode& rule, const JsonNode& value, const Condition& condition)
{
    if (!value.isObject())
        return;
    const QString meaning = m_meaning;
    checkKeys(rule, value);
    if (const JsonNode* dependencies = rule.member("dependencies"))
        checkDependencies(*dependencies, value);
    const JsonNode* properties = rule.member("properties");
    if (!properties)
        return;
    for (const JsonNode& property : properties->children) {
        // Of several with one key the last one counts.
        if (const JsonNode* member = value.member(property.key))
            check(property, *member, {property.key}, condition);
    }
    m_meaning = meaning;
}

/// The object that knows the key, if one of those that are allowed here does.
QString Walk::placeFor(const QString& key, const JsonNode& properties) const
{
    static const QStringList attributes {QStringLiteral("formatter"), QStringLiteral("regex"),
            QStringLiteral("inputType"), QStringLiteral("scale"), QStringLiteral("lowerLimit"),
            QStringLiteral("upperLimit"), QStringLiteral("mask")};
    if (properties.member("attributes") && attributes.contains(key))
        return QStringLiteral("attributes");
    for (const JsonNode& property : properties.children) {
        const JsonNode* inner = resolved(property).member("properties");
        if (inner && inner->member(key))
            return property.key;
    }
    return QString();
}

void Walk::checkKeys(const JsonNode& rule, const JsonNode& value)
{
    const JsonNode* properties = rule.member("properties");
    if (const JsonNode* required = rule.member("required")) {
        for (const JsonNode& key : required->children) {
            // A slip in the key is told where it is.
            const bool isMisspelt = std::any_of(
                    value.children.cbegin(), value.children.cend(), [properties, &key](const JsonNode& member) {
                        return properties && !properties->member(member.key)
                                && !didYouMean(member.key, {key.text}).isEmpty();
                    });
            if (value.member(key.text) || isMisspelt)
                continue;
            const JsonNode* property = properties ? properties->member(key.text) : nullptr;
            const QString meaning = property ? property->textOf("description") : QString();
            tell(value.offset,
                    QStringLiteral("The key %1 is missing in this object%2.").arg(quoted(key.text), m_condition.words())
                            + (meaning.isEmpty() ? QString() : QStringLiteral(" Meaning: ") + meaning));
        }
    }
    const JsonNode* additional = rule.member("additionalProperties");
    if (!properties || !additional || additional->kind != JsonNode::Boolean || additional->boolean)
        return;
    const QStringList known = keysOf(properties);
    for (const JsonNode& member : value.children) {
        if (properties->member(member.key))
            continue;
        const QString place = placeFor(member.key, *properties);
        const QString hint = place.isEmpty() ? didYouMean(member.key, known)
                                             : QStringLiteral(" It belongs into %1.").arg(quoted(place));
        tell(member.keyOffset,
                QStringLiteral("The key %1 has no meaning here.").arg(quoted(member.key)) + hint
                        + (hint.isEmpty() ? QStringLiteral(" Allowed are %1.").arg(inQuotes(known)) : QString()));
    }
}

void Walk::checkDependencies(const JsonNode& dependencies, const JsonNode& value)
{
    for (const JsonNode& dependency : dependencies.children) {
        const JsonNode* member = value.member(dependency.key);
        for (const JsonNode& needed : dependency.children) {
            if (member && !value.member(needed.text))
                tell(member->keyOffset,
                        QStringLiteral("%1 has a meaning only together with %2, which is missing.")
                                .arg(quoted(dependency.key), quoted(needed.text)));
        }
    }
}

/// The conditions are about values that the schema requires: without them that is told, and nothing else.
void Walk::checkCondition(const JsonNode& rule, const JsonNode& value, const Name& name)
{
    const JsonNode* condition = rule.member("if");
    const JsonNode* then = rule.member("then");
    const JsonNode* properties = condition ? condition->member("properties") : nullptr;
    if (!properties || !then || !value.isObject())
        return;
    Condition when;
    for (const JsonNode& property : properties->children) {
        when.value = value.member(property.key);
        if (!when.value || !isNamed(property, *when.value))
            return;
    }
    check(*then, value, name, when);
}

/// The branch is that of the value's kind.
void Walk::checkOneOf(const JsonNode& branches, const JsonNode& value, const Name& name, const Condition& condition)
{
    QStringList kinds;
    for (const JsonNode& branch : branches.children) {
        const QString type = resolved(branch).textOf("type");
        if (isOfType(value, type))
            return check(branch, value, name, condition);
        kinds += typeWords(type);
    }
    mustBe(value, QStringLiteral("be ") + kinds.join(QLatin1String(", or ")));
}

void Walk::checkNot(const JsonNode& rule, const JsonNode& value)
{
    const JsonNode* required = rule.member("required");
    if (!required || !value.isObject())
        return;
    for (const JsonNode& key : required->children) {
        if (const JsonNode* member = value.member(key.text))
            tell(member->keyOffset,
                    QStringLiteral("%1 has no meaning%2: remove it.").arg(quoted(key.text), m_condition.words()));
    }
}

} // namespace

QVector<Violation> violations(const JsonNode& schema, const JsonNode& document)
{
    Walk walk(schema);
    walk.check(schema, document, {QStringLiteral("The document"), false}, {});
    return walk.take();
}

} // namespace uiutils::check
