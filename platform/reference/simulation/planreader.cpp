#include "planreader_p.h"

#include "motionreader_p.h"
#include "simulationtexts_p.h"

#include "embedded/itemtypes_p.h"
#include "embedded/valueconversion_p.h"

#include <QFileInfo>
#include <QHash>
#include <QJsonArray>

#include <algorithm>

namespace kiv::simulation {

using embedded::ItemDescription;
using embedded::ServiceDescription;

namespace {

constexpr unsigned judgeable
        = KIVClientItem::TypeInt | KIVClientItem::TypeUInt | KIVClientItem::TypeDouble | KIVClientItem::TypeBool;
constexpr unsigned counting = KIVClientItem::TypeInt | KIVClientItem::TypeUInt | KIVClientItem::TypeDouble;

/// Reads the parts of a file one after the other until one is wrong.
class PlanReader
{
public:
    PlanReader(const QString& path, const QJsonObject& file, const ServiceDescription& service)
        : m_folder(QFileInfo(path).dir())
        , m_file(file)
        , m_service(service)
    {
        m_reading.plan.delayMs = service.delayMs;
        for (const ItemDescription& item : service.items)
            m_items.insert(item.id, &item);
    }

    PlanReading read();

private:
    void readItems();
    void readMoves(const ItemDescription& item, const QJsonObject& moves);
    void readJudgement(const ItemDescription& item, const QJsonObject& object);
    void readActions();
    void readAction(const ItemDescription& item, const QJsonObject& does);
    void readHappenings();
    void readHappening(const QJsonObject& object);
    void addItems(const QString& beginning, Happening* happening);
    QVector<Assignment> readAssignments(const QString& key, const QJsonObject& values);
    QString assignmentProblem(const Assignment& assignment) const;
    void checkProgress(const QString& id);
    void checkReferences();
    void checkReference(const QString& id, const char* place, const QString& action);
    bool isNumber(const QString& id) const;
    bool isRunning(const QString& action) const;
    void complain(const QString& place, const QString& reason);
    bool isWrong() const { return !m_reading.problem.isEmpty(); }

    const QDir m_folder;
    const QJsonObject m_file;
    const ServiceDescription& m_service;
    QHash<QString, const ItemDescription*> m_items;
    PlanReading m_reading;
    /// The place in the file that is being read.
    QString m_place;
};

/// "from" below "to" in a range that values are compared with or drawn from.
bool isTurned(const std::optional<Range>& range)
{
    return range && range->from && range->to && *range->from > *range->to;
}

std::optional<Range> rangeIn(const QJsonObject& object, QLatin1String key)
{
    const QJsonValue value = object.value(key);
    return value.isObject() ? std::optional<Range>(rangeOf(value.toObject())) : std::nullopt;
}

std::optional<KIVClientItem::Quality> qualityIn(const QJsonObject& object)
{
    const QString name = object.value(QLatin1String("quality")).toString();
    if (name.isEmpty())
        return std::nullopt;
    return embedded::qualityNamed(name);
}

/// Whether the simulation carries the action out; everything else is the service's own.
bool isSimulated(const QJsonObject& does)
{
    for (const char* key : {"runs", "fails", "stops"}) {
        if (does.contains(QLatin1String(key)))
            return true;
    }
    return false;
}

PlanReading PlanReader::read()
{
    m_reading.plan.seed = quint64(m_file.value(QLatin1String("seed")).toDouble(1));
    readItems();
    if (!isWrong())
        readHappenings();
    if (!isWrong())
        readActions();
    if (!isWrong())
        checkReferences();
    return m_reading;
}

void PlanReader::complain(const QString& place, const QString& reason)
{
    if (!isWrong())
        m_reading.problem = m_place + place + QLatin1String(": ") + reason;
}

void PlanReader::readItems()
{
    const QJsonArray items = m_file.value(QLatin1String("items")).toArray();
    for (int i = 0; i < items.size() && !isWrong(); ++i) {
        const QJsonObject object = items.at(i).toObject();
        const ItemDescription& item = m_service.items.at(i);
        m_place = QStringLiteral("/items/%1").arg(i);
        if (object.contains(QLatin1String("moves")))
            readMoves(item, object.value(QLatin1String("moves")).toObject());
        readJudgement(item, object);
    }
}

void PlanReader::readMoves(const ItemDescription& item, const QJsonObject& moves)
{
    const MotionReading reading = readMotion(item, moves, m_folder);
    if (!reading.problem.isEmpty())
        m_reading.problem = m_place + reading.problem;
    if (!reading.note.isEmpty())
        m_reading.notes += reading.note;
    if (reading.hasValues)
        m_reading.plan.motions += reading.motion;
}

void PlanReader::readJudgement(const ItemDescription& item, const QJsonObject& object)
{
    const QJsonObject judged = object.value(QLatin1String("judged")).toObject();
    const Judgement judgement {item.id, rangeIn(judged, QLatin1String("passing")),
            rangeIn(judged, QLatin1String("warning")), rangeIn(object, QLatin1String("ready"))};
    if (!judgement.judgesQuality() && !judgement.ready)
        return;
    if (!(embedded::typeCode(item.type) & judgeable))
        complain(QString(), Texts::tr("only numbers and Booleans can be judged by their value"));
    for (const auto& [range, place] : {std::make_pair(judgement.passing, "/judged/passing"),
                 std::make_pair(judgement.warning, "/judged/warning"), std::make_pair(judgement.ready, "/ready")}) {
        if (isTurned(range))
            complain(QLatin1String(place), Texts::tr("\"to\" is less than \"from\""));
    }
    m_reading.plan.judgements += judgement;
}

void PlanReader::readActions()
{
    // While the service refuses, every action that it describes has to be asked.
    bool isRefusing = false;
    for (const Happening& happening : qAsConst(m_reading.plan.happenings))
        isRefusing = isRefusing || !happening.refusal.isEmpty();
    const QJsonArray items = m_file.value(QLatin1String("items")).toArray();
    for (int i = 0; i < items.size() && !isWrong(); ++i) {
        const QJsonValue does = items.at(i).toObject().value(QLatin1String("does"));
        m_place = QStringLiteral("/items/%1").arg(i);
        if (does.isObject() && (isRefusing || isSimulated(does.toObject())))
            readAction(m_service.items.at(i), does.toObject());
    }
}

void PlanReader::readAction(const ItemDescription& item, const QJsonObject& does)
{
    SimulatedAction action;
    action.id = item.id;
    action.title = item.label.isEmpty() ? item.id : item.label;
    action.reply = does.value(QLatin1String("reply")).toString();
    action.fail = does.value(QLatin1String("fail")).toString();
    action.failingShare = action.fail.isEmpty() ? 0 : does.value(QLatin1String("fails")).toDouble(1);
    action.runsMs = does.value(QLatin1String("runs")).toInt();
    action.progress = does.value(QLatin1String("progress")).toString();
    action.stops = does.value(QLatin1String("stops")).toString();
    action.set = readAssignments(QStringLiteral("/does/set"), does.value(QLatin1String("set")).toObject());
    action.whenDone = readAssignments(QStringLiteral("/does/done"), does.value(QLatin1String("done")).toObject());
    action.whenStopped
            = readAssignments(QStringLiteral("/does/stopped"), does.value(QLatin1String("stopped")).toObject());
    action.whenFailed = readAssignments(QStringLiteral("/does/failed"), does.value(QLatin1String("failed")).toObject());
    if (!action.progress.isEmpty())
        checkProgress(action.progress);
    m_reading.plan.actions += action;
}

void PlanReader::checkProgress(const QString& id)
{
    if (!isNumber(id))
        complain(QStringLiteral("/does/progress"), Texts::tr("there is no item %1 that is a number").arg(id));
}

QVector<Assignment> PlanReader::readAssignments(const QString& key, const QJsonObject& values)
{
    QVector<Assignment> assignments;
    for (auto it = values.constBegin(); it != values.constEnd() && !isWrong(); ++it) {
        Assignment assignment {it.key(), it.value().toVariant(), 0, {}, std::nullopt};
        if (const ItemDescription* item = m_items.value(it.key())) {
            assignment.type = embedded::typeCode(item->type);
            assignment.members = item->members;
        }
        if (isNumber(it.key()) && it.value().isObject())
            assignment.drawnFrom = rangeOf(it.value().toObject());
        const QString problem = assignmentProblem(assignment);
        if (!problem.isEmpty())
            complain(key, problem);
        assignments += assignment;
    }
    return assignments;
}

QString PlanReader::assignmentProblem(const Assignment& assignment) const
{
    const ItemDescription* item = m_items.value(assignment.id);
    if (!item || assignment.type == KIVClientItem::TypeAction)
        return Texts::tr("there is no item %1 that has a value").arg(assignment.id);
    if (assignment.drawnFrom) {
        const Range& range = *assignment.drawnFrom;
        return range.from && range.to && *range.from <= *range.to
                ? QString()
                : Texts::tr("a value of %1 is drawn from the numbers between \"from\" and \"to\"").arg(assignment.id);
    }
    const bool waitsForArgument = assignment.value.userType() == QMetaType::QString
            && assignment.value.toString().contains(QLatin1String("%1"));
    const QString problem = waitsForArgument ? QString() : notOfType(*item, assignment.value);
    return problem.isEmpty() ? QString() : Texts::tr("the value of %1: %2").arg(assignment.id, problem);
}

void PlanReader::readHappenings()
{
    const QJsonArray happenings = m_file.value(QLatin1String("happens")).toArray();
    for (int i = 0; i < happenings.size() && !isWrong(); ++i) {
        m_place = QStringLiteral("/happens/%1").arg(i);
        readHappening(happenings.at(i).toObject());
    }
}

void PlanReader::readHappening(const QJsonObject& object)
{
    Happening happening;
    happening.afterMs = object.value(QLatin1String("after")).toInt();
    happening.forMs = object.value(QLatin1String("for")).toInt();
    happening.everyMs = object.value(QLatin1String("every")).toInt();
    if (object.contains(QLatin1String("slow")))
        happening.slowMs = object.value(QLatin1String("slow")).toInt();
    happening.isVanishing = object.value(QLatin1String("vanish")).toBool();
    happening.isNotReady = !object.value(QLatin1String("ready")).toBool(true);
    happening.isNotApplicable = !object.value(QLatin1String("applicable")).toBool(true);
    happening.quality = qualityIn(object);
    happening.refusal = object.value(QLatin1String("refuse")).toString();
    happening.error = object.value(QLatin1String("error")).toString();
    happening.set = readAssignments(QStringLiteral("/set"), object.value(QLatin1String("set")).toObject());
    if (!happening.slowMs && !happening.isVanishing && !happening.changesConditions() && happening.error.isEmpty()
            && happening.set.isEmpty())
        complain(QString(), Texts::tr("nothing happens: say what, such as \"vanish\": true"));
    if (happening.everyMs > 0 && happening.forMs >= happening.everyMs)
        complain(QStringLiteral("/every"), Texts::tr("must be greater than \"for\""));
    QStringList beginnings = object.value(QLatin1String("items")).toVariant().toStringList();
    if (beginnings.isEmpty() && happening.changesConditions())
        beginnings += QString();
    for (const QString& beginning : qAsConst(beginnings))
        addItems(beginning, &happening);
    m_reading.plan.happenings += happening;
}

void PlanReader::addItems(const QString& beginning, Happening* happening)
{
    bool isAny = false;
    for (const ItemDescription& item : m_service.items) {
        if (!item.id.startsWith(beginning))
            continue;
        isAny = true;
        happening->items.insert(item.id, {item.refusal, item.isReady, item.isApplicable, item.quality});
    }
    if (!isAny)
        complain(QStringLiteral("/items"), Texts::tr("no id begins with \"%1\"").arg(beginning));
}

bool PlanReader::isNumber(const QString& id) const
{
    const ItemDescription* item = m_items.value(id);
    return item && (embedded::typeCode(item->type) & counting);
}

bool PlanReader::isRunning(const QString& id) const
{
    return std::any_of(m_reading.plan.actions.cbegin(), m_reading.plan.actions.cend(),
            [&id](const SimulatedAction& action) { return action.id == id && action.runsMs > 0; });
}

void PlanReader::checkReferences()
{
    for (const SimulatedAction& action : qAsConst(m_reading.plan.actions))
        checkReference(action.id, "/does/stops", action.stops);
    for (const Motion& motion : qAsConst(m_reading.plan.motions))
        checkReference(motion.id, "/moves/while", motion.whileAction);
}

void PlanReader::checkReference(const QString& id, const char* place, const QString& action)
{
    if (action.isEmpty() || isRunning(action))
        return;
    m_place = QStringLiteral("/items/%1").arg(m_items.value(id) - m_service.items.constData());
    complain(QLatin1String(place), Texts::tr("there is no action %1 that \"runs\"").arg(action));
}

/// Most files describe services that stand still.
bool isSimulatedItem(const QJsonObject& item)
{
    return item.contains(QLatin1String("moves")) || item.contains(QLatin1String("judged"))
            || item.value(QLatin1String("ready")).isObject()
            || isSimulated(item.value(QLatin1String("does")).toObject());
}

bool isSimulatedFile(const QJsonObject& file)
{
    const QJsonArray items = file.value(QLatin1String("items")).toArray();
    return file.contains(QLatin1String("happens"))
            || std::any_of(items.begin(), items.end(),
                    [](const QJsonValue& item) { return isSimulatedItem(item.toObject()); });
}

} // namespace

PlanReading readPlan(const QString& path, const QJsonObject& file, const ServiceDescription& service)
{
    return isSimulatedFile(file) ? PlanReader(path, file, service).read() : PlanReading();
}

} // namespace kiv::simulation
