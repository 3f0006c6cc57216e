#include "check/services/simulationchecks.h"

#include "check/services/jsonwords.h"
#include "check/services/valuewords.h"

#include "simulation/motionreader_p.h"
#include "simulation/planreader_p.h"

#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

namespace uiutils::check {

using kiv::simulation::Range;

namespace {

constexpr unsigned numbers = KIVClientItem::TypeInt | KIVClientItem::TypeUInt | KIVClientItem::TypeDouble;
constexpr unsigned judgeable = numbers | KIVClientItem::TypeBool;

/// Every proposal compares with all ids, at some microseconds each.
constexpr int mostComparisons = 200000;

Range rangeOf(const JsonNode& node)
{
    const auto end = [&node](const char* key) {
        const JsonNode* member = node.member(key);
        return member && member->isNumber() ? std::optional<double>(member->number) : std::nullopt;
    };
    return {end("from"), end("to")};
}

bool isTurned(const Range& range)
{
    return range.from && range.to && *range.from > *range.to;
}

/// Whether one is within the other completely.
bool covers(const Range& outer, const Range& inner)
{
    const bool below = !outer.from || (inner.from && *inner.from >= *outer.from);
    const bool above = !outer.to || (inner.to && *inner.to <= *outer.to);
    return below && above;
}

bool meet(const Range& a, const Range& b)
{
    const bool isBelow = a.to && b.from && *a.to < *b.from;
    const bool isAbove = a.from && b.to && *a.from > *b.to;
    return !isBelow && !isAbove;
}

QString shownRange(const Range& range)
{
    if (range.from && range.to)
        return QStringLiteral("%1 to %2").arg(shownNumber(*range.from), shownNumber(*range.to));
    return range.from ? QStringLiteral("%1 and more").arg(shownNumber(*range.from))
                      : QStringLiteral("%1 and less").arg(shownNumber(range.to.value_or(0)));
}

class SimulationCheck
{
public:
    SimulationCheck(ServiceDocument* document, RegexCheck* regexes)
        : m_document(*document)
        , m_findings(document->findings)
        , m_regexes(regexes)
    {
    }

    void run();

private:
    void checkMoves(const ServiceItem& item, const JsonNode& moves);
    void checkMovingLimits(const ServiceItem& item, const JsonNode& moves);
    void checkJudged(const ServiceItem& item);
    void checkReach(const ServiceItem& item, const JsonNode& range, const char* what);
    void checkDoes(const JsonNode& does);
    void checkValues(const JsonNode& values);
    void checkDrawn(const ServiceItem& item, const JsonNode& range);
    void checkRunning(const JsonNode& reference);
    void checkProgress(const JsonNode& progress);
    void checkHappening(const JsonNode& happening);
    void checkPlan();
    QString nearestId(const QString& id, bool (*suits)(const ServiceItem&));

    ServiceDocument& m_document;
    FileFindings& m_findings;
    RegexCheck* const m_regexes;
    int m_comparisons = 0;
};

bool hasValue(const ServiceItem& item)
{
    return item.type != KIVClientItem::TypeAction;
}

bool isNumber(const ServiceItem& item)
{
    return item.type & numbers;
}

bool isRunning(const ServiceItem& item)
{
    const JsonNode* does = item.node->member("does");
    return item.type == KIVClientItem::TypeAction && does && does->member("runs");
}

void SimulationCheck::run()
{
    for (const ServiceItem& item : qAsConst(m_document.items)) {
        if (!m_document.isSound(item))
            continue;
        if (const JsonNode* moves = item.node->member("moves"))
            checkMoves(item, *moves);
        checkJudged(item);
        if (const JsonNode* does = item.node->member("does"))
            checkDoes(*does);
    }
    const JsonNode* happens = m_document.tree.root.member("happens");
    if (happens && happens->isList()) {
        for (const JsonNode& happening : happens->children)
            checkHappening(happening);
    }
    if (!m_findings.hasErrors())
        checkPlan();
}

QString SimulationCheck::nearestId(const QString& id, bool (*suits)(const ServiceItem&))
{
    if (m_comparisons > mostComparisons)
        return QString();
    m_comparisons += m_document.items.size();
    QStringList known;
    for (const ServiceItem& item : qAsConst(m_document.items)) {
        if (suits(item))
            known += item.description.id;
    }
    return didYouMean(id, known);
}

/// The platform reads it, also the file of values; its words are "/moves/KEY: REASON".
void SimulationCheck::checkMoves(const ServiceItem& item, const JsonNode& moves)
{
    if (item.facts.isSetting())
        return m_findings.error(moves.keyOffset,
                QStringLiteral(
                        "Only a result moves by itself: a setting is set by users, and moving would overwrite what they set. Remove \"moves\", or make it a :result:."));
    const QJsonArray items = m_document.document.value(QLatin1String("items")).toArray();
    const auto index = item.node - m_document.itemList()->children.data();
    const QJsonObject object = items.at(int(index)).toObject().value(QLatin1String("moves")).toObject();
    const auto reading = kiv::simulation::readMotion(item.description, object, QFileInfo(m_document.path).dir());
    if (!reading.problem.isEmpty()) {
        const QString pointer = reading.problem.section(QLatin1String(": "), 0, 0);
        const JsonNode* place = item.node->at(pointer);
        const QString what = !place->key.isEmpty()
                ? quoted(place->key)
                : QStringLiteral("Element %1 of %2")
                          .arg(QString::number(pointer.section(QLatin1Char('/'), -1).toInt() + 1),
                                  quoted(pointer.section(QLatin1Char('/'), -2, -2)));
        m_findings.error(*place,
                QStringLiteral("%1 in \"moves\": %2.").arg(what, reading.problem.section(QLatin1String(": "), 1)));
    } else if (!reading.hasValues) {
        m_findings.error(moves.member("file") ? *moves.member("file") : moves, reading.note);
    } else if (!reading.note.isEmpty()) {
        m_findings.warn(moves.member("file") ? *moves.member("file") : moves, reading.note);
    } else {
        checkMovingLimits(item, moves);
    }
    if (const JsonNode* action = moves.member("while"))
        checkRunning(*action);
}

void SimulationCheck::checkMovingLimits(const ServiceItem& item, const JsonNode& moves)
{
    if (isNumber(item)) {
        for (const char* key : {"from", "to"}) {
            const JsonNode* end = moves.member(key);
            const QString problem = end ? unsuitableValue(item, *end, m_regexes).message : QString();
            const bool isBelowZero = end && item.type == KIVClientItem::TypeUInt && end->number < 0;
            if (isBelowZero)
                m_findings.error(
                        *end, QStringLiteral("A \"uint\" is never below 0: use the type \"int\", or another range."));
            else if (!problem.isEmpty())
                m_findings.warn(*end, QStringLiteral("The item moves to where it has no value: ") + problem);
        }
    }
    const JsonNode* values = moves.member("values");
    for (size_t i = 0; values && i < values->children.size(); ++i) {
        const ValueProblem problem = unsuitableValue(item, values->children[i], m_regexes);
        if (!problem.message.isEmpty())
            m_findings.warn(
                    *problem.place, QStringLiteral("The item moves to where it has no value: ") + problem.message);
    }
}

void SimulationCheck::checkJudged(const ServiceItem& item)
{
    const JsonNode* judged = item.node->member("judged");
    const JsonNode* ready = item.node->member("ready");
    const bool hasRange = ready && ready->isObject();
    if (!judged && !hasRange)
        return;
    if (!(item.type & judgeable))
        return m_findings.error(judged ? *judged : *ready,
                QStringLiteral("Only numbers and Booleans are judged by their value, not the type %1.")
                        .arg(quoted(item.description.type)));
    const JsonNode* passing = judged ? judged->member("passing") : nullptr;
    const JsonNode* warning = judged ? judged->member("warning") : nullptr;
    if (passing)
        checkReach(item, *passing, "passes");
    if (warning)
        checkReach(item, *warning, "gives a warning");
    if (hasRange)
        checkReach(item, *ready, "is ready");
    if (passing && warning && !isTurned(rangeOf(*passing)) && !isTurned(rangeOf(*warning))
            && covers(rangeOf(*passing), rangeOf(*warning)))
        m_findings.warn(*warning,
                QStringLiteral(
                        "No value ever gives a warning: %1 lies within \"passing\", which comes first. A warning begins where passing ends.")
                        .arg(shownRange(rangeOf(*warning))));
}

void SimulationCheck::checkReach(const ServiceItem& item, const JsonNode& node, const char* what)
{
    const Range range = rangeOf(node);
    if (isTurned(range))
        return m_findings.error(node,
                QStringLiteral("The range is upside down: \"from\" %1 is above \"to\" %2, so that no value %3.")
                        .arg(shownNumber(*range.from), shownNumber(*range.to), QLatin1String(what)));
    const JsonNode* moves = item.node->member("moves");
    const Range moving = moves ? rangeOf(*moves) : Range();
    if ((moving.from || moving.to) && !meet(range, moving))
        m_findings.warn(node,
                QStringLiteral("The item moves from %1, so that its value never %2 (%3).")
                        .arg(shownRange(moving), QLatin1String(what), shownRange(range)));
}

void SimulationCheck::checkDoes(const JsonNode& does)
{
    for (const char* key : {"set", "done", "stopped", "failed"}) {
        if (const JsonNode* values = does.member(key))
            checkValues(*values);
    }
    if (const JsonNode* stops = does.member("stops"))
        checkRunning(*stops);
    if (const JsonNode* progress = does.member("progress"))
        checkProgress(*progress);
}

void SimulationCheck::checkValues(const JsonNode& values)
{
    if (!values.isObject())
        return;
    for (const JsonNode& value : values.children) {
        const ServiceItem* item = m_document.item(value.key);
        if (item && !hasValue(*item)) {
            m_findings.error(value.keyOffset,
                    QStringLiteral("%1 sets %2, which is an action and has no value.")
                            .arg(quoted(values.key), quoted(value.key)));
            continue;
        }
        if (!item) {
            m_findings.error(value.keyOffset,
                    QStringLiteral("%1 sets what does not exist: no item has the id %2.")
                                    .arg(quoted(values.key), quoted(value.key))
                            + nearestId(value.key, hasValue));
            continue;
        }
        const bool isDrawn = isNumber(*item) && value.isObject();
        if (isDrawn) {
            checkDrawn(*item, value);
            continue;
        }
        const bool waitsForArgument = value.isText() && value.text.contains(QLatin1String("%1"));
        const QString problem = waitsForArgument ? QString() : typeProblem(*item, value);
        const ValueProblem outside = unsuitableValue(*item, value, m_regexes);
        if (!problem.isEmpty())
            m_findings.error(value, problem);
        else if (!waitsForArgument && !outside.message.isEmpty())
            m_findings.warn(*outside.place,
                    QStringLiteral("%1 gives %2 a value that it should not have: ").arg(quoted(values.key), value.key)
                            + outside.message);
    }
}

void SimulationCheck::checkDrawn(const ServiceItem& item, const JsonNode& node)
{
    const Range range = rangeOf(node);
    if (!range.from || !range.to || isTurned(range))
        return m_findings.error(node,
                QStringLiteral(
                        "A value is drawn from a range with \"from\" and \"to\", the lower one first, such as { \"from\": 1, \"to\": 5 }."));
    for (const char* key : {"from", "to"}) {
        const JsonNode& end = *node.member(key);
        const QString problem = unsuitableValue(item, end, m_regexes).message;
        if (item.type == KIVClientItem::TypeUInt && end.number < 0)
            m_findings.error(end, QStringLiteral("A \"uint\" is never below 0."));
        else if (!problem.isEmpty())
            m_findings.warn(end,
                    QStringLiteral("The drawn value may leave what %1 should have: ").arg(item.description.id)
                            + problem);
    }
}

void SimulationCheck::checkRunning(const JsonNode& reference)
{
    const ServiceItem* item = m_document.item(reference.text);
    if (item && isRunning(*item))
        return;
    const bool isAction = item && item->type == KIVClientItem::TypeAction;
    const QString message = isAction
            ? QStringLiteral(
                    "the action %1 does not run. Give its \"does\" the key \"runs\", or name an action that has it.")
            : QStringLiteral("there is no action %1 that runs.");
    m_findings.error(reference,
            QStringLiteral("%1 cannot be followed: ").arg(quoted(reference.key)) + message.arg(quoted(reference.text))
                    + (isAction ? QString() : nearestId(reference.text, isRunning)));
}

void SimulationCheck::checkProgress(const JsonNode& progress)
{
    const ServiceItem* item = m_document.item(progress.text);
    if (!item || !isNumber(*item))
        return m_findings.error(progress,
                (item ? QStringLiteral("\"progress\" must name a number, but %1 is of the type %2.")
                                        .arg(item->description.id, quoted(item->description.type))
                      : QStringLiteral("\"progress\" must name a number, but there is no item %1.")
                                        .arg(quoted(progress.text)))
                        + nearestId(progress.text, isNumber));
    const QVariant& maximum = item->description.maximum;
    if (maximum.isValid() && maximum.toDouble() < 100)
        m_findings.warn(progress,
                QStringLiteral("\"progress\" counts to 100, but the maximum of %1 is %2.")
                        .arg(progress.text, shownNumber(maximum.toDouble())));
}

void SimulationCheck::checkHappening(const JsonNode& happening)
{
    if (!happening.isObject() || m_findings.hasErrorWithin(happening.offset, happening.end))
        return;
    if (const JsonNode* values = happening.member("set"))
        checkValues(*values);
    const JsonNode* lasts = happening.member("for");
    const JsonNode* every = happening.member("every");
    if (every && lasts && lasts->number >= every->number)
        m_findings.error(*every,
                QStringLiteral(
                        "\"every\" %1 must be greater than \"for\" %2: it would begin again before it has ended.")
                        .arg(shownNumber(every->number), shownNumber(lasts->number)));
    static const char* const effects[] = {"slow", "vanish", "refuse", "ready", "applicable", "quality", "error", "set"};
    const bool isAny = std::any_of(
            std::begin(effects), std::end(effects), [&](const char* key) { return happening.member(key); });
    if (!isAny)
        m_findings.error(happening,
                QStringLiteral(
                        "Nothing happens here: say what, such as \"vanish\": true or \"refuse\": \"The laser is locked.\"."));
    const JsonNode* beginnings = happening.member("items");
    for (size_t i = 0; beginnings && i < beginnings->children.size(); ++i) {
        const JsonNode& beginning = beginnings->children[i];
        const auto begins = [&](const ServiceItem& item) { return item.description.id.startsWith(beginning.text); };
        if (std::none_of(m_document.items.cbegin(), m_document.items.cend(), begins))
            m_findings.error(beginning,
                    QStringLiteral("No item has an id that begins with %1.").arg(quoted(beginning.text))
                            + nearestId(beginning.text, [](const ServiceItem&) { return true; }));
    }
}

/// What the checks above have missed would keep the file from being loaded.
void SimulationCheck::checkPlan()
{
    const auto reading = kiv::simulation::readPlan(m_document.path, m_document.document, m_document.description);
    if (reading.problem.isEmpty())
        return;
    const JsonNode* place = m_document.tree.root.at(reading.problem.section(QLatin1String(": "), 0, 0));
    m_findings.error(*place,
            QStringLiteral("The file cannot be used: %1.").arg(reading.problem.section(QLatin1String(": "), 1)));
}

} // namespace

void checkSimulation(ServiceDocument* document, RegexCheck* regexes)
{
    SimulationCheck(document, regexes).run();
}

} // namespace uiutils::check
