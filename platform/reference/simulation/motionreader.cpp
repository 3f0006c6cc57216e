#include "motionreader_p.h"

#include "csvcolumn_p.h"
#include "recordedvalues_p.h"
#include "simulationtexts_p.h"

#include "embedded/itemtypes_p.h"
#include "embedded/valueconversion_p.h"

#include <QJsonArray>

#include <algorithm>

namespace kiv::simulation {

using embedded::ItemDescription;

namespace {

constexpr unsigned numbers = KIVClientItem::TypeInt | KIVClientItem::TypeUInt | KIVClientItem::TypeDouble;
constexpr unsigned curves = numbers | KIVClientItem::TypeDoubleArray;
constexpr unsigned cells = numbers | KIVClientItem::TypeString | KIVClientItem::TypeBool;

struct NamedKind
{
    const char* name;
    Motion::Kind kind;
    /// The types that can move so.
    unsigned types;
    /// The keys that have a meaning for it.
    const char* keys;
};

constexpr NamedKind kinds[] {
        {"constant", Motion::Constant, curves, "noise from to"},
        {"ramp", Motion::Ramp, numbers, "noise from to period then"},
        {"sine", Motion::Sine, numbers, "noise from to period"},
        {"walk", Motion::Walk, numbers, "noise from to step"},
        {"file", Motion::List, cells, "noise from to file column then"},
        {"recording", Motion::List, ~0U, "noise from to file item then"},
        {"steps", Motion::List, ~0U, "noise from to values then"},
};

const NamedKind& kindOf(const QJsonObject& moves)
{
    const QString name = moves.value(QLatin1String("as")).toString();
    return *std::find_if(std::begin(kinds), std::end(kinds) - 1,
            [&name](const NamedKind& kind) { return name == QLatin1String(kind.name); });
}

Motion::End endOf(const QJsonObject& moves)
{
    const QString name = moves.value(QLatin1String("then")).toString();
    if (name == QLatin1String("back"))
        return Motion::Back;
    return name == QLatin1String("stay") ? Motion::Stay : Motion::Repeat;
}

QString itemProblem(const ItemDescription& item, const NamedKind& kind)
{
    if (!item.id.startsWith(QLatin1String(":result:")))
        return QLatin1String("/moves: ") + Texts::tr("only a result can move: settings are set by clients");
    if (!(embedded::typeCode(item.type) & kind.types))
        return QLatin1String("/moves/as: ")
                + Texts::tr("an item of the type %1 cannot move as \"%2\"").arg(item.type, QLatin1String(kind.name));
    return QString();
}

/// A key that does nothing is a mistake of the writer.
QString keyProblem(const QJsonObject& moves, const NamedKind& kind)
{
    const QString known = QLatin1String("as every while ") + QLatin1String(kind.keys);
    const QStringList keys = known.split(QLatin1Char(' '));
    for (auto it = moves.constBegin(); it != moves.constEnd(); ++it) {
        if (!keys.contains(it.key()))
            return QStringLiteral("/moves/%1: ").arg(it.key())
                    + Texts::tr("has no meaning for \"%1\"").arg(QLatin1String(kind.name));
    }
    return QString();
}

QString rangeProblem(const Motion& motion)
{
    const Range& range = motion.range;
    if (range.from && range.to && *range.from >= *range.to)
        return QLatin1String("/moves/to: ") + Texts::tr("must be greater than \"from\"");
    const bool isNumber = motion.type & (numbers | KIVClientItem::TypeDoubleArray);
    return isNumber || (motion.noise <= 0 && !range.from && !range.to)
            ? QString()
            : QLatin1String("/moves: ") + Texts::tr("only numbers have \"noise\", \"from\" and \"to\"");
}

QString readValues(const ItemDescription& item, const QJsonArray& values, QVariantList* list)
{
    for (int i = 0; i < values.size(); ++i) {
        const QVariant value = values.at(i).toVariant();
        const QString problem = notOfType(item, value);
        if (!problem.isEmpty())
            return QStringLiteral("/moves/values/%1: ").arg(i) + problem;
        list->append(embedded::convertReported(embedded::typeCode(item.type), item.members, value).value);
    }
    return QString();
}

void readRecording(const ItemDescription& item, const QJsonObject& moves, const QString& path, MotionReading* reading)
{
    const QString id = moves.value(QLatin1String("item")).toString(item.id);
    const RecordedValues recorded = readRecordedValues(path, id, reading->motion.everyMs);
    for (const QVariant& value : recorded.values) {
        const auto converted = embedded::convertReported(reading->motion.type, item.members, value);
        // What is of another type is no value of this item.
        reading->motion.values += value.isValid() && converted.problem.isEmpty() ? converted.value : QVariant();
    }
    reading->hasValues = !reading->motion.values.isEmpty();
    if (!recorded.problem.isEmpty())
        reading->note = Texts::tr("%1 The item %2 stands still.").arg(recorded.problem, item.id);
    else if (recorded.brokenLines > 0)
        reading->note = Texts::tr("%1: lines that cannot be read are left out: %2")
                                .arg(path, QString::number(recorded.brokenLines));
}

void readTable(const ItemDescription& item, const QJsonObject& moves, const QString& path, MotionReading* reading)
{
    const bool isText = item.type == QLatin1String("std::string");
    CsvColumn column = readCsvColumn(path, moves.value(QLatin1String("column")).toString(), isText);
    const auto fits = [&item](const QVariant& value) { return notOfType(item, value).isEmpty(); };
    const auto end = std::stable_partition(column.values.begin(), column.values.end(), fits);
    column.brokenLines += int(column.values.end() - end);
    column.values.erase(end, column.values.end());
    reading->motion.values = column.values;
    reading->hasValues = !column.values.isEmpty();
    if (!column.problem.isEmpty())
        reading->note = Texts::tr("%1. The item %2 stands still.").arg(column.problem, item.id);
    else if (column.brokenLines > 0)
        reading->note = Texts::tr("%1: %2 of %3 lines have no value for %4 and are left out.")
                                .arg(path, QString::number(column.brokenLines), QString::number(column.lines), item.id);
}

Motion motionOf(const ItemDescription& item, const QJsonObject& moves, const NamedKind& kind)
{
    Motion motion;
    motion.id = item.id;
    motion.type = embedded::typeCode(item.type);
    motion.kind = kind.kind;
    motion.end = endOf(moves);
    motion.range = rangeOf(moves);
    motion.start = item.value;
    motion.noise = moves.value(QLatin1String("noise")).toDouble();
    const double width = motion.range.to.value_or(0) - motion.range.from.value_or(0);
    motion.step = moves.value(QLatin1String("step")).toDouble(width / 20);
    motion.periodMs = moves.value(QLatin1String("period")).toInt(1);
    motion.everyMs = moves.value(QLatin1String("every")).toInt(200);
    motion.whileAction = moves.value(QLatin1String("while")).toString();
    return motion;
}

} // namespace

MotionReading readMotion(const ItemDescription& item, const QJsonObject& moves, const QDir& folder)
{
    const NamedKind& kind = kindOf(moves);
    MotionReading reading;
    reading.motion = motionOf(item, moves, kind);
    for (const QString& problem : {itemProblem(item, kind), keyProblem(moves, kind), rangeProblem(reading.motion)}) {
        reading.problem = problem;
        if (!problem.isEmpty())
            return reading;
    }
    if (moves.contains(QLatin1String("values")))
        reading.problem = readValues(item, moves.value(QLatin1String("values")).toArray(), &reading.motion.values);
    const QString path = folder.filePath(moves.value(QLatin1String("file")).toString());
    if (moves.value(QLatin1String("as")) == QLatin1String("recording"))
        readRecording(item, moves, path, &reading);
    else if (moves.contains(QLatin1String("file")))
        readTable(item, moves, path, &reading);
    return reading;
}

QString notOfType(const ItemDescription& item, const QVariant& value)
{
    return embedded::convertReported(embedded::typeCode(item.type), item.members, value).problem;
}

Range rangeOf(const QJsonObject& object)
{
    const auto numberOf = [&object](QLatin1String key) {
        const QJsonValue value = object.value(key);
        return value.isDouble() ? std::optional<double>(value.toDouble()) : std::nullopt;
    };
    return {numberOf(QLatin1String("from")), numberOf(QLatin1String("to"))};
}

} // namespace kiv::simulation
